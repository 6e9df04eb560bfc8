#include "app/startup.h"

#include "app/form1.h"
#include "app/form2.h"
#include "app/messages.h"
#include "app/settings.h"
#include "platform/program.h"
#include "scenery/tables.h"
#include "selection/form3.h"

namespace skerrand {

namespace {

/// False if the folder has a name that the program's texts cannot hold.
bool Take_Working_Folder() {
    app_path = platform::Current_Folder();
    if (app_path.empty()) return false;
    if (app_path.back() == '\\' || app_path.back() == '/') app_path.pop_back();
    return true;
}

void Begin_Setup() {
    Delete_Own_Files();
    first_run = true;
    platform::Unload(form1::window);
    platform::Show(form2::window);
}

}  // namespace

void Decide_Start() {
    if (!Take_Working_Folder()) {
        Show_Message(
            "The name of the folder that Skerrand was started in has characters that it cannot "
            "use. Please start it in another folder.",
            platform::Icon::Critical);
        platform::End_Program();
        return;
    }
    for (const char* name : {Settings_File, Airports_File, Airspaces_File})
        platform::Remove_Leftovers(Own_File(name));
    if (!All_Own_Files_Exist()) {
        Begin_Setup();
        return;
    }
    if (!Load_Settings(Settings_File)) {
        Show_Message("The settings file " + Own_File(Settings_File) +
                         " is damaged. Please choose your Flight Simulator's folder again; the "
                         "database of airports will be created anew.",
                     platform::Icon::Exclamation);
        Begin_Setup();
        return;
    }
    first_run = false;
    airport_count = settings.airport_count;
    airspace_file_count = settings.airspace_file_count;
    platform::Unload(form1::window);
    platform::Show(form3::window);
}

}  // namespace skerrand
