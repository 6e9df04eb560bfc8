#include "chart/chart_view.h"

#include <cmath>

#include "chart/form4.h"
#include "platform/controls.h"
#include "platform/drawing.h"
#include "platform/printer.h"
#include "selection/rounding.h"

namespace skerrand {

Chart_View chart_view;

namespace {

/// Moves all four bounds inwards by a part of the spans, or outwards by a negative one.
void Shrink_View(double dx, double dy) {
    chart_view.view_left += dx;
    chart_view.view_right -= dx;
    chart_view.view_top -= dy;
    chart_view.view_bottom += dy;
}

double Span_X() {
    return std::abs(chart_view.view_right - chart_view.view_left);
}
double Span_Y() {
    return std::abs(chart_view.view_bottom - chart_view.view_top);
}

void Show_Zoom_Rate() {
    platform::Set_Caption(form4::Label3, "ZoomRate: " + std::to_string(chart_view.zoom_rate) + "x");
    platform::Repaint(form4::Label3);
}

}  // namespace

Chart_Target Screen_Target() {
    return {platform::Window_Device(form4::window), chart_view.screen_width,
            chart_view.screen_height};
}

Chart_Target Printer_Target() {
    return {platform::Printer_Device(), chart_view.printer_width, chart_view.printer_height};
}

Pixel_Point Project(const Chart_Target& target, double lat, double lon) {
    const Chart_View& view = chart_view;
    return {
        Round_To_Long((lon - view.view_left) / (view.view_right - view.view_left) * target.width),
        Round_To_Long((view.view_top - lat) / (view.view_top - view.view_bottom) * target.height)};
}

std::int32_t Percent(const Chart_Target& target, float percentage) {
    const double whole = std::nearbyint(static_cast<double>(percentage));
    return Round_To_Long(whole * target.width / 100);
}

Pixel_Point Geo_To_Screen(double lat, double lon) {
    return Project(Screen_Target(), lat, lon);
}

std::int32_t Screen_Percent(float percentage) {
    return Percent(Screen_Target(), percentage);
}

bool In_View(double lat, double lon) {
    return chart_view.view_left < lon && lon < chart_view.view_right &&
           chart_view.view_bottom < lat && lat < chart_view.view_top;
}

void Zoom_In() {
    if (chart_view.zoom_rate >= Zoom_Nearest) return;
    Shrink_View(Span_X() / 10, Span_Y() / 10);
    ++chart_view.zoom_rate;
    Show_Zoom_Rate();
}

void Zoom_Out() {
    if (chart_view.zoom_rate <= Zoom_Farthest) return;
    // An eighth of the smaller span is the tenth of the larger one.
    Shrink_View(-(Span_X() / 8), -(Span_Y() / 8));
    --chart_view.zoom_rate;
    Show_Zoom_Rate();
}

void Move_View(double lat, double lon) {
    const double half_x = Span_X() / 2;
    const double half_y = Span_Y() / 2;
    chart_view.view_left = lon - half_x;
    chart_view.view_right = lon + half_x;
    chart_view.view_top = lat + half_y;
    chart_view.view_bottom = lat - half_y;
}

std::string Active_Runway(const Airport_Info& airport) {
    std::string id;
    std::int32_t length = 0;
    for (const Runway_Info& runway : airport.runways) {
        if ((id.empty() && length == 0) || runway.length_ft > length) {
            id = runway.id_1;
            length = runway.length_ft;
        }
    }
    return id;
}

}  // namespace skerrand
