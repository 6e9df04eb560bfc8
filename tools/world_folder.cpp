#include "tools/world_folder.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>
#include <system_error>

#include "tools/airport_block.h"
#include "tools/airspace_block.h"
#include "tools/world_areas.h"
#include "tools/world_files.h"

namespace world {

namespace fs = std::filesystem;

namespace {

constexpr const char* Marker_File = "made-by-make_world.txt";
constexpr const char* Simulator_File = "fs2002.exe";
constexpr const char* List_File = "scenery.cfg";
constexpr std::string_view Marker_Text =
    "This folder was written by make_world, which may replace all of it.\n";

// What a world that was written here may hold at its top; anything else is somebody's own.
constexpr std::string_view Own_Names[] = {Marker_File, Simulator_File, List_File, "Scenery",
                                          "Addon Scenery"};

bool Is_Own_Name(const std::string& name) {
    for (const std::string_view own : Own_Names) {
        if (name == own) return true;
    }
    return false;
}

std::string Fault(const char* action, const fs::path& path, const std::string& reason) {
    return std::string("cannot ") + action + " " + path.string() + ": " + reason;
}

std::string Write_File(const fs::path& file, std::string_view text) {
    struct Closer {
        void operator()(std::FILE* stream) const { std::fclose(stream); }
    };
    std::unique_ptr<std::FILE, Closer> stream(std::fopen(file.string().c_str(), "wb"));
    if (!stream) return Fault("create", file, std::strerror(errno));
    const bool written = std::fwrite(text.data(), 1, text.size(), stream.get()) == text.size();
    // A full disk may show only now.
    if (!written || std::fflush(stream.get()) != 0) {
        return Fault("write", file, std::strerror(errno));
    }
    return "";
}

std::string Write_File(const fs::path& file, const Bytes& bytes) {
    return Write_File(file, {reinterpret_cast<const char*>(bytes.data()), bytes.size()});
}

// Empties a folder that holds nothing but a world of ours; refuses any other that holds something.
std::string Empty_Folder(const fs::path& folder) {
    std::error_code error;
    std::vector<fs::path> entries;
    for (fs::directory_iterator entry(folder, error), end; !error && entry != end;
         entry.increment(error)) {
        entries.push_back(entry->path());
    }
    if (error) return Fault("read", folder, error.message());
    if (entries.empty()) return "";
    if (!fs::is_regular_file(folder / Marker_File, error)) {
        return folder.string() + " is not empty, and no world made by this program is in it";
    }
    for (const fs::path& entry : entries) {
        if (!Is_Own_Name(entry.filename().string())) {
            return entry.string() + " is no part of a world made by this program; move it away";
        }
    }
    for (const fs::path& entry : entries) {
        fs::remove_all(entry, error);
        if (error) return Fault("remove", entry, error.message());
    }
    return "";
}

// Two groups, for readers have to go on from one to the next.
constexpr std::size_t Airspace_Groups = 2;

std::string Make_Area_Folders(const fs::path& folder) {
    for (const Area& area : Areas()) {
        if (area.folder[0] == '\0') continue;
        std::error_code error;
        fs::create_directories(folder / area.folder, error);
        if (error) return Fault("create", folder / area.folder, error.message());
    }
    return "";
}

std::string Write_Scenery(const fs::path& folder, const World& world) {
    for (const World_File& file : Plan_Files(world)) {
        Bytes bytes = Airports_File(file.airports);
        Put_Airspace_Section(bytes, file.airspaces, Airspace_Groups);
        const std::string fault = Write_File(folder / Areas()[file.area].folder / file.name, bytes);
        if (!fault.empty()) return fault;
    }
    return "";
}

}  // namespace

std::string Prepare_Folder(const fs::path& folder) {
    std::error_code error;
    fs::create_directories(folder, error);
    if (error) return Fault("create", folder, error.message());
    const std::string fault = Empty_Folder(folder);
    return fault.empty() ? Write_File(folder / Marker_File, Marker_Text) : fault;
}

std::string Write_World(const fs::path& folder, World world) {
    Order_By_Area(world.airports);
    std::string fault = Make_Area_Folders(folder);
    if (fault.empty()) fault = Write_Scenery(folder, world);
    if (fault.empty()) {
        fault = Write_File(folder / "Scenery" / "magdec.bgl", Magdec_File(world.variation));
    }
    if (fault.empty()) fault = Write_File(folder / List_File, Scenery_Cfg());
    if (fault.empty()) fault = Write_File(folder / Simulator_File, "");
    return fault;
}

}  // namespace world
