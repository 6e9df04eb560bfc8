#include "chart/chart_view.h"

#include <cmath>

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

}  // namespace

Pixel_Point Project(const Chart_Target& target, double lat, double lon) {
    const Chart_View& view = chart_view;
    return {
        Round_To_Long((lon - view.view_left) / (view.view_right - view.view_left) * target.width),
        Round_To_Long((view.view_top - lat) / (view.view_top - view.view_bottom) * target.height)};
}

bool In_View(double lat, double lon) {
    return chart_view.view_left < lon && lon < chart_view.view_right &&
           chart_view.view_bottom < lat && lat < chart_view.view_top;
}

bool Zoom_In() {
    if (chart_view.zoom_rate >= Zoom_Nearest) return false;
    Shrink_View(Span_X() / 10, Span_Y() / 10);
    ++chart_view.zoom_rate;
    return true;
}

bool Zoom_Out() {
    if (chart_view.zoom_rate <= Zoom_Farthest) return false;
    // An eighth of the smaller span is the tenth of the larger one.
    Shrink_View(-(Span_X() / 8), -(Span_Y() / 8));
    --chart_view.zoom_rate;
    return true;
}

void Move_View(double lat, double lon) {
    const double half_x = Span_X() / 2;
    const double half_y = Span_Y() / 2;
    chart_view.view_left = lon - half_x;
    chart_view.view_right = lon + half_x;
    chart_view.view_top = lat + half_y;
    chart_view.view_bottom = lat - half_y;
}

}  // namespace skerrand
