#include "tools/world_folder.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>
#include <system_error>

#include "tools/airport_block.h"
#include "tools/world_areas.h"

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
    std::unique_ptr<std::FILE, Closer> stream(std::fopen(file.c_str(), "wb"));
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

// apt0001.bgl, APT0002.BGL, ...: installed scenery mixes letter cases.
std::string File_Name(int number) {
    std::string digits = std::to_string(number);
    digits.insert(0, digits.size() < 4 ? 4 - digits.size() : 0, '0');
    return number % 2 == 0 ? "APT" + digits + ".BGL" : "apt" + digits + ".bgl";
}

std::string Write_Area(const fs::path& folder, const std::vector<Airport_Facts>& airports,
                       std::size_t of_file, int& file_number) {
    for (std::size_t first = 0; first < airports.size(); first += of_file) {
        const std::span<const Airport_Facts> rest = std::span(airports).subspan(first);
        const Bytes bytes = Airports_File(rest.first(std::min(of_file, rest.size())));
        const std::string fault = Write_File(folder / File_Name(++file_number), bytes);
        if (!fault.empty()) return fault;
    }
    return "";
}

std::string Write_Areas(const fs::path& folder, const World& world) {
    std::vector<std::vector<Airport_Facts>> by_area(Areas().size());
    for (const Airport_Facts& airport : world.airports) {
        by_area[Area_Of(airport.position)].push_back(airport);
    }
    int file_number = 0;
    for (std::size_t i = 0; i < by_area.size(); ++i) {
        if (Areas()[i].folder[0] == '\0') continue;
        const fs::path area_folder = folder / Areas()[i].folder;
        std::error_code error;
        fs::create_directories(area_folder, error);
        if (error) return Fault("create", area_folder, error.message());
        const auto of_file = static_cast<std::size_t>(world.airports_of_file);
        const std::string fault = Write_Area(area_folder, by_area[i], of_file, file_number);
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

std::string Write_World(const fs::path& folder, const World& world) {
    std::string fault = Write_Areas(folder, world);
    if (fault.empty()) {
        fault = Write_File(folder / "Scenery" / "magdec.bgl", Magdec_File(world.variation));
    }
    if (fault.empty()) fault = Write_File(folder / List_File, Scenery_Cfg());
    if (fault.empty()) fault = Write_File(folder / Simulator_File, "");
    return fault;
}

}  // namespace world
