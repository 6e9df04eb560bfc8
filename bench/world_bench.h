#pragma once

#include <string>

namespace bench {

/// Registers the benchmarks of a whole world's scenery and of the databases, whose names start with
/// "world/": first run, later start, databases, lists and search. They leave databases in the
/// working folder.
void Add_World_Benchmarks(const std::string& folder);

/// The answer of the headless back-end to a command, without its last line, which has to be `ok`.
std::string Ask(const std::string& command);

}  // namespace bench
