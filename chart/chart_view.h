#pragma once

#include <cstdint>
#include <string>

#include "scenery/airport_info.h"

namespace platform {
struct Device_Context;
}

/// The chart's view state and its projection: degrees mapped linearly onto a target's pixels, each
/// axis by its own scale. The picture is stretched with the window; nothing is clamped or clipped.
namespace skerrand {

inline constexpr std::int16_t Zoom_Farthest = 1;  ///< the whole world
inline constexpr std::int16_t Zoom_Nearest = 55;  ///< some 230 metres
inline constexpr std::int16_t Zoom_Airport = 36;  ///< from here on the airport's own layers show

struct Chart_View {
    double view_left = 0;             ///< longitude at the left edge, degrees
    double view_top = 0;              ///< latitude at the top edge
    double view_right = 0;            ///< longitude at the right edge; may run past 180
    double view_bottom = 0;           ///< latitude at the bottom edge; may run past -90
    std::int32_t screen_width = 0;    ///< pixels across the window's outer frame
    std::int32_t screen_height = 0;   ///< pixels down the window's outer frame
    std::int32_t printer_width = 0;   ///< dots across the printer's sheet
    std::int32_t printer_height = 0;  ///< dots down the printer's sheet
    std::int16_t zoom_rate = Zoom_Farthest;
    bool link_open = false;  ///< the link to the simulator is open
};

/// The one of the chart window; built anew each time that window loads.
extern Chart_View chart_view;

struct Pixel_Point {
    std::int32_t x = 0;
    std::int32_t y = 0;

    friend bool operator==(const Pixel_Point&, const Pixel_Point&) = default;
};

/// Something a chart is painted on: where the calls go, and how many pixels the view is mapped
/// onto.
struct Chart_Target {
    platform::Device_Context* device = nullptr;
    std::int32_t width = 0;
    std::int32_t height = 0;
};

/// The chart window, at the size that was last read from it.
Chart_Target Screen_Target();

/// The printer's page, at the size of the sheet.
Chart_Target Printer_Target();

/// A place in pixels of the target, rounded half to even; outside the view it lies outside the
/// target. Pixels past 32 bits (a damaged position) stop at their end.
Pixel_Point Project(const Chart_Target& target, double lat, double lon);

/// `percentage`, first rounded to a whole number, of the target's width in pixels.
std::int32_t Percent(const Chart_Target& target, float percentage);

/// The same on the chart window.
Pixel_Point Geo_To_Screen(double lat, double lon);
std::int32_t Screen_Percent(float percentage);

/// Whether a place lies strictly inside the view's bounds.
bool In_View(double lat, double lon);

/// One step in multiplies both spans by 0.8, one step out by 1.25, round the same centre. They show
/// the new rate in the window; at the last step they do nothing.
void Zoom_In();
void Zoom_Out();

/// Moves the bounds to a new centre; the span stays.
void Move_View(double lat, double lon);

/// First designator of the longest runway, the first of equals; empty without a runway.
std::string Active_Runway(const Airport_Info& airport);

}  // namespace skerrand
