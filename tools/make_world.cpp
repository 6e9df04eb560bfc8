#include <cerrno>
#include <cstring>
#include <fstream>
#include <iostream>
#include <iterator>
#include <utility>

#include "tools/demo_airports.h"
#include "tools/demo_airspaces.h"
#include "tools/invented_airports.h"
#include "tools/invented_airspaces.h"
#include "tools/options.h"
#include "tools/world_folder.h"

// Writes worlds to try Skerrand with: the demonstration world, and invented ones of any size.

namespace {

namespace fs = std::filesystem;

// Real airports lie few to a file, so that several files take part; invented ones as many as make
// some hundred files of a world of 27,000.
constexpr int Real_Airports_Of_File = 4;
constexpr int Invented_Airports_Of_File = 80;

constexpr int Real_Airspace_Files = 8;

std::string Read_Text(const fs::path& file, std::string& text) {
    std::ifstream stream(file, std::ios::binary);
    if (stream) text.assign(std::istreambuf_iterator<char>(stream), {});
    if (stream) return "";
    return "cannot read " + file.string() + ": " + std::strerror(errno);
}

std::string Read_Variation(const fs::path& file, world::Coarse_Grid& grid) {
    std::string text;
    std::string fault = Read_Text(file, text);
    if (!fault.empty()) return fault + "; --data tells where the facts lie";
    fault = world::Parse_Magnetic_Grid(text, grid);
    return fault.empty() ? "" : file.string() + ": " + fault;
}

std::string Read_Airports(const fs::path& file, std::vector<world::Airport_Facts>& airports) {
    std::string text;
    std::string fault = Read_Text(file, text);
    if (!fault.empty()) return fault;
    fault = world::Parse_Airports(text, airports);
    return fault.empty() ? "" : file.string() + ": " + fault;
}

std::string Make_World(const world::Options& options) {
    const fs::path data = options.data;
    world::World made;
    std::string fault = Read_Variation(data / "magnetic_variation.txt", made.variation);
    if (!fault.empty()) return fault;
    if (options.airports) {
        made.airports = world::Invent_Airports(*options.airports, options.seed);
        made.airports_of_file = Invented_Airports_Of_File;
        const int airspaces = world::Airspaces_For(*options.airports);
        made.airspaces = world::Invent_Airspaces(made.airports, airspaces);
        made.airspace_files = world::Airspace_Files_For(*options.airports);
    } else {
        fault = Read_Airports(data / "demo_airports.txt", made.airports);
        made.airports_of_file = Real_Airports_Of_File;
        if (!fault.empty()) return fault;
        made.airspaces = world::Demo_Airspaces(made.airports);
        made.airspace_files = Real_Airspace_Files;
    }
    fault = world::Prepare_Folder(options.folder);
    return fault.empty() ? world::Write_World(options.folder, std::move(made)) : fault;
}

}  // namespace

int main(int argc, char** argv) {
    world::Options options;
    options.data = SKERRAND_DATA_DIR;
    std::string fault = world::Parse_Options(argc, argv, options);
    if (!fault.empty()) {
        std::cerr << "make_world: " << fault << "\nmake_world --help tells more.\n";
        return 2;
    }
    if (options.help) {
        std::cout << world::Help_Text;
        return 0;
    }
    fault = Make_World(options);
    if (fault.empty()) return 0;
    std::cerr << "make_world: " << fault << "\n";
    return 1;
}
