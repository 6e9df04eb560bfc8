#include "chart/chart_load.h"

#include "app/form5.h"
#include "app/form6.h"
#include "app/messages.h"
#include "chart/chart_view.h"
#include "chart/current_chart.h"
#include "chart/form4.h"
#include "chart/printing.h"
#include "keys/form7.h"
#include "keys/form8.h"
#include "platform/controls.h"
#include "platform/program.h"
#include "platform/timers.h"
#include "selection/picks.h"
#include "selection/rounding.h"
#include "simlink/fsuipc.h"
#include "simlink/live_poll.h"

namespace skerrand::form4 {

namespace {

constexpr unsigned Keep_Place_And_Size = platform::SWP_NOSIZE | platform::SWP_NOMOVE;

constexpr std::int32_t Simulator_FS2002 = 6;  // its code on the link

constexpr int First_Zoom_Steps = 8;  // from the whole world to some 60 by 30 degrees

void Open_Simulator_Link() {
    Clear_Link();
    std::int32_t result = 0;
    chart_view.link_open = Open_Link(Simulator_FS2002, result);
    if (chart_view.link_open) return;
    Show_Message(
        "This program couldn't connect to the FS2002. Anyway this program will still display the "
        "currently airport's chart.",
        platform::Icon::Exclamation);
    Close_Link();
}

/// The dialogs belong to the chart and go with it.
void Close_Dialogs() {
    for (const platform::Window* dialog :
         {&form8::window, &form7::window, &form6::window, &form5::window}) {
        platform::Unload(*dialog);
    }
}

void Show_First_View() {
    chart_view.view_left = -179.9999;
    chart_view.view_top = 89.9999;
    chart_view.view_right = 179.9999;
    chart_view.view_bottom = -89.9999;
    chart_view.zoom_rate = Zoom_Farthest;
    Center_Airport(current_airport.lon, current_airport.lat);
    for (int i = 0; i < First_Zoom_Steps; ++i)
        Zoom_In();
    Take_User_Coordinates();
}

}  // namespace

void Take_Airport(const Airport_Info& airport, const std::vector<Airspace_Info>& airspaces) {
    current_airport = airport;
    current_airspaces = airspaces;
    platform::Set_Caption(Label2, "Active Runway: " + Active_Runway(current_airport));
    platform::Set_Caption(window, current_airport.icao_id + " Chart");
}

void Take_Screen_Size() {
    const platform::Size twips = platform::Outer_Size(window);
    chart_view.screen_width = Round_To_Long(platform::Twips_To_Pixels_X(twips.width));
    chart_view.screen_height = Round_To_Long(platform::Twips_To_Pixels_Y(twips.height));
}

void Take_User_Coordinates() {
    platform::Set_User_Coordinates(window, chart_view.view_left, chart_view.view_top,
                                   chart_view.view_right, chart_view.view_bottom);
}

void Form_Load() {
    chart_view = {};
    Take_Airport(departure_airport, departure_airspaces);
    platform::SetWindowPos(window, platform::Insert_After::HWND_TOPMOST, 0, 0, 0, 0,
                           Keep_Place_And_Size);
    Open_Simulator_Link();
    platform::Erase(window);
    Take_Screen_Size();
    Show_First_View();
    Reset_Display_Flags();
    platform::Start_Timer(Chart_Refresher);
    Show_Paused(false);
    if (!Set_Up_Printer()) {
        Show_Message(
            "Your Microsoft Windows Version doesn't support the current API used by this program. "
            "The program will shutdown.",
            platform::Icon::Critical);
        platform::End_Program();
    }
}

void Form_Unload() {
    Close_Link();
    chart_view.link_open = false;
    Close_Dialogs();
}

}  // namespace skerrand::form4
