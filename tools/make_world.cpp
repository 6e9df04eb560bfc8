#include <charconv>
#include <cstdio>
#include <optional>
#include <string_view>
#ifdef _WIN32
#include <windows.h>
#endif

#include "tools/moved_airports.h"
#include "tools/world_folder.h"

// Writes worlds to try Skerrand with: the demonstration world, and larger ones of any size.

namespace {

namespace fs = std::filesystem;

// Real airports lie few to a file, so that several files take part; moved ones as many as make some
// hundred files of a world of 27,000.
constexpr int Real_Airports_Of_File = 4;
constexpr int Real_Airspace_Files = 8;
constexpr int Moved_Airports_Of_File = 80;
constexpr int Moved_Airspaces_Of_File = 80;

constexpr const char* Help_Text =
    R"(Usage: make_world FOLDER [--data DIR] [--airports N]

Writes a simulator's main folder that Skerrand can read: fs2002.exe (an empty
marker), scenery.cfg, the magnetic grid and scenery files with airports and
airspaces. FOLDER is created; if it holds a world that make_world wrote, that
one is replaced, and any other folder that is not empty is refused.

  --data DIR    where the facts lie (demo_airports.txt, magnetic_variation.txt)
                if not where they came with this program
  --airports N  N airports that do not exist instead of the real ones, at most
                456976: the real ones with other names at other places, most of
                them cut down to a strip, and airspaces in proportion
  --help        show this text

Exit status: 0 if the world was written, 1 if not, 2 if the command line is wrong.
)";

struct Options {
    std::string folder;
    fs::path data;
    std::optional<int> airports;
    bool help = false;
};

/// Answers an empty text or what is wrong with the command line.
std::string Take_Value(std::string_view option, std::string_view value, Options& options) {
    if (option == "--data") {
        options.data = value;
        return "";
    }
    int count = -1;
    const char* const end = value.data() + value.size();
    const bool is_number = std::from_chars(value.data(), end, count).ptr == end;
    options.airports = count;
    if (is_number && count >= 0 && count <= world::Most_Moved_Airports) return "";
    return "--airports takes a number from 0 to " + std::to_string(world::Most_Moved_Airports);
}

std::string Parse_Options(int argc, const char* const* argv, Options& options) {
    for (int i = 1; i < argc; ++i) {
        const std::string_view argument = argv[i];
        std::string fault;
        if (argument == "--help" || argument == "-h") {
            options.help = true;
            return "";
        }
        if (argument == "--data" || argument == "--airports") {
            if (i + 1 == argc) return std::string(argument) + " needs a value";
            fault = Take_Value(argument, argv[++i], options);
        } else if (argument.starts_with('-')) {
            fault = "unknown option " + std::string(argument);
        } else if (!options.folder.empty()) {
            fault = "more than one folder";
        } else {
            options.folder = argument;
        }
        if (!fault.empty()) return fault;
    }
    return options.folder.empty() ? "no folder to write to" : "";
}

std::string Make_World(const Options& options) {
    const fs::path variation = options.data / "magnetic_variation.txt";
    const fs::path airports = options.data / "demo_airports.txt";
    std::string variation_text;
    std::string airports_text;
    world::World made;
    std::string fault = world::Read_File(variation, variation_text);
    if (fault.empty()) fault = world::Read_File(airports, airports_text);
    if (!fault.empty()) return fault + "; --data tells where the facts lie";
    fault = world::Parse_Magnetic_Grid(variation_text, made.variation);
    if (!fault.empty()) return variation.string() + ": " + fault;
    fault = world::Parse_Airports(airports_text, made.airports);
    if (!fault.empty()) return airports.string() + ": " + fault;

    if (options.airports) made.airports = world::Moved_Airports(made.airports, *options.airports);
    made.airspaces = world::Airspaces_Of(made.airports);
    made.airports_of_file = options.airports ? Moved_Airports_Of_File : Real_Airports_Of_File;
    made.airspace_files =
        options.airports ? static_cast<int>(made.airspaces.size()) / Moved_Airspaces_Of_File + 1
                         : Real_Airspace_Files;
    fault = world::Prepare_Folder(options.folder);
    return fault.empty() ? world::Write_World(options.folder, std::move(made)) : fault;
}

int Fail(const std::string& fault, int status) {
    std::fputs(("make_world: " + fault + "\n").c_str(), stderr);
    return status;
}

/// This program's own file: found by its name alone it does not learn that from the command line.
fs::path Self([[maybe_unused]] const char* name) {
#ifdef _WIN32
    wchar_t self[MAX_PATH] = L"";
    GetModuleFileNameW(nullptr, self, MAX_PATH);
    return self;
#else
    std::error_code unknown;
    const fs::path self = fs::read_symlink("/proc/self/exe", unknown);
    return unknown ? fs::path(name) : self;
#endif
}

}  // namespace

int main(int argc, char** argv) {
    Options options;
    const fs::path folder = Self(argv[0]).parent_path();
    options.data = folder / "data";
    // As it is installed on Linux.
    if (!fs::exists(options.data)) options.data = folder.parent_path() / "share/skerrand";
    std::string fault = Parse_Options(argc, argv, options);
    if (!fault.empty()) return Fail(fault + "\nmake_world --help tells more.", 2);
    if (options.help) {
        std::fputs(Help_Text, stdout);
        return 0;
    }
    fault = Make_World(options);
    return fault.empty() ? 0 : Fail(fault, 1);
}
