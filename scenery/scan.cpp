#include "scenery/scan.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string>
#include <vector>

#include "app/form2.h"
#include "app/messages.h"
#include "app/settings.h"
#include "platform/code_page.h"
#include "platform/controls.h"
#include "platform/files.h"
#include "platform/timers.h"
#include "scenery/bgl_reader.h"
#include "scenery/bgl_walk.h"
#include "scenery/catalogue.h"
#include "scenery/database.h"
#include "scenery/load_tables.h"
#include "scenery/magnetic.h"
#include "scenery/tables.h"
#include "selection/form3.h"

namespace skerrand {

namespace {

constexpr const char* Bgl_Ending = ".bgl";

// Where the scan stands.
std::size_t area_index = 0;
std::int32_t bgl_total = 0;
std::string current_folder;
std::vector<std::string> folder_files;
std::size_t next_file = 0;

void Show_Progress(std::int32_t value) {
    platform::Set_Progress(form3::ProgressBar1,
                           {.value = value, .minimum = 0, .maximum = bgl_total + 1});
    platform::Repaint(form3::ProgressBar1);
}

std::vector<std::string> Drive_Entries() {
    std::vector<std::string> entries;
    for (int i = 0; i < platform::Entry_Count(form3::Drive1); ++i) {
        entries.push_back(platform::Entry_Text(form3::Drive1, i));
    }
    return entries;
}

/// Without its list of areas the scenery cannot be scanned: the way on is another folder.
void Go_Back_To_Setup(const std::string& scenery_cfg) {
    platform::Stop_Timer(form3::Read_Sceneries_Paths);
    Show_Message("The file " + scenery_cfg +
                     " cannot be read, so that the scenery cannot be scanned. Please choose the "
                     "main folder of a complete Flight Simulator 2002.",
                 platform::Icon::Critical);
    Delete_Own_Files();
    platform::Unload(form3::window);
    platform::Show(form2::window);
}

/// False if there is no way on.
bool Read_Catalogue() {
    scenery_areas.clear();
    if (sim_version != Version_FS2002) return true;
    form3::Set_Status("Scenery.cfg File");
    const std::string scenery_cfg = fs_root + "\\scenery.cfg";
    if (!Read_Scenery_Cfg(scenery_cfg)) {
        Go_Back_To_Setup(scenery_cfg);
        return false;
    }
    Resolve_Local_Paths(Drive_Entries());
    return true;
}

std::vector<std::string> Bgl_Names(const std::string& folder) {
    return platform::File_Names(folder, Bgl_Ending).value_or(std::vector<std::string>());
}

void Count_Files() {
    bgl_total = 0;
    for (const Scenery_Area& area : scenery_areas) {
        if (area.local.empty()) continue;
        bgl_total += static_cast<std::int32_t>(Bgl_Names(area.local).size());
    }
}

void Clear_Tables() {
    Release_Airport_Table();
    airport_count = 0;
    Release_Airspace_Files();
    airspace_file_count = 0;
}

bool Has_Magic(const std::string& file) {
    std::array<std::uint8_t, Bgl_Magic.size()> bytes{};
    return platform::Read_File_Part(file, Magic_Offset, bytes) && bytes == Bgl_Magic;
}

/// A file that cannot be read is passed over; the bar counts it all the same.
void Scan_File(const std::string& name) {
    current_file = platform::Lower_Case(current_folder + "\\" + name);
    if (Has_Magic(current_file) && platform::Read_File(current_file, bgl_bytes, 1)) Walk_Bgl();
    Show_Progress(platform::Progress_Of(form3::ProgressBar1).value + 1);
}

}  // namespace

void Prepare_Scan(bool tell_first_run) {
    database_ready = false;
    if (!Read_Catalogue()) return;
    Count_Files();
    Show_Progress(0);
    area_index = 0;
    current_folder.clear();
    current_file.clear();
    Clear_Tables();
    platform::Stop_Timer(form3::Read_Sceneries_Paths);
    platform::Set_Interval(form3::Read_Sceneries_Paths, 0);
    if (tell_first_run) {
        Show_Message(
            "This is the first time you run this program. Now this program will create a database "
            "file of all the airports of the FS2002 world. This process can take a few minutes, "
            "please wait.",
            platform::Icon::Information);
    }
    platform::Start_Timer(form3::Scan_Bgls);
}

void Scan_Bgls_Timer() {
    if (area_index >= scenery_areas.size()) {
        platform::Stop_Timer(form3::Scan_Bgls);
        platform::Set_Interval(form3::Scan_Bgls, 0);
        platform::Bytes(1).swap(bgl_bytes);
        if (Store_Tables()) Show_Progress(0);
        return;
    }
    const Scenery_Area& area = scenery_areas[area_index];
    if (area.local.empty()) {
        ++area_index;
        return;
    }
    form3::Set_Status(area.title.c_str());
    if (area.local != current_folder) {
        current_folder = area.local;
        folder_files = Bgl_Names(current_folder);
        next_file = 0;
    }
    if (next_file == folder_files.size()) {
        ++area_index;
        return;
    }
    Scan_File(folder_files[next_file++]);
}

}  // namespace skerrand
