#include "chart/form4.h"

#include "app/form5.h"
#include "app/form6.h"
#include "chart/chart_load.h"
#include "chart/chart_view.h"
#include "chart/colours.h"
#include "chart/current_chart.h"
#include "chart/frequencies.h"
#include "chart/printing.h"
#include "keys/form7.h"
#include "keys/key_poll.h"
#include "platform/controls.h"
#include "platform/timers.h"
#include "selection/form3.h"
#include "simlink/live_poll.h"

namespace skerrand::form4 {

namespace {

using platform::Control;
using platform::Find_Control;
using enum platform::Control_Kind;

void load_airpts_lst_Click();
void kb_assign1_Click();
void pref1_Click();
void skerrand_abot2_Click();

constexpr Control controls[] = {
    {.name = "Label1",
     .kind = Label,
     .at = {120, 120, 1695, 255},
     .caption = "Altimeter: 0",
     .tab_index = 3},
    {.name = "Label2",
     .kind = Label,
     .at = {120, 360, 1695, 255},
     .caption = "Active Runway: -None-",
     .tab_index = 4},
    {.name = "Label3",
     .kind = Label,
     .at = {120, 600, 1695, 255},
     .caption = "ZoomRate: 0x",
     .tab_index = 5},
    {.name = "Label4",
     .kind = Label,
     .at = {120, 840, 2175, 255},
     .caption = "PAUSED REFRESHING",
     .font = {"MS Sans Serif", 8.25, true},
     .colour = Dark_Red,
     .tab_index = 6},
    {.name = "Command2",
     .kind = Button,
     .at = {120, 1200, 255, 255},
     .caption = "+",
     .handler = Command2_Click,
     .tab_index = 0},
    {.name = "Command3",
     .kind = Button,
     .at = {120, 1560, 255, 255},
     .caption = "C",
     .handler = Command3_Click,
     .tab_index = 1},
    {.name = "Command4",
     .kind = Button,
     .at = {120, 1920, 255, 255},
     .caption = "-",
     .handler = Command4_Click,
     .tab_index = 2},
    {.name = "KeyPress_Checker",
     .kind = Timer,
     .handler = KeyPress_Checker_Timer,
     .interval = 1,
     .enabled = false},
    {.name = "Chart_Refresher",
     .kind = Timer,
     .handler = Chart_Refresher_Timer,
     .interval = 1000,
     .enabled = false},
    {.name = "file_menu1", .kind = Menu, .caption = "File"},
    {.name = "load_airpts_lst",
     .kind = Menu,
     .in = "file_menu1",
     .caption = "Load Airports List",
     .handler = load_airpts_lst_Click},
    {.name = "print_cht1",
     .kind = Menu,
     .in = "file_menu1",
     .caption = "Print Current Chart",
     .handler = print_cht1_Click},
    {.name = "view_chrt", .kind = Menu, .caption = "View"},
    {.name = "dp_airpt_chrt",
     .kind = Menu,
     .in = "view_chrt",
     .caption = "Departure Airport's Chart",
     .handler = dp_airpt_chrt_Click},
    {.name = "dst_airpt_chrt",
     .kind = Menu,
     .in = "view_chrt",
     .caption = "Destination Airport's Chart",
     .handler = dst_airpt_chrt_Click},
    {.name = "show_all_cfreq",
     .kind = Menu,
     .in = "view_chrt",
     .caption = "Show Current Airport's Frequencies",
     .handler = show_all_cfreq_Click},
    {.name = "op1", .kind = Menu, .caption = "Options"},
    {.name = "p_r_refresh",
     .kind = Menu,
     .in = "op1",
     .caption = "Pause/Resume Current Chart's Refreshing",
     .handler = p_r_refresh_Click},
    {.name = "kb_assign1",
     .kind = Menu,
     .in = "op1",
     .caption = "Keyboard Assigments",
     .handler = kb_assign1_Click},
    {.name = "pref1", .kind = Menu, .in = "op1", .caption = "Preferences", .handler = pref1_Click},
    {.name = "abot2", .kind = Menu, .caption = "About"},
    {.name = "skerrand_abot2",
     .kind = Menu,
     .in = "abot2",
     .caption = "Skerrand v2.0",
     .handler = skerrand_abot2_Click},
};

}  // namespace

constexpr platform::Window window = {.name = "Form4",
                                     .caption = "Current Airport's Chart",
                                     .client_width = 4065,
                                     .client_height = 3420,
                                     .controls = controls,
                                     .frame = platform::Frame_Style::Sizable,
                                     .back_colour = White,
                                     .fore_colour = Green,
                                     .load = Form_Load,
                                     .unload = Form_Unload,
                                     .resize = Form_Resize,
                                     .mouse_down = Form_MouseDown};

constexpr platform::Control_Ref Label1 = Find_Control(window, "Label1");
constexpr platform::Control_Ref Label2 = Find_Control(window, "Label2");
constexpr platform::Control_Ref Label3 = Find_Control(window, "Label3");
constexpr platform::Control_Ref Label4 = Find_Control(window, "Label4");
constexpr platform::Control_Ref Chart_Refresher = Find_Control(window, "Chart_Refresher");
constexpr platform::Control_Ref KeyPress_Checker = Find_Control(window, "KeyPress_Checker");

namespace {

void load_airpts_lst_Click() {
    Stop_Timers();
    platform::Unload(window);
    platform::Show(form3::window);
}

/// The chart stands still until the dialog starts its timers.
void Open_Dialog(const platform::Window& dialog) {
    Stop_Timers();
    platform::Show(dialog);
}

void kb_assign1_Click() {
    Open_Dialog(form7::window);
}

void pref1_Click() {
    Open_Dialog(form5::window);
}

void skerrand_abot2_Click() {
    Open_Dialog(form6::window);
}

}  // namespace

}  // namespace skerrand::form4
