#pragma once

#include <string>
#include <string_view>

/// The line protocol: how a script drives the program and looks at it.
namespace platform::headless {

/// Carries out one command line (UTF-8, without its line feed) and gives the whole answer, its last
/// line `ok` or `error` with a reason, each line with its line feed. A command that fails changes
/// nothing.
std::string Execute(std::string_view line);

/// Whether the last command was `quit`.
bool Was_Quit();

}  // namespace platform::headless
