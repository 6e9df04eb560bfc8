#pragma once

#include <cstdint>

#include "platform/drawing.h"

/// The chart's view state and its projection: degrees mapped linearly onto a target's pixels, each
/// axis by its own scale. The picture is stretched with the window; nothing is clamped or clipped.
namespace skerrand {

inline constexpr std::int16_t Zoom_Farthest = 1;  ///< the whole world
inline constexpr std::int16_t Zoom_Nearest = 55;  ///< some 230 metres
inline constexpr std::int16_t Zoom_Airport = 36;  ///< from here on the airport's own layers show

/// The colour of runways and of the aircraft, and the window's own.
inline constexpr platform::Colour Green{0, 192, 0};

/// Something a chart is painted on: where the calls go, and how many pixels the view is mapped
/// onto.
struct Chart_Target {
    platform::Device_Context* device = nullptr;
    std::int32_t width = 0;
    std::int32_t height = 0;
};

struct Chart_View {
    double view_left = 0;    ///< longitude at the left edge, degrees
    double view_top = 0;     ///< latitude at the top edge
    double view_right = 0;   ///< longitude at the right edge; may run past 180
    double view_bottom = 0;  ///< latitude at the bottom edge; may run past -90
    Chart_Target screen;     ///< the chart window, with the pixels of its outer frame
    Chart_Target printer;    ///< the printer's page, with the dots of the whole sheet
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

/// A place in pixels of the target, rounded half to even; outside the view it lies outside the
/// target. Pixels past 32 bits (a damaged position) stop at their end.
Pixel_Point Project(const Chart_Target& target, double lat, double lon);

/// Whether a place lies strictly inside the view's bounds.
bool In_View(double lat, double lon);

/// One step in multiplies both spans by 0.8, one step out by 1.25, round the same centre. False at
/// the last step, where nothing changes.
bool Zoom_In();
bool Zoom_Out();

/// Moves the bounds to a new centre; the span stays.
void Move_View(double lat, double lon);

}  // namespace skerrand
