#pragma once

#include <cstdint>
#include <optional>
#include <string>

/// The command line of make_world.
namespace world {

struct Options {
    std::string folder;
    std::string data;             ///< folder of the facts
    std::optional<int> airports;  ///< invent so many; nothing: the real ones of the facts
    std::uint64_t seed = 1;
    bool help = false;
};

extern const char* const Help_Text;

/// Answers an empty text or what is wrong with the command line. `options.data` keeps its value
/// unless the user gives another.
std::string Parse_Options(int argc, const char* const* argv, Options& options);

}  // namespace world
