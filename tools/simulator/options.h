#pragma once

#include <cstdint>
#include <optional>
#include <string>

/// The command line of skerrand-simulator.
namespace simulator {

struct Options {
    std::string departure;    ///< ICAO code; empty: the first airport
    std::string destination;  ///< ICAO code; empty: a traffic pattern
    std::string folder = ".";
    bool wait = false;
    double speed_up = 1;
    double altimeter = 1013;  ///< millibars
    std::optional<int> follow;
    const char* window_class = "UIPCMAIN";
    std::uint32_t version = 0xFADE0006;  ///< of FS2002
    int late = 0;                        ///< milliseconds
    bool refuse = false;
    std::optional<int> answers;  ///< that it gives before it dies
    bool help = false;
};

extern const char* const Help_Text;

/// Answers an empty text or what is wrong with the command line.
std::string Parse_Options(int argc, const char* const* argv, Options& options);

}  // namespace simulator
