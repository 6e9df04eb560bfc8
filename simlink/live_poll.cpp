#include "simlink/live_poll.h"

#include <array>
#include <charconv>
#include <string>

#include "chart/chart_view.h"
#include "chart/current_chart.h"
#include "chart/form4.h"
#include "platform/controls.h"
#include "platform/message_box.h"
#include "platform/timers.h"
#include "platform/window.h"
#include "selection/rounding.h"
#include "simlink/fsuipc.h"

namespace skerrand {

double aircraft_lat = 0;
double aircraft_lon = 0;
std::int16_t aircraft_heading = 0;
double altimeter_value = 0;

namespace {

/// Places of the values in the simulator's state area.
constexpr std::uint32_t Latitude_Offset = 0x0564;   // 32 bits, 10001750 to the quarter meridian
constexpr std::uint32_t Longitude_Offset = 0x056C;  // 32 bits, a full circle
constexpr std::uint32_t Heading_Offset = 0x0580;    // 32 bits, a full circle
constexpr std::uint32_t Altimeter_Offset = 0x0EC6;  // 16 bits, sixteenths of a millibar

constexpr double Quarter_Meridian = 10001750.0;
constexpr double Full_Circle = 4294967296.0;
constexpr double Units_Per_Millibar = 16.0;
constexpr double Millibars_Per_Inch = 33.86;

/// One value by an exchange of its own.
template <typename Value>
bool Read_Value(std::uint32_t fs_offset, Value& value) {
    std::int32_t result = Link_Ok;
    return Queue_Read(fs_offset, sizeof value, &value, result) && Process_Queue(result);
}

double Altimeter_Setting(std::uint16_t raw) {
    const double millibars = raw / Units_Per_Millibar;
    if (altimeter_unit == Unit_Millibars) return Round_Decimals(millibars, 1);
    return Round_Decimals(millibars / Millibars_Per_Inch, 100);
}

/// Reads and stores the four values; false at the first that fails.
bool Poll_Simulator() {
    std::int32_t latitude = 0;
    if (!Read_Value(Latitude_Offset, latitude)) return false;
    aircraft_lat = latitude * 90.0 / Quarter_Meridian;

    std::int32_t longitude = 0;
    if (!Read_Value(Longitude_Offset, longitude)) return false;
    aircraft_lon = longitude * 360.0 / Full_Circle;

    // Signed: past 180 degrees it comes out negative, which is the same direction.
    std::int32_t heading = 0;
    if (!Read_Value(Heading_Offset, heading)) return false;
    aircraft_heading = Round_To_Integer(heading * 360.0 / Full_Circle);

    std::uint16_t altimeter = 0;
    if (!Read_Value(Altimeter_Offset, altimeter)) return false;
    altimeter_value = Altimeter_Setting(altimeter);
    return true;
}

void Show_Altimeter() {
    std::array<char, 32> digits;
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), altimeter_value,
                                   std::chars_format::fixed);
    platform::Set_Caption(form4::Label1, "Altimeter: " + std::string(digits.data(), end.ptr));
    platform::Repaint(form4::Label1);
}

void Lose_Link() {
    platform::Message_Box(
        "Error while receiving data from FSUIPC. Anyway this program will still display the "
        "currently airport's chart.",
        platform::Icon::Exclamation);
    Close_Link();
    chart_view.link_open = false;
}

}  // namespace

void Chart_Refresher_Timer() {
    platform::SetWindowPos(form4::window, platform::Insert_After::HWND_TOPMOST, 0, 0, 0, 0,
                           platform::SWP_NOSIZE | platform::SWP_NOMOVE);
    if (chart_view.link_open) {
        if (!Poll_Simulator()) {
            Lose_Link();
            return;
        }
        Show_Altimeter();
    }
    if (follow_aircraft && chart_view.link_open) {
        form4::Center_Airport(aircraft_lon, aircraft_lat);
    } else {
        form4::Redraw();
    }
}

void p_r_refresh_Click() {
    const bool pause = platform::Is_Running(form4::Chart_Refresher);
    if (pause) {
        platform::Stop_Timer(form4::Chart_Refresher);
    } else {
        platform::Start_Timer(form4::Chart_Refresher);
    }
    Show_Paused(pause);
}

void Show_Paused(bool paused) {
    platform::Set_Caption(form4::Label4, paused ? "PAUSED REFRESHING" : "");
    platform::Set_Transparent(form4::Label4, !paused);
    platform::Repaint(form4::Label4);
}

}  // namespace skerrand
