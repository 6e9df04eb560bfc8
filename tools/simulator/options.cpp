#include "tools/simulator/options.h"

#include <algorithm>
#include <charconv>
#include <climits>
#include <cstdint>
#include <string_view>

namespace simulator {

const char* const Help_Text =
    R"(Usage: skerrand-simulator [--departure ICAO [--destination ICAO]] [options]

Stands in for the simulator: answers Skerrand's link and flies an aircraft over
the airports that Skerrand has found. The aircraft waits on the runway until the
first client asks; then it takes off and flies to the destination, where it
lands, or straight on.

  --departure ICAO     where it starts (the first airport with a runway)
  --destination ICAO   where it lands; without one it flies straight on
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

Exit status: 0 if it was ended by --follow, 1 if it could not do its work, 2 if
the command line is wrong, 3 if it died by --die-after.
)";

namespace {

struct Flag {
    std::string_view name;
    bool Options::*value;
};

constexpr Flag flags[] = {{"--wait", &Options::wait},
                          {"--fs98", &Options::fs98},
                          {"--refuse", &Options::refuse},
                          {"--help", &Options::help},
                          {"-h", &Options::help}};

struct Text {
    std::string_view name;
    std::string Options::*value;
};

constexpr Text texts[] = {{"--departure", &Options::departure},
                          {"--destination", &Options::destination},
                          {"--folder", &Options::folder}};

struct Number {
    std::string_view name;
    double Options::*value;
    double least, most;
    std::chars_format format = std::chars_format::fixed;
};

constexpr Number numbers[] = {
    {"--speed-up", &Options::speed_up, 0.01, 1000},
    {"--altimeter", &Options::altimeter, 0, 4095},
    {"--follow", &Options::follow, 1, INT_MAX},
    {"--answer-late", &Options::late, 0, INT_MAX},
    {"--die-after", &Options::answers, 0, INT_MAX},
    {"--version", &Options::version, 0, UINT32_MAX, std::chars_format::hex}};

template <typename Row, std::size_t Count>
const Row* Row_Named(const Row (&rows)[Count], std::string_view name) {
    const auto* const found = std::find_if(std::begin(rows), std::end(rows),
                                           [=](const Row& row) { return row.name == name; });
    return found == std::end(rows) ? nullptr : found;
}

bool Take_Number(const Number& row, std::string_view text, Options& options) {
    const char* const end = text.data() + text.size();
    double& number = options.*row.value;
    const auto [stop, error] = std::from_chars(text.data(), end, number, row.format);
    return error == std::errc() && stop == end && number >= row.least && number <= row.most;
}

}  // namespace

std::string Parse_Options(int argc, const char* const* argv, Options& options) {
    for (int i = 1; i < argc; ++i) {
        const std::string name = argv[i];
        if (const Flag* const flag = Row_Named(flags, name)) {
            options.*flag->value = true;
            continue;
        }
        const Text* const text = Row_Named(texts, name);
        const Number* const number = Row_Named(numbers, name);
        if (text == nullptr && number == nullptr) return "unknown option " + name;
        if (i + 1 == argc) return name + " needs a value";
        const std::string value = argv[++i];
        if (text != nullptr) options.*text->value = value;
        const bool taken = text != nullptr ? !value.empty() : Take_Number(*number, value, options);
        if (!taken) return name + " does not take " + value;
    }
    if (!options.destination.empty() && options.departure.empty()) {
        return "--destination goes with --departure";
    }
    return "";
}

}  // namespace simulator
