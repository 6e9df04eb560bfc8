#include "tools/world_folder.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <memory>
#include <span>
#include <system_error>

#include "tools/scenery_file.h"

namespace world {

namespace fs = std::filesystem;

namespace {

constexpr const char* Marker_File = "made-by-make_world.txt";
constexpr const char* Marker_Text =
    "This folder was written by make_world, which may replace all of it.\n";

// What a world that was written here may hold at its top; anything else is somebody's own.
constexpr std::array<std::string_view, 5> Own_Names = {Marker_File, "fs2002.exe", "scenery.cfg",
                                                       "Scenery", "Addon Scenery"};

struct Area {
    const char* title;
    const char* local;   // as scenery.cfg has it; empty for an area that lies elsewhere
    const char* folder;  // of its scenery files, relative to the main folder, as on the disk
    const char* remote;
};

// Letter cases differ between list and disk, as they do in an installed simulator.
constexpr Area All_Areas[] = {
    {"Base Scenery", "Scenery", "Scenery", ""},
    {"North America West", R"(Scenery\NAmW)", "Scenery/NAMW/Scenery", ""},
    {"North America East", R"(scenery\name)", "Scenery/NAmE/scenery", ""},
    {"South America", R"(Scenery\SAme)", "Scenery/Same/Scenery", ""},
    {"Europe", R"(SCENERY\EURW\SCENERY)", "Scenery/EurW/Scenery", ""},
    {"Africa", R"(Scenery\Afri)", "Scenery/AFRI/SCENERY", ""},
    {"Asia", "Scenery/Asia", "Scenery/Asia/Scenery", ""},
    {"Pacific", R"(Scenery\Ocea)", "Scenery/Ocea/Scenery", ""},
    {"Scenery on Another Machine", "", "", R"(\\elsewhere\scenery)"},
    {"Addon Scenery", "Addon Scenery", "Addon Scenery/Scenery", ""},
};

// Boxes of places by area; the first that holds a place wins, and the last holds them all.
struct Box {
    std::size_t area;
    double south, north, west, east;
};

constexpr Box Boxes[] = {
    {7, -90, 30, -180, -140}, {1, 12, 90, -180, -100}, {2, 12, 90, -100, -30},
    {3, -90, 12, -140, -30},  {4, 35, 90, -30, 60},    {5, -90, 35, -30, 52},
    {6, 0, 90, 52, 180},      {7, -90, 90, -180, 180},
};

// The index of the area whose files hold an airport at that place.
std::size_t Area_Of(Position position) {
    for (const Box& box : Boxes) {
        if (position.lat >= box.south && position.lat <= box.north && position.lon >= box.west &&
            position.lon <= box.east) {
            return box.area;
        }
    }
    return 0;
}

std::string Scenery_Cfg() {
    std::string text =
        "[General]\r\nTitle=FS2002 World Scenery\r\n"
        "Description=A world of airports to try charts with\r\nClean_on_Exit=TRUE\r\n";
    int number = 0;
    for (const Area& area : All_Areas) {
        char section[256];
        ++number;
        std::snprintf(section, sizeof section,
                      "\r\n[Area.%03d]\r\nTitle=%s\r\nTexture_ID=%d\r\nLocal=%s\r\nRemote=%s\r\n"
                      "Active=TRUE\r\nRequired=%s\r\nLayer=%d\r\n",
                      number, area.title, number, area.local, area.remote,
                      number == 1 ? "TRUE" : "FALSE", number);
        text += section;
    }
    return text;
}

/// A scenery file of a world: where it lies and what is in it.
struct World_File {
    std::size_t area = 0;  // index in `All_Areas`
    std::string name;
    std::span<const Airport_Facts> airports;
    std::span<const Airspace_Facts> airspaces;
};

// apt0001.bgl, APT0002.BGL, ...: installed scenery mixes letter cases.
std::string File_Name(bool is_of_airports, std::size_t number) {
    const char* const forms[] = {"bnd%04zu.bgl", "BND%04zu.BGL", "apt%04zu.bgl", "APT%04zu.BGL"};
    char name[32];
    std::snprintf(name, sizeof name, forms[(is_of_airports ? 2 : 0) + (number % 2 == 0 ? 1 : 0)],
                  number);
    return name;
}

/// The airports have to be in the order of their areas. The files point into `world`.
std::vector<World_File> Airport_Files(const World& world) {
    std::vector<World_File> files;
    std::span<const Airport_Facts> rest = world.airports;
    while (!rest.empty()) {
        const std::size_t area = Area_Of(rest.front().position);
        const auto most = std::min(static_cast<std::size_t>(world.airports_of_file), rest.size());
        std::size_t count = 1;
        while (count < most && Area_Of(rest[count].position) == area)
            ++count;
        files.push_back({area, File_Name(true, files.size() + 1), rest.first(count), {}});
        rest = rest.subspan(count);
    }
    return files;
}

/// Deals out the airspaces too. Of the files that hold some every second one holds airports, as far
/// as there are such; the others are in the first area.
std::vector<World_File> Plan_Files(const World& world) {
    std::vector<World_File> files = Airport_Files(world);
    const std::size_t airport_files = files.size();
    const auto shares = static_cast<std::size_t>(world.airspace_files);
    const std::size_t mixed = std::min(shares / 2, airport_files);
    const std::size_t alone = shares - mixed;
    const std::span<const Airspace_Facts> all = world.airspaces;
    for (std::size_t i = 0; i < shares; ++i) {
        const std::size_t first = all.size() * i / shares;
        const auto airspaces = all.subspan(first, all.size() * (i + 1) / shares - first);
        if (i < alone) {
            files.push_back({0, File_Name(false, i + 1), {}, airspaces});
        } else {
            files[(i - alone) * airport_files / mixed].airspaces = airspaces;
        }
    }
    return files;
}

std::string Fault(const char* action, const fs::path& path, const std::error_code& error) {
    return std::string("cannot ") + action + " " + path.string() + ": " + error.message();
}

std::error_code Last_Error() {
    return {errno, std::generic_category()};
}

using File = std::unique_ptr<std::FILE, int (*)(std::FILE*)>;

File Open(const fs::path& path, const char* mode) {
    return {std::fopen(path.string().c_str(), mode), std::fclose};
}

std::string Write_File(const fs::path& path, const std::string& bytes) {
    const File file = Open(path, "wb");
    // A full disk may show only with the last bytes.
    const bool is_written =
        file && std::fwrite(bytes.data(), 1, bytes.size(), file.get()) == bytes.size() &&
        std::fflush(file.get()) == 0;
    return is_written ? "" : Fault("write", path, Last_Error());
}

/// Empties a folder that holds nothing but a world of ours; refuses any other that holds something.
std::string Empty_Folder(const fs::path& folder) {
    std::error_code error;
    std::vector<fs::path> entries;
    for (fs::directory_iterator entry(folder, error), end; !error && entry != end;
         entry.increment(error)) {
        entries.push_back(entry->path());
    }
    if (error) return Fault("read", folder, error);
    if (entries.empty()) return "";
    if (!fs::is_regular_file(folder / Marker_File, error)) {
        return folder.string() + " is not empty, and no world made by this program is in it";
    }
    for (const fs::path& entry : entries) {
        if (std::ranges::find(Own_Names, entry.filename().string()) == Own_Names.end()) {
            return entry.string() + " is no part of a world made by this program; move it away";
        }
    }
    for (const fs::path& entry : entries) {
        fs::remove_all(entry, error);
        if (error) return Fault("remove", entry, error);
    }
    return "";
}

}  // namespace

std::string Read_File(const fs::path& path, std::string& bytes) {
    const File file = Open(path, "rb");
    char part[4096];
    while (file) {
        const std::size_t count = std::fread(part, 1, sizeof part, file.get());
        bytes.append(part, count);
        if (count < sizeof part) break;
    }
    return file && std::ferror(file.get()) == 0 ? "" : Fault("read", path, Last_Error());
}

std::string Prepare_Folder(const fs::path& folder) {
    std::error_code error;
    fs::create_directories(folder, error);
    if (error) return Fault("create", folder, error);
    const std::string fault = Empty_Folder(folder);
    return fault.empty() ? Write_File(folder / Marker_File, Marker_Text) : fault;
}

std::string Write_World(const fs::path& folder, World world) {
    std::ranges::stable_sort(
        world.airports, {}, [](const Airport_Facts& airport) { return Area_Of(airport.position); });
    for (const Area& area : All_Areas) {
        std::error_code error;
        fs::create_directories(folder / area.folder, error);
        if (error) return Fault("create", folder / area.folder, error);
    }
    std::string fault;
    for (const World_File& file : Plan_Files(world)) {
        if (!fault.empty()) return fault;
        fault = Write_File(folder / All_Areas[file.area].folder / file.name,
                           Scenery_File(file.airports, file.airspaces));
    }
    if (fault.empty()) {
        fault = Write_File(folder / "Scenery" / "magdec.bgl", Magdec_File(world.variation));
    }
    if (fault.empty()) fault = Write_File(folder / "scenery.cfg", Scenery_Cfg());
    if (fault.empty()) fault = Write_File(folder / "fs2002.exe", "");
    return fault;
}

}  // namespace world
