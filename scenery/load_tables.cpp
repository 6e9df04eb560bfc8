#include "scenery/load_tables.h"

#include <algorithm>
#include <string>
#include <vector>

#include "app/messages.h"
#include "app/settings.h"
#include "platform/controls.h"
#include "platform/program.h"
#include "platform/timers.h"
#include "scenery/database.h"
#include "scenery/magnetic.h"
#include "scenery/scan.h"
#include "scenery/tables.h"
#include "selection/form3.h"
#include "selection/picker.h"

namespace skerrand {

namespace {

void Stand_Ready() {
    form3::Set_Status(form3::Done);
    form3::Set_Input_Enabled(true);
}

/// Each run tells once that headings will be true ones.
void Load_Grid() {
    static bool told = false;
    const Magdec_Result result = Load_Magdec(fs_root + "\\scenery\\magdec.bgl");
    if (told || result == Magdec_Result::Loaded || result == Magdec_Result::No_Grid) return;
    told = true;
    const bool missing = result == Magdec_Result::Missing;
    Show_Message("The file " + fs_root + "\\scenery\\magdec.bgl " +
                     (missing ? "cannot be read" : "is damaged") +
                     ". Skerrand goes on without the magnetic variation: all headings and courses "
                     "will be true ones.",
                 platform::Icon::Exclamation);
}

/// A database that is missing or does not read back whole is built anew.
void Rebuild(const char* file) {
    Show_Message("The database file " + Own_File(file) +
                     " is missing or damaged. Now this program will create it anew from the "
                     "scenery. This process can take a few minutes, please wait.",
                 platform::Icon::Exclamation);
    first_run = true;
    platform::Delete_File(Own_File(Airports_File));
    platform::Delete_File(Own_File(Airspaces_File));
    Prepare_Scan(false);
}

void Read_Tables() {
    database_ready = true;
    platform::Stop_Timer(form3::Read_Sceneries_Paths);
    form3::Set_Status("Reading Database File...");
    if (!Read_Airport_Table()) {
        Rebuild(Airports_File);
        return;
    }
    form3::Set_Status("Reading Airspaces Files List...");
    if (!Read_Airspace_List()) {
        Rebuild(Airspaces_File);
        return;
    }
    Fill_Lists();
    Stand_Ready();
}

/// Writes the tables and the counts; answers the reason of the first failure, with the file's name.
std::string Write_Files() {
    form3::Set_Status("Creating Database Files...");
    std::string reason = Write_Airport_Table();
    if (!reason.empty()) return Own_File(Airports_File) + " cannot be written: " + reason;
    form3::Set_Status("Creating Airspaces Files List...");
    reason = Write_Airspace_List();
    if (!reason.empty()) return Own_File(Airspaces_File) + " cannot be written: " + reason;
    form3::Set_Status("Updating Configuration...");
    if (!platform::File_Exists(Own_File(Settings_File))) return {};
    settings.airport_count = airport_count;
    settings.airspace_file_count = airspace_file_count;
    reason = Save_Settings();
    if (!reason.empty()) return Own_File(Settings_File) + " cannot be written: " + reason;
    return {};
}

}  // namespace

void Fill_Lists() {
    form3::Set_Status("Adding Airports to List...");
    std::vector<std::string> entries;
    entries.reserve(airport_table.size());
    for (const Airport_Info& airport : airport_table)
        entries.push_back(List_Entry(airport));
    std::sort(entries.begin(), entries.end());  // once for the two lists, which are sorted
    platform::Add_Entries(form3::Combo1, entries);
    platform::Add_Entries(form3::Combo2, entries);
}

void Read_Sceneries_Paths_Timer() {
    form3::Set_Input_Enabled(false);
    form3::Set_Status("Magdec.bgl File");
    Load_Grid();
    if (first_run) {
        Prepare_Scan(true);
    } else {
        Read_Tables();
    }
}

bool Store_Tables() {
    const std::string failure = Write_Files();
    if (!failure.empty()) {
        platform::Delete_File(Own_File(Airports_File));
        platform::Delete_File(Own_File(Airspaces_File));
        Show_Message("The file " + failure +
                         ". The program will end. Please make the folder writable, or make room "
                         "in it, and start the program again.",
                     platform::Icon::Critical);
        platform::End_Program();
        return false;
    }
    Show_Message(
        "The Database File was created successfully!. Now this program will add all airports to "
        "the list, please wait.",
        platform::Icon::Information);
    Fill_Lists();
    database_ready = true;
    first_run = false;
    Stand_Ready();
    return true;
}

}  // namespace skerrand
