// What the chart window does on the user's commands: zoom, centre, switch, resize.

#include "chart/aircraft_layer.h"
#include "chart/chart_load.h"
#include "chart/chart_view.h"
#include "chart/current_chart.h"
#include "chart/draw_chart.h"
#include "chart/form4.h"
#include "platform/timers.h"
#include "selection/picks.h"

namespace skerrand::form4 {

namespace {

bool Gate_Is_Open() {
    return platform::Is_Running(Chart_Refresher);
}

void Zoom(void (*step)()) {
    if (!Gate_Is_Open()) return;
    Stop_Timers();
    platform::Erase(window);
    step();
    Take_User_Coordinates();
    Draw_Chart();
    Draw_Aircraft();
    Start_Timers();
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
    Draw_Chart();
    Draw_Aircraft();
}

void Center_Airport(double airpt_loc_x, double airpt_loc_y) {
    Stop_Timers();
    platform::Erase(window);
    Move_View(airpt_loc_y, airpt_loc_x);
    Take_User_Coordinates();
    Draw_Chart();
    Draw_Aircraft();
    Start_Timers();
}

void Command2_Click() {
    Zoom(Zoom_In);
}

void Command4_Click() {
    Zoom(Zoom_Out);
}

void Command3_Click() {
    if (Gate_Is_Open()) Center_Airport(current_airport.lon, current_airport.lat);
}

void dp_airpt_chrt_Click() {
    Switch_Chart(departure_airport, departure_airspaces);
}

void dst_airpt_chrt_Click() {
    Switch_Chart(destination_airport, destination_airspaces);
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

}  // namespace skerrand::form4
