#include "chart/form4.h"

#include "app/form5.h"
#include "app/form6.h"
#include "chart/current_chart.h"
#include "chart/draw_chart.h"
#include "chart/printing.h"
#include "keys/form7.h"
#include "keys/form8.h"
#include "keys/keys.h"
#include "platform/controls.h"
#include "platform/message_box.h"
#include "platform/program.h"
#include "platform/timers.h"
#include "selection/form3.h"
#include "selection/picks.h"
#include "selection/rounding.h"
#include "simlink/fsuipc.h"
#include "simlink/live_poll.h"

namespace skerrand::form4 {

namespace {

using platform::Control;
using platform::Find_Control;
using enum platform::Control_Kind;

void Form_Load();
void Form_Unload();
void Form_Resize();
void Form_MouseDown(platform::Mouse_Button button, float x, float y);
void Command3_Click();
void load_airpts_lst_Click();
void show_all_cfreq_Click();

/// The menu entry of a dialog: the chart stands still until that one starts its timers.
template <const platform::Window& Dialog>
void Open_Dialog() {
    Stop_Timers();
    platform::Show(Dialog);
}

constexpr Control Entry(const char* name, const char* in, const char* caption,
                        platform::Handler handler) {
    return {.name = name, .kind = Menu, .in = in, .caption = caption, .handler = handler};
}

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
     .colour = {192, 0, 0},
     .tab_index = 6},
    {.name = "Command2",
     .kind = Button,
     .at = {120, 1200, 255, 255},
     .caption = "+",
     .handler = Command2_Click,
     .spoken = "Zoom in",
     .tab_index = 0},
    {.name = "Command3",
     .kind = Button,
     .at = {120, 1560, 255, 255},
     .caption = "C",
     .handler = Command3_Click,
     .spoken = "Center the airport",
     .tab_index = 1},
    {.name = "Command4",
     .kind = Button,
     .at = {120, 1920, 255, 255},
     .caption = "-",
     .handler = Command4_Click,
     .spoken = "Zoom out",
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
    Entry("load_airpts_lst", "file_menu1", "Load Airports List", load_airpts_lst_Click),
    Entry("print_cht1", "file_menu1", "Print Current Chart", print_cht1_Click),
    {.name = "view_chrt", .kind = Menu, .caption = "View"},
    Entry("dp_airpt_chrt", "view_chrt", "Departure Airport's Chart", dp_airpt_chrt_Click),
    Entry("dst_airpt_chrt", "view_chrt", "Destination Airport's Chart", dst_airpt_chrt_Click),
    Entry("show_all_cfreq", "view_chrt", "Show Current Airport's Frequencies",
          show_all_cfreq_Click),
    {.name = "op1", .kind = Menu, .caption = "Options"},
    Entry("p_r_refresh", "op1", "Pause/Resume Current Chart's Refreshing", p_r_refresh_Click),
    Entry("kb_assign1", "op1", "Keyboard Assigments", Open_Dialog<form7::window>),
    Entry("pref1", "op1", "Preferences", Open_Dialog<form5::window>),
    {.name = "abot2", .kind = Menu, .caption = "About"},
    Entry("skerrand_abot2", "abot2", "Skerrand v2.0", Open_Dialog<form6::window>),
};

}  // namespace

constexpr platform::Window window = {.name = "Form4",
                                     .caption = "Current Airport's Chart",
                                     .client_width = 4065,
                                     .client_height = 3420,
                                     .controls = controls,
                                     .frame = platform::Frame_Style::Sizable,
                                     .back_colour = platform::Colour_White,
                                     .fore_colour = Green,
                                     .load = Form_Load,
                                     .unload = Form_Unload,
                                     .resize = Form_Resize,
                                     .mouse_down = Form_MouseDown,
                                     .wheel_away = Command2_Click,
                                     .wheel_towards = Command4_Click};

constexpr platform::Control_Ref Label1 = Find_Control(window, "Label1");
constexpr platform::Control_Ref Label4 = Find_Control(window, "Label4");
constexpr platform::Control_Ref Chart_Refresher = Find_Control(window, "Chart_Refresher");

namespace {

constexpr auto Label2 = Find_Control(window, "Label2");
constexpr auto Label3 = Find_Control(window, "Label3");
constexpr auto KeyPress_Checker = Find_Control(window, "KeyPress_Checker");

constexpr std::int32_t Simulator_FS2002 = 6;  // its code on the link

constexpr int First_Zoom_Steps = 8;  // from the whole world to some 60 by 30 degrees

bool Gate_Is_Open() {
    return platform::Is_Running(Chart_Refresher);
}

/// Reads the window's outer size into the view, in pixels.
void Take_Screen_Size() {
    const platform::Size twips = platform::Outer_Size(window);
    chart_view.screen = {platform::Window_Device(window),
                         Round_To_Long(platform::Twips_To_Pixels_X(twips.width)),
                         Round_To_Long(platform::Twips_To_Pixels_Y(twips.height))};
}

/// Makes mouse presses arrive in degrees of the present view.
void Take_User_Coordinates() {
    platform::Set_User_Coordinates(window, chart_view.view_left, chart_view.view_top,
                                   chart_view.view_right, chart_view.view_bottom);
}

void Draw_All() {
    Draw_Chart(chart_view.screen);
    Draw_Aircraft(chart_view.screen);
}

/// One step of the zoom, with its rate in the window.
void Zoom_One(bool (*step)()) {
    if (!step()) return;
    platform::Set_Caption(Label3, "ZoomRate: " + std::to_string(chart_view.zoom_rate) + "x");
    platform::Repaint(Label3);
}

void Zoom(bool (*step)()) {
    if (!Gate_Is_Open()) return;
    Stop_Timers();
    platform::Erase(window);
    Zoom_One(step);
    Take_User_Coordinates();
    Draw_All();
    Start_Timers();
}

/// Puts an airport with its airspaces on the chart, and names it in label and caption.
void Take_Airport(const Airport_Info& airport, const std::vector<Airspace_Info>& airspaces) {
    current_airport = airport;
    current_airspaces = airspaces;
    platform::Set_Caption(Label2, "Active Runway: " + Active_Runway(current_airport));
    platform::Set_Caption(window, current_airport.icao_id + " Chart");
}

void Switch_Chart(const Airport_Info& airport, const std::vector<Airspace_Info>& airspaces) {
    if (!Gate_Is_Open()) return;
    Stop_Timers();
    follow_aircraft = false;
    Take_Airport(airport, airspaces);
    platform::Erase(window);
    Take_Screen_Size();
    Center_Airport(current_airport.lon, current_airport.lat);
    Start_Timers();
}

void Open_Simulator_Link() {
    Clear_Link();
    std::int32_t result = 0;
    chart_view.link_open = Open_Link(Simulator_FS2002, result);
    if (chart_view.link_open) return;
    platform::Message_Box(
        "This program couldn't connect to the FS2002. Anyway this program will still display the "
        "currently airport's chart.",
        platform::Icon::Exclamation);
    Close_Link();
}

void Show_First_View() {
    chart_view.view_left = -179.9999;
    chart_view.view_top = 89.9999;
    chart_view.view_right = 179.9999;
    chart_view.view_bottom = -89.9999;
    chart_view.zoom_rate = Zoom_Farthest;
    Center_Airport(current_airport.lon, current_airport.lat);
    for (int i = 0; i < First_Zoom_Steps; ++i)
        Zoom_One(Zoom_In);
    Take_User_Coordinates();
}

void Form_Load() {
    chart_view = {};
    Take_Airport(departure_airport, departure_airspaces);
    platform::SetWindowPos(window, platform::Insert_After::HWND_TOPMOST, 0, 0, 0, 0,
                           platform::SWP_NOSIZE | platform::SWP_NOMOVE);
    Open_Simulator_Link();
    platform::Erase(window);
    Take_Screen_Size();
    Show_First_View();
    Reset_Display_Flags();
    platform::Start_Timer(Chart_Refresher);
    Show_Paused(false);
    if (!Set_Up_Printer()) {
        platform::Message_Box(
            "Your Microsoft Windows Version doesn't support the current API used by this program. "
            "The program will shutdown.",
            platform::Icon::Critical);
        platform::End_Program();
    }
}

/// The dialogs belong to the chart and go with it.
void Form_Unload() {
    Close_Link();
    chart_view = {};
    for (const platform::Window* dialog :
         {&form8::window, &form7::window, &form6::window, &form5::window})
        platform::Unload(*dialog);
}

void Form_MouseDown(platform::Mouse_Button button, float x, float y) {
    if (Gate_Is_Open() && button == platform::Mouse_Button::Left) {
        Center_Airport(static_cast<double>(x), static_cast<double>(y));
    }
}

void Form_Resize() {
    platform::Stop_Timer(Chart_Refresher);
    if (platform::State_Of(window) == platform::Window_State::Minimised) return;
    Take_Screen_Size();
    platform::Start_Timer(Chart_Refresher);
}

void Command3_Click() {
    if (Gate_Is_Open()) Center_Airport(current_airport.lon, current_airport.lat);
}

void load_airpts_lst_Click() {
    platform::Unload(window);
    platform::Show(form3::window);
}

void show_all_cfreq_Click() {
    const Airport_Info& airport = current_airport;
    std::string text = "Airport: " + airport.airport_name;
    text += "\r\nICAO_ID: " + airport.icao_id;
    text += "\r\nATIS Frequency: " + airport.atis_freq;
    text += "\r\nClearance Frequency: " + airport.clearance_freq;
    text += "\r\nGround Frequency: " + airport.ground_freq;
    text += "\r\nDeparture Frequency: " + airport.departure_freq;
    text += "\r\nApproach Frequency: " + airport.approach_freq;
    text += "\r\nCenter Frequency: " + airport.center_freq;
    platform::Message_Box(text, platform::Icon::Information);
}

}  // namespace

void Stop_Timers() {
    platform::Stop_Timer(Chart_Refresher);
    platform::Stop_Timer(KeyPress_Checker);
}

void Start_Timers() {
    platform::Start_Timer(Chart_Refresher);
    platform::Start_Timer(KeyPress_Checker);
}

void Redraw() {
    platform::Erase(window);
    Draw_All();
}

void Center_Airport(double airpt_loc_x, double airpt_loc_y) {
    Stop_Timers();
    platform::Erase(window);
    Move_View(airpt_loc_y, airpt_loc_x);
    Take_User_Coordinates();
    Draw_All();
    Start_Timers();
}

void Command2_Click() {
    Zoom(Zoom_In);
}

void Command4_Click() {
    Zoom(Zoom_Out);
}

void dp_airpt_chrt_Click() {
    Switch_Chart(departure_airport, departure_airspaces);
}

void dst_airpt_chrt_Click() {
    Switch_Chart(destination_airport, destination_airspaces);
}

void Place_Dialog(const platform::Window& dialog) {
    platform::SetWindowPos(dialog, platform::Insert_After::HWND_TOPMOST, 0, 0, 0, 0,
                           platform::SWP_NOSIZE);
}

}  // namespace skerrand::form4
