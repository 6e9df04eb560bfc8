#include "app/form2.h"

#include <string>

#include "app/settings.h"
#include "platform/controls.h"
#include "platform/files.h"
#include "platform/message_box.h"
#include "platform/program.h"
#include "selection/form3.h"

namespace skerrand::form2 {

namespace {

using platform::Control;
using enum platform::Control_Kind;

void Option1_Click();
void Drive1_Change();
void Dir1_Change();
void Text1_Change();
void Command1_Click();
void Form_Load();
void Form_Unload();

constexpr Control controls[] = {
    {.name = "Frame1",
     .kind = Frame,
     .at = {120, 120, 4335, 1215},
     .caption = "Flight Simulator Information"},
    {.name = "Label1",
     .kind = Label,
     .in = "Frame1",
     .at = {120, 360, 3735, 255},
     .caption = "Select the version of your Microsoft Flight Simulator:"},
    {.name = "Option1",
     .kind = Option,
     .in = "Frame1",
     .at = {1440, 720, 2535, 255},
     .caption = "Microsoft Flight Simulator 2002",
     .handler = Option1_Click},
    {.name = "Frame2",
     .kind = Frame,
     .at = {120, 1440, 4335, 3615},
     .caption = "Flight Simulator's Path"},
    {.name = "Label2",
     .kind = Label,
     .in = "Frame2",
     .at = {120, 360, 2775, 255},
     .caption = "Enter your Flight Simulator's main path:"},
    {.name = "Drive1",
     .kind = Drive,
     .in = "Frame2",
     .at = {120, 720, 2535, 315},
     .handler = Drive1_Change,
     .spoken = "Drive"},
    {.name = "Dir1",
     .kind = Folder,
     .in = "Frame2",
     .at = {120, 1080, 3975, 1215},
     .handler = Dir1_Change,
     .spoken = "Folder"},
    {.name = "Label4",
     .kind = Label,
     .in = "Frame2",
     .at = {120, 2520, 1575, 255},
     .caption = "Current Directory:"},
    {.name = "Text1",
     .kind = Text,
     .in = "Frame2",
     .at = {120, 2760, 3975, 285},
     .handler = Text1_Change},
    {.name = "Label3",
     .kind = Label,
     .in = "Frame2",
     .at = {120, 3240, 3735, 255},
     .caption = "Example: C:\\Program Files\\Microsoft Games\\Fs2002"},
    {.name = "Command1",
     .kind = Button,
     .at = {1800, 5160, 2655, 495},
     .caption = "NEXT STEP --->",
     .handler = Command1_Click},
};

}  // namespace

constexpr platform::Window window = {.name = "Form2",
                                     .caption = "Settings",
                                     .client_width = 4590,
                                     .client_height = 5820,
                                     .controls = controls,
                                     .load = Form_Load,
                                     .unload = Form_Unload};

namespace {

constexpr auto Option1 = platform::Find_Control(window, "Option1");
constexpr auto Drive1 = platform::Find_Control(window, "Drive1");
constexpr auto Dir1 = platform::Find_Control(window, "Dir1");
constexpr auto Text1 = platform::Find_Control(window, "Text1");

bool setup_done = false;

void Form_Load() {
    platform::Set_Checked(Option1, true);
    setup_done = false;
    Drive1_Change();
}

void Option1_Click() {
    sim_version = Version_FS2002;
}

void Drive1_Change() {
    platform::Set_Folder_Path(Dir1, platform::Drive_Name(Drive1));
    Dir1_Change();
}

void Dir1_Change() {
    platform::Set_Text(Text1, platform::Folder_Path(Dir1));
}

/// The root of a drive comes with its separator; it goes, so that paths can be joined with one.
void Text1_Change() {
    std::string text = platform::Text_Of(Text1);
    if (text.size() != 3) return;
    std::erase(text, '\\');
    std::erase(text, '/');
    platform::Set_Text(Text1, text);
}

/// The record of a fresh setup: the user's folder, no databases yet, the default keys.
Settings_Rec Fresh_Settings(const std::string& folder) {
    Settings_Rec fresh;
    fresh.signature = "Skerrand v2.0";
    fresh.format_mark = 1;
    if (platform::Is_Checked(Option1)) fresh.sim_version = Version_FS2002;
    fresh.fs_path = folder;
    // Virtual-key codes: 1, 2, keypad plus, keypad minus, A.
    fresh.key_departure = 49;
    fresh.key_destination = 50;
    fresh.key_zoom_in = 107;
    fresh.key_zoom_out = 109;
    fresh.key_pause = 65;
    return fresh;
}

void Command1_Click() {
    const std::string folder = platform::Text_Of(Text1);
    if (!platform::File_Exists(folder + "\\fs2002.exe")) {
        platform::Message_Box(
            "The directory or path that you selected is not your currently FS2002 main folder, "
            "because this program didn't found the FS2002.EXE file. Please try again.",
            platform::Icon::Exclamation);
        return;
    }
    settings = Fresh_Settings(folder);
    if (platform::Is_Checked(Option1)) sim_version = Version_FS2002;
    fs_root = folder;
    const std::string reason = Save_Settings();
    if (!reason.empty()) {
        platform::Message_Box("The settings file " + Own_File(Settings_File) +
                                  " cannot be written: " + reason +
                                  ". Please make the folder writable, or make room in it, and "
                                  "press NEXT STEP again.",
                              platform::Icon::Critical);
        return;
    }
    platform::Message_Box("Settings file created successfully!", platform::Icon::Information);
    setup_done = true;
    platform::Unload(window);
    platform::Show(form3::window);
}

void Form_Unload() {
    if (setup_done) return;
    platform::Delete_File(Own_File(Settings_File));
    platform::Message_Box("You didn't finish setup process, program will end",
                          platform::Icon::Information);
    platform::End_Program();
}

}  // namespace

}  // namespace skerrand::form2
