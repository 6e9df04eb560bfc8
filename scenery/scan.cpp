#include "scenery/scan.h"

#include <cstddef>
#include <set>
#include <vector>

#include "app/settings.h"
#include "platform/files.h"
#include "scenery/bgl_reader.h"
#include "scenery/bgl_walk.h"
#include "scenery/database.h"

namespace skerrand {

namespace {

// Where the scan stands.
std::size_t area_index = 0;
std::string current_folder;
std::vector<std::string> folder_files;
std::size_t next_file = 0;
Unread_Files unread;
std::set<std::string> unread_paths;

/// Two areas may share a folder.
void Note_Unread(const std::string& path) {
    if (!unread_paths.insert(path).second) return;
    if (unread.count++ == 0) unread.first = path;
}

void Open_Folder(const std::string& folder) {
    current_folder = folder;
    next_file = 0;
    const auto names = platform::File_Names(folder, Bgl_Ending);
    if (!names) Note_Unread(folder);
    folder_files = names.value_or(std::vector<std::string>());
}

}  // namespace

std::optional<int> Prepare_Scan(std::span<const std::string> drive_entries) {
    database_ready = false;
    scenery_areas.clear();
    if (sim_version == Version_FS2002) {
        if (!Read_Scenery_Cfg(fs_root + "\\scenery.cfg")) return std::nullopt;
        Resolve_Local_Paths(drive_entries);
    }
    std::size_t files = 0;
    for (const Scenery_Area& area : scenery_areas) {
        if (area.local.empty()) continue;
        if (const auto names = platform::File_Names(area.local, Bgl_Ending)) files += names->size();
    }
    area_index = 0;
    current_folder.clear();
    current_file.clear();
    unread = {};
    unread_paths.clear();
    Release_Airport_Table();
    airport_count = 0;
    Release_Airspace_Files();
    airspace_file_count = 0;
    return static_cast<int>(files);
}

const Scenery_Area* Area_In_Hand() {
    return area_index < scenery_areas.size() ? &scenery_areas[area_index] : nullptr;
}

bool Scan_Next_File() {
    const std::string& folder = scenery_areas[area_index].local;
    if (!folder.empty() && folder != current_folder) Open_Folder(folder);
    // The files of an area in the folder of the one before it have been read by then.
    if (folder.empty() || next_file == folder_files.size()) {
        ++area_index;
        return false;
    }
    const std::string path = current_folder + "\\" + folder_files[next_file++];
    if (!Walk_File(path)) Note_Unread(path);
    return true;
}

const Unread_Files& Unread_In_Scan() {
    return unread;
}

}  // namespace skerrand
