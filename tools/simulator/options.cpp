#include "tools/simulator/options.h"

#include <algorithm>
#include <charconv>
#include <climits>
#include <string_view>

namespace simulator {

const char* const Help_Text =
    R"(Usage: skerrand-simulator [--departure ICAO [--destination ICAO]] [options]

Stands in for the simulator: answers Skerrand's link and flies an aircraft over
the airports that Skerrand has found. The aircraft waits on the runway until the
first client asks; then it takes off, flies to the destination or once round the
departure, lands, and leaves the runway.

  --departure ICAO     where it starts (the first airport with a runway)
  --destination ICAO   where it lands; without one it flies a traffic pattern
  --folder DIR         Skerrand's working folder (the current one)
  --wait               wait until the database of airports is there
  --speed-up N         let time pass N times as fast, 0.01 to 1000
  --altimeter MB       altimeter setting in millibars, 0 to 4095 (1013)
  --follow PID         end when that process ends
  --fs98               have a window of the class FS98MAIN, not UIPCMAIN

Faults to try a client with:
  --version HEX        another version word of the simulator (FADE0006)
  --answer-late MS     answer each message only after that time
  --refuse             refuse every message
  --die-after N        die at the message after N answers, as in a crash

  --help               show this text

Exit status: 0 if it was ended by a signal or by --follow, 1 if it could not do
its work, 2 if the command line is wrong, 3 if it died by --die-after.
)";

namespace {

template <typename Number, typename... Base>
bool Take_Number(std::string_view text, Number& number, Number least, Number most, Base... base) {
    const char* const end = text.data() + text.size();
    Number taken{};
    const auto [stop, error] = std::from_chars(text.data(), end, taken, base...);
    if (error != std::errc() || stop != end || !(taken >= least && taken <= most)) return false;
    number = taken;
    return true;
}

bool Take_Number(std::string_view text, std::optional<int>& number, int least) {
    int taken = 0;
    if (!Take_Number(text, taken, least, INT_MAX)) return false;
    number = taken;
    return true;
}

/// An option that stands alone.
bool Take_Flag(std::string_view option, Options& options) {
    if (option == "--wait") {
        options.wait = true;
    } else if (option == "--fs98") {
        options.window_class = "FS98MAIN";
    } else if (option == "--refuse") {
        options.refuse = true;
    } else if (option == "--help" || option == "-h") {
        options.help = true;
    } else {
        return false;
    }
    return true;
}

bool Take_Text(std::string_view value, std::string& text) {
    text = value;
    return !value.empty();
}

/// False if the option does not take that value.
bool Take_Value(std::string_view option, std::string_view value, Options& options) {
    if (option == "--departure") return Take_Text(value, options.departure);
    if (option == "--destination") return Take_Text(value, options.destination);
    if (option == "--folder") return Take_Text(value, options.folder);
    if (option == "--speed-up") return Take_Number(value, options.speed_up, 0.01, 1000.0);
    if (option == "--altimeter") return Take_Number(value, options.altimeter, 0.0, 4095.0);
    if (option == "--follow") return Take_Number(value, options.follow, 1);
    if (option == "--version") {
        return Take_Number(value, options.version, std::uint32_t{0}, UINT32_MAX, 16);
    }
    if (option == "--answer-late") return Take_Number(value, options.late, 0, INT_MAX);
    return Take_Number(value, options.answers, 0);
}

bool Takes_Value(std::string_view option) {
    constexpr std::string_view Names[] = {"--departure", "--destination", "--folder",
                                          "--speed-up",  "--altimeter",   "--follow",
                                          "--version",   "--answer-late", "--die-after"};
    return std::find(std::begin(Names), std::end(Names), option) != std::end(Names);
}

}  // namespace

std::string Parse_Options(int argc, const char* const* argv, Options& options) {
    for (int i = 1; i < argc; ++i) {
        const std::string option = argv[i];
        if (Take_Flag(option, options)) continue;
        if (!Takes_Value(option)) return "unknown option " + option;
        if (i + 1 == argc) return option + " needs a value";
        const std::string value = argv[++i];
        if (!Take_Value(option, value, options)) return option + " does not take " + value;
    }
    if (!options.destination.empty() && options.departure.empty()) {
        return "--destination goes with --departure";
    }
    return "";
}

}  // namespace simulator
