#include "app/form1.h"

#include "app/form2.h"
#include "app/settings.h"
#include "platform/message_box.h"
#include "platform/program.h"
#include "platform/timers.h"
#include "scenery/database.h"
#include "selection/form3.h"

namespace skerrand::form1 {

namespace {

using platform::Control;
using enum platform::Control_Kind;

void Timer1_Timer();

constexpr Control controls[] = {
    // 320 by 240 pixels at 15 twips each; the window cuts its last columns off.
    {.name = "Picture1",
     .kind = Picture,
     .at = {0, 0, 4800, 3600},
     .spoken = "Chart of an airport"},
    {.name = "Label1",
     .kind = Label,
     .at = {120, 120, 4335, 855},
     .caption = "SKERRAND VERSION 2.0",
     .transparent = true,
     .font = {"MS Sans Serif", 18, true}},
    {.name = "Timer1", .kind = Timer, .handler = Timer1_Timer, .interval = 3000},
};

}  // namespace

constexpr platform::Window window = {.name = "Form1",
                                     .caption = "Skerrand",
                                     .client_width = 4680,
                                     .client_height = 3555,
                                     .controls = controls,
                                     .frame = platform::Frame_Style::Splash};

namespace {

constexpr auto Timer1 = platform::Find_Control(window, "Timer1");

/// The three files of the program live and die together: if one is missing, or the settings are
/// damaged, the others are deleted.
void Begin_Setup() {
    Delete_Own_Files();
    first_run = true;
    platform::Unload(window);
    platform::Show(form2::window);
}

/// The start-up decision: leaves the splash for setup or, if all is there, for the picker.
void Timer1_Timer() {
    platform::Stop_Timer(Timer1);
    const std::string folder = platform::Current_Folder();
    if (folder.empty()) {
        platform::Message_Box(
            "The name of the folder that Skerrand was started in has characters that it cannot "
            "use. Please start it in another folder.",
            platform::Icon::Critical);
        return platform::End_Program();
    }
    Set_App_Path(folder);
    for (const char* name : {Settings_File, Airports_File, Airspaces_File})
        platform::Remove_Leftovers(Own_File(name));
    if (!All_Own_Files_Exist()) return Begin_Setup();
    const Load_Result result = Load_Settings(Settings_File);
    if (result == Load_Result::Unreadable) {
        platform::Message_Box(
            "The settings file " + Own_File(Settings_File) +
                " cannot be read. The program will end. Please make it readable, or "
                "delete it to choose your Flight Simulator's folder again, and start the "
                "program again.",
            platform::Icon::Critical);
        return platform::End_Program();
    }
    if (result == Load_Result::Damaged) {
        platform::Message_Box(
            "The settings file " + Own_File(Settings_File) +
                " is damaged. Please choose your Flight Simulator's folder again; the "
                "database of airports will be created anew.",
            platform::Icon::Exclamation);
        return Begin_Setup();
    }
    first_run = false;
    airport_count = settings.airport_count;
    airspace_file_count = settings.airspace_file_count;
    platform::Unload(window);
    platform::Show(form3::window);
}

}  // namespace

}  // namespace skerrand::form1
