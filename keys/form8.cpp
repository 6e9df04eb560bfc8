#include "keys/form8.h"

#include <cstdint>

#include "chart/form4.h"
#include "keys/form7.h"
#include "keys/keys.h"
#include "platform/controls.h"
#include "platform/keys.h"

namespace skerrand::form8 {

namespace {

using platform::Control;
using platform::Find_Control;
using enum platform::Control_Kind;

void Form_Load();
void Form_Unload();
void Command1_Click();
void Command2_Click();
void Command3_Click();
void Get_New_Key_Timer();

constexpr Control controls[] = {
    {.name = "Label2",
     .kind = Label,
     .at = {120, 120, 3855, 495},
     .caption = "Press the new key that you want to assign to the current selected event."},
    {.name = "Label1", .kind = Label, .at = {120, 720, 735, 255}, .caption = "New Key:"},
    {.name = "Text1", .kind = Text, .at = {960, 720, 1815, 285}, .centred = true},
    {.name = "Command2",
     .kind = Button,
     .at = {2880, 720, 1095, 375},
     .caption = "Try Again",
     .handler = Command2_Click},
    {.name = "Command1",
     .kind = Button,
     .at = {1560, 1320, 1095, 375},
     .caption = "Ok",
     .handler = Command1_Click},
    {.name = "Command3",
     .kind = Button,
     .at = {2880, 1320, 1095, 375},
     .caption = "Cancel",
     .handler = Command3_Click},
    {.name = "Get_New_Key", .kind = Timer, .handler = Get_New_Key_Timer, .interval = 1},
};

}  // namespace

constexpr platform::Window window = {.name = "Form8",
                                     .caption = "Change key assigment",
                                     .client_width = 4140,
                                     .client_height = 1875,
                                     .controls = controls,
                                     .frame = platform::Frame_Style::Dialog,
                                     .load = Form_Load,
                                     .unload = Form_Unload,
                                     .takes_keys = true};

namespace {

constexpr auto Text1 = Find_Control(window, "Text1");

/// Up to here the codes are mouse buttons and the cancel key, which nobody assigns.
constexpr std::int32_t Last_Refused_Code = 4;

std::int32_t new_key = 0;  // none yet

void Form_Load() {
    form4::Place_Dialog(window);
    new_key = 0;
}

void Form_Unload() {
    form7::Set_Input(true);
}

/// A later press takes the place of an earlier one, and of several at once the highest code stays.
void Get_New_Key_Timer() {
    for (std::int32_t code = platform::First_Key_Code; code <= platform::Last_Key_Code; ++code) {
        if (!Is_New_Press(code) || code <= Last_Refused_Code) continue;
        new_key = code;
        platform::Set_Text(Text1, Key_Name(code));
    }
}

void Command1_Click() {
    if (new_key <= 0) return;
    form7::Assign_To_Selected(new_key);
    platform::Unload(window);
}

void Command2_Click() {
    platform::Set_Text(Text1, "");
    new_key = 0;
}

void Command3_Click() {
    platform::Unload(window);
}

}  // namespace

}  // namespace skerrand::form8
