#pragma once

#include <string>

/// The command line of skerrand-simulator.
namespace simulator {

struct Options {
    std::string departure;    ///< ICAO code; empty: the first airport
    std::string destination;  ///< ICAO code; empty: none
    std::string folder = ".";
    bool wait = false;
    bool fs98 = false;
    bool refuse = false;
    bool help = false;
    double speed_up = 1;
    double altimeter = 1013;      ///< millibars
    double follow = 0;            ///< process, 0 for none
    double late = 0;              ///< milliseconds
    double answers = -1;          ///< that it gives before it dies; -1 for any number
    double version = 0xFADE0006;  ///< of FS2002
};

extern const char* const Help_Text;

/// Gives an empty text or what is wrong with the command line.
std::string Parse_Options(int argc, const char* const* argv, Options& options);

}  // namespace simulator
