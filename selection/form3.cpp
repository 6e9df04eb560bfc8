#include "selection/form3.h"

#include <string>

#include "app/settings.h"
#include "chart/form4.h"
#include "platform/controls.h"
#include "platform/message_box.h"
#include "platform/program.h"
#include "platform/timers.h"
#include "scenery/database.h"
#include "selection/airspace_search.h"
#include "selection/form3_load.h"
#include "selection/picks.h"

namespace skerrand::form3 {

namespace {

using platform::Control;
using platform::Find_Control;
using enum platform::Control_Kind;

void Form_Load();
void Form_Unload();
void Command2_Click();
void Command3_Click();

constexpr const char* Pick_Hint = "[Type and select an airport from the list]";

constexpr Control controls[] = {
    {.name = "Frame1", .kind = Frame, .at = {120, 120, 4815, 1935}, .caption = "Airports lists"},
    {.name = "Label1",
     .kind = Label,
     .in = "Frame1",
     .at = {120, 480, 1335, 255},
     .caption = "Departure Airport:"},
    {.name = "Combo1",
     .kind = Combo,
     .in = "Frame1",
     .at = {1560, 480, 3135, 315},
     .caption = Pick_Hint,
     .sorted = true},
    {.name = "Label3",
     .kind = Label,
     .in = "Frame1",
     .at = {120, 960, 1455, 255},
     .caption = "Destination Airport:"},
    {.name = "Combo2",
     .kind = Combo,
     .in = "Frame1",
     .at = {1560, 960, 3135, 315},
     .caption = Pick_Hint,
     .sorted = true},
    {.name = "Drive1",
     .kind = Drive,
     .in = "Frame1",
     .at = {1560, 1440, 3135, 315},
     .spoken = "Drive"},
    {.name = "Label2", .kind = Label, .at = {120, 2400, 855, 255}, .caption = "Scanning:"},
    {.name = "Text1", .kind = Text, .at = {960, 2400, 2775, 285}, .caption = "-None-"},
    {.name = "ProgressBar1", .kind = Progress, .at = {120, 2880, 4815, 255}, .spoken = "Progress"},
    {.name = "Command3",
     .kind = Button,
     .at = {1560, 3360, 1575, 495},
     .caption = "GET AIRPORT",
     .handler = Command3_Click},
    {.name = "Command2",
     .kind = Button,
     .at = {3240, 3360, 1695, 495},
     .caption = "CLOSE_PROGRAM",
     .handler = Command2_Click},
    {.name = "Read_Sceneries_Paths",
     .kind = Timer,
     .handler = Read_Sceneries_Paths_Timer,
     .interval = 1000,
     .enabled = false},
    {.name = "Scan_Bgls",
     .kind = Timer,
     .handler = Scan_Bgls_Timer,
     .interval = 5,
     .enabled = false},
};

}  // namespace

constexpr platform::Window window = {.name = "Form3",
                                     .caption = "Choosing an airport",
                                     .client_width = 5115,
                                     .client_height = 3990,
                                     .controls = controls,
                                     .load = Form_Load,
                                     .unload = Form_Unload};

constexpr platform::Control_Ref Combo1 = Find_Control(window, "Combo1");
constexpr platform::Control_Ref Combo2 = Find_Control(window, "Combo2");
constexpr platform::Control_Ref Drive1 = Find_Control(window, "Drive1");
constexpr platform::Control_Ref ProgressBar1 = Find_Control(window, "ProgressBar1");
constexpr platform::Control_Ref Read_Sceneries_Paths = Find_Control(window, "Read_Sceneries_Paths");
constexpr platform::Control_Ref Scan_Bgls = Find_Control(window, "Scan_Bgls");

namespace {

constexpr platform::Control_Ref Command2 = Find_Control(window, "Command2");
constexpr platform::Control_Ref Command3 = Find_Control(window, "Command3");
constexpr platform::Control_Ref Text1 = Find_Control(window, "Text1");

void Form_Load() {
    platform::Start_Timer(Read_Sceneries_Paths);
}

void Command2_Click() {
    Set_Status("Please wait...");
    Release_Airport_Table();
    platform::End_Program();
}

void Show_Search(int done, int files) {
    platform::Set_Progress(ProgressBar1, {.value = done, .minimum = 0, .maximum = files});
    platform::Repaint(ProgressBar1);
    if (done > 0) platform::Repaint(window);
}

void Tell_Unread(const Unread_Files& unread) {
    platform::Message_Box(
        std::to_string(unread.count) + " of the " + std::to_string(airspace_file_count) +
            " scenery files with airspaces cannot be read, so the charts lack their "
            "airspaces. The first of them is\r\n" +
            unread.first + "\r\nIf your scenery has changed, end this program, delete " +
            Settings_File + ", " + Airports_File + " and " + Airspaces_File + " in " + app_path +
            " and start it again; it will then create its database anew.",
        platform::Icon::Exclamation);
}

/// "GET AIRPORT" goes on to the chart, once an entry is picked in both lists.
void Command3_Click() {
    const int departure = platform::Selected_Index(Combo1);
    const int destination = platform::Selected_Index(Combo2);
    if (departure < 0 || destination < 0) return;

    Set_Input_Enabled(false);
    Set_Status("Getting Airports Info...");
    Take_Picks(platform::Entry_Text(Combo1, departure), platform::Entry_Text(Combo2, destination));

    Set_Status("Looking for Airspaces...");
    const Unread_Files unread = Search_Airspaces(Show_Search);
    if (unread.count > 0) Tell_Unread(unread);

    Set_Status("Loading Chart Window...");
    platform::Show(form4::window);
    platform::Unload(window);
}

void Form_Unload() {
    if (platform::Text_Of(Text1) == Done) Command2_Click();
}

}  // namespace

void Set_Status(const char* text) {
    platform::Set_Text(Text1, text);
    platform::Repaint(Text1);
}

void Set_Input_Enabled(bool enabled) {
    for (const platform::Control_Ref control : {Combo1, Combo2, Command3, Command2}) {
        platform::Set_Enabled(control, enabled);
    }
}

}  // namespace skerrand::form3
