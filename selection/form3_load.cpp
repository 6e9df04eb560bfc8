#include "selection/form3_load.h"

#include <algorithm>
#include <string>
#include <vector>

#include "app/form2.h"
#include "app/settings.h"
#include "platform/controls.h"
#include "platform/files.h"
#include "platform/message_box.h"
#include "platform/program.h"
#include "platform/timers.h"
#include "scenery/bgl_reader.h"
#include "scenery/database.h"
#include "scenery/magnetic.h"
#include "scenery/scan.h"
#include "selection/form3.h"
#include "selection/picks.h"

namespace skerrand::form3 {

namespace {

using platform::Icon;

void Show_Progress(int value, int maximum) {
    platform::Set_Progress(ProgressBar1, {.value = value, .minimum = 0, .maximum = maximum});
    platform::Repaint(ProgressBar1);
}

void Stand_Ready() {
    Set_Status(Done);
    Set_Input_Enabled(true);
}

/// Each run tells once that headings will be true ones.
void Load_Grid() {
    static bool told = false;
    const Magdec_Result result = Load_Magdec(fs_root + "\\scenery\\magdec.bgl");
    if (told || result == Magdec_Result::Loaded || result == Magdec_Result::No_Grid) return;
    told = true;
    const bool missing = result == Magdec_Result::Missing;
    platform::Message_Box(
        "The file " + fs_root + "\\scenery\\magdec.bgl " +
            (missing ? "cannot be read" : "is damaged") +
            ". Skerrand goes on without the magnetic variation: all headings and courses "
            "will be true ones.",
        Icon::Exclamation);
}

void Delete_Databases() {
    platform::Delete_File(Own_File(Airports_File));
    platform::Delete_File(Own_File(Airspaces_File));
}

/// Without its list of areas the scenery cannot be scanned: the way on is another folder.
void Go_Back_To_Setup() {
    platform::Stop_Timer(Read_Sceneries_Paths);
    platform::Message_Box(
        "The file " + fs_root +
            "\\scenery.cfg cannot be read, so that the scenery cannot be scanned. Please "
            "choose the main folder of a complete Flight Simulator 2002.",
        Icon::Critical);
    Delete_Own_Files();
    platform::Unload(window);
    platform::Show(form2::window);
}

void Start_Scan(bool tell_first_run) {
    if (sim_version == Version_FS2002) Set_Status("Scenery.cfg File");
    std::vector<std::string> drives;
    for (int i = 0; i < platform::Entry_Count(Drive1); ++i)
        drives.push_back(platform::Entry_Text(Drive1, i));
    const auto files = Prepare_Scan(drives);
    if (!files) return Go_Back_To_Setup();
    Show_Progress(0, *files + 1);
    platform::Stop_Timer(Read_Sceneries_Paths);
    platform::Set_Interval(Read_Sceneries_Paths, 0);
    if (tell_first_run) {
        platform::Message_Box(
            "This is the first time you run this program. Now this program will create a database "
            "file of all the airports of the FS2002 world. This process can take a few minutes, "
            "please wait.",
            Icon::Information);
    }
    platform::Start_Timer(Scan_Bgls);
}

/// A database that is missing or does not read back whole is built anew.
void Rebuild(const char* file) {
    platform::Message_Box(
        "The database file " + Own_File(file) +
            " is missing or damaged. Now this program will create it anew from the "
            "scenery. This process can take a few minutes, please wait.",
        Icon::Exclamation);
    first_run = true;
    Delete_Databases();
    Start_Scan(false);
}

void Read_Tables() {
    database_ready = true;
    platform::Stop_Timer(Read_Sceneries_Paths);
    Set_Status("Reading Database File...");
    if (!Read_Airport_Table()) return Rebuild(Airports_File);
    Set_Status("Reading Airspaces Files List...");
    if (!Read_Airspace_List()) return Rebuild(Airspaces_File);
    Fill_Lists();
    Stand_Ready();
}

/// Writes the tables and the counts. False if a file cannot be written: the user is told, no
/// database stays, and the program ends.
bool Write_Files() {
    const char* file = Airports_File;
    Set_Status("Creating Database Files...");
    std::string reason = Write_Airport_Table();
    if (reason.empty()) {
        file = Airspaces_File;
        Set_Status("Creating Airspaces Files List...");
        reason = Write_Airspace_List();
    }
    if (reason.empty()) {
        file = Settings_File;
        Set_Status("Updating Configuration...");
        if (platform::File_Exists(Own_File(file))) {
            settings.airport_count = airport_count;
            settings.airspace_file_count = airspace_file_count;
            reason = Save_Settings();
        }
    }
    if (reason.empty()) return true;
    Delete_Databases();
    platform::Message_Box(
        "The file " + Own_File(file) + " cannot be written: " + reason +
            ". The program will end. Please make the folder writable, or make room in it, "
            "and start the program again.",
        Icon::Critical);
    platform::End_Program();
    return false;
}

/// A scan that misses what is there tells so; a file that is damaged costs its rest in silence.
void Tell_Gaps() {
    const Unread_Files& unread = Unread_In_Scan();
    std::string text;
    if (airport_count == 0) text = "No airport was found in the scenery of\r\n" + fs_root + "\r\n";
    if (unread.count > 0) {
        text += std::to_string(unread.count) +
                " of the scenery's files and folders cannot be read, so that the database lacks "
                "what they hold. The first of them is\r\n" +
                unread.first + "\r\n";
    }
    if (text.empty()) return;
    platform::Message_Box(
        text + "To start again, end this program, delete " + Settings_File + ", " + Airports_File +
            " and " + Airspaces_File + " in " + app_path +
            " and start it again; it will then ask for your Flight Simulator's folder and "
            "create its database anew.",
        Icon::Exclamation);
}

void End_Scan() {
    platform::Stop_Timer(Scan_Bgls);
    platform::Set_Interval(Scan_Bgls, 0);
    platform::Bytes().swap(bgl_bytes);
    if (!Write_Files()) return;
    Tell_Gaps();
    platform::Message_Box(
        "The Database File was created successfully!. Now this program will add all airports to "
        "the list, please wait.",
        Icon::Information);
    Fill_Lists();
    database_ready = true;
    first_run = false;
    Stand_Ready();
    Show_Progress(0, platform::Progress_Of(ProgressBar1).maximum);
}

}  // namespace

void Read_Sceneries_Paths_Timer() {
    Set_Input_Enabled(false);
    Set_Status("Magdec.bgl File");
    Load_Grid();
    if (first_run) {
        Start_Scan(true);
    } else {
        Read_Tables();
    }
}

void Scan_Bgls_Timer() {
    const Scenery_Area* area = Area_In_Hand();
    if (!area) return End_Scan();
    if (!area->local.empty()) Set_Status(area->title.c_str());
    if (!Scan_Next_File()) return;
    const platform::Progress before = platform::Progress_Of(ProgressBar1);
    Show_Progress(before.value + 1, before.maximum);
}

void Fill_Lists() {
    Set_Status("Adding Airports to List...");
    std::vector<std::string> entries;
    entries.reserve(airport_table.size());
    for (const Airport_Info& airport : airport_table)
        entries.push_back(List_Entry(airport));
    std::sort(entries.begin(), entries.end());  // once for the two lists, which are sorted
    platform::Add_Entries(Combo1, entries);
    platform::Add_Entries(Combo2, entries);
}

}  // namespace skerrand::form3
