#include "keys/form7.h"

#include <iterator>
#include <string>
#include <vector>

#include "app/settings.h"
#include "chart/form4.h"
#include "keys/form8.h"
#include "keys/keys.h"
#include "platform/controls.h"
#include "platform/files.h"
#include "platform/message_box.h"

namespace skerrand::form7 {

namespace {

using platform::Control;
using platform::Find_Control;
using enum platform::Control_Kind;

void Form_Load();
void List1_DblClick();
void Command1_Click();
void Command2_Click();

constexpr Control controls[] = {
    {.name = "Label1",
     .kind = Label,
     .at = {120, 120, 5655, 495},
     .caption = "Select and double click the event, in the following list, if you want to change "
                "it's current key assigment."},
    {.name = "Frame1",
     .kind = Frame,
     .at = {120, 720, 5655, 1935},
     .caption = "Events and assigments list"},
    {.name = "List1",
     .kind = List,
     .in = "Frame1",
     .at = {120, 360, 5415, 1425},
     .handler = List1_DblClick},
    {.name = "Command1",
     .kind = Button,
     .at = {2880, 2880, 1335, 495},
     .caption = "Ok",
     .handler = Command1_Click},
    {.name = "Command2",
     .kind = Button,
     .at = {4440, 2880, 1335, 495},
     .caption = "Cancel",
     .handler = Command2_Click,
     .cancels = true},
};

}  // namespace

// However it is closed, the chart goes on.
constexpr platform::Window window = {.name = "Form7",
                                     .caption = "Keyboard assigments",
                                     .client_width = 5940,
                                     .client_height = 3540,
                                     .controls = controls,
                                     .frame = platform::Frame_Style::Dialog,
                                     .load = Form_Load,
                                     .unload = form4::Start_Timers};

namespace {

constexpr auto List1 = Find_Control(window, "List1");
constexpr auto Command1 = Find_Control(window, "Command1");
constexpr auto Command2 = Find_Control(window, "Command2");

/// An event with its key.
struct Key_Assignment {
    const char* caption;
    std::int32_t Settings_Rec::*key;
};

/// In the order of the list.
constexpr Key_Assignment assignments[] = {
    {"Show Destination Airport   Assigned Key: ", &Settings_Rec::key_destination},
    {"Show Departure Airport   Assigned Key: ", &Settings_Rec::key_departure},
    {"Zoom in   Assigned Key: ", &Settings_Rec::key_zoom_in},
    {"Zoom out   Assigned Key: ", &Settings_Rec::key_zoom_out},
    {"Pause/Resume Current Chart's Refreshing   Assigned Key: ", &Settings_Rec::key_pause},
};

Settings_Rec settings_edit;

void List_Events() {
    std::vector<std::string> lines;
    for (const Key_Assignment& each : assignments)
        lines.push_back(each.caption + Key_Name(settings_edit.*each.key));
    platform::Clear_Entries(List1);
    platform::Add_Entries(List1, lines);
}

void Form_Load() {
    form4::Place_Dialog(window);
    settings_edit = settings;
    List_Events();
}

void List1_DblClick() {
    if (platform::Selected_Index(List1) < 0) return;
    Set_Input(false);
    platform::Show(form8::window);
}

void Command1_Click() {
    if (platform::File_Exists(Own_File(Settings_File))) {
        settings = settings_edit;
        const std::string reason = Save_Settings();
        if (!reason.empty()) {
            platform::Message_Box(Own_File(Settings_File) + " cannot be written: " + reason +
                                      ". The new keys hold until the program ends.",
                                  platform::Icon::Exclamation);
        }
    }
    platform::Unload(window);
}

void Command2_Click() {
    platform::Unload(window);
}

}  // namespace

void Assign_To_Selected(std::int32_t key) {
    const int index = platform::Selected_Index(List1);
    if (index < 0 || index >= std::ssize(assignments)) return;
    settings_edit.*assignments[index].key = key;
    List_Events();
}

void Set_Input(bool enabled) {
    platform::Set_Enabled(window, enabled);
    for (const auto control : {List1, Command1, Command2})
        platform::Set_Enabled(control, enabled);
}

}  // namespace skerrand::form7
