#include "tools/options.h"

#include <charconv>
#include <string_view>

#include "tools/invented_airports.h"

namespace world {

const char* const Help_Text =
    R"(Usage: make_world FOLDER [--data DIR] [--airports N [--seed S]]

Writes a simulator's main folder that Skerrand can read: fs2002.exe (an empty
marker), scenery.cfg, the magnetic grid and scenery files with airports and
airspaces. FOLDER is created; if it holds a world that make_world wrote, that
one is replaced, and any other folder that is not empty is refused.

  --data DIR    where the facts lie (demo_airports.txt, magnetic_variation.txt)
  --airports N  invent N airports of all sizes instead of the real ones,
                at most 456976, and airspaces in proportion
  --seed S      another choice of invented airports; the same N and S give the
                same files (1 if not given)
  --help        show this text

Exit status: 0 if the world was written, 1 if not, 2 if the command line is wrong.
)";

namespace {

template <typename Number>
bool Take_Number(std::string_view text, Number& number) {
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number);
    return error == std::errc() && stop == end;
}

std::string Take_Value(std::string_view option, std::string_view value, Options& options) {
    if (option == "--data") {
        options.data = value;
    } else if (option == "--airports") {
        int count = 0;
        if (!Take_Number(value, count) || count < 0 || count > Most_Invented_Airports) {
            return "--airports takes a number from 0 to " + std::to_string(Most_Invented_Airports);
        }
        options.airports = count;
    } else if (!Take_Number(value, options.seed)) {
        return "--seed takes a number from 0 to 18446744073709551615";
    }
    return "";
}

bool Takes_Value(std::string_view argument) {
    return argument == "--data" || argument == "--airports" || argument == "--seed";
}

}  // namespace

std::string Parse_Options(int argc, const char* const* argv, Options& options) {
    bool has_seed = false;
    for (int i = 1; i < argc; ++i) {
        const std::string_view argument = argv[i];
        if (argument == "--help" || argument == "-h") {
            options.help = true;
            return "";
        }
        if (Takes_Value(argument)) {
            if (i + 1 == argc) return std::string(argument) + " needs a value";
            const std::string fault = Take_Value(argument, argv[++i], options);
            if (!fault.empty()) return fault;
            has_seed = has_seed || argument == "--seed";
        } else if (argument.starts_with('-')) {
            return "unknown option " + std::string(argument);
        } else if (!options.folder.empty()) {
            return "more than one folder";
        } else {
            options.folder = argument;
        }
    }
    if (options.folder.empty()) return "no folder to write to";
    if (has_seed && !options.airports) return "--seed goes with --airports";
    return "";
}

}  // namespace world
