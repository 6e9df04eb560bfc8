#include "chart/airspace_layer.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <string_view>
#include <utility>

#include "chart/colours.h"
#include "chart/current_chart.h"
#include "chart/layer_pen.h"
#include "platform/drawing.h"
#include "selection/airspace_search.h"
#include "selection/geodesy.h"
#include "selection/rounding.h"

namespace skerrand {

namespace {

constexpr platform::Colour Blue{0, 0, 192};
constexpr platform::Colour Magenta{255, 0, 255};

// True courses from a centre to the corners of a square round it.
constexpr int Course_To_Corner_Nw = 315;
constexpr int Course_To_Corner_Se = 135;

constexpr std::int32_t Longest_Radius = 32767;  // of a distance, nautical miles

struct Place {
    double lat = 0;
    double lon = 0;
};

/// Where a pass over the airspaces stands.
struct Pass {
    const Chart_Target& target;
    Place arc_center;     ///< carried from one airspace into the next
    Place last_position;  ///< of the outline at hand
};

Pixel_Point Pixel_At(const Chart_Target& target, Place place) {
    return Project(target, place.lat, place.lon);
}

/// Nothing for a class that the chart leaves out.
std::optional<platform::Colour> Colour_Of(std::string_view label) {
    if (label == Label_Class_B) return Blue;
    if (label == Label_Class_C) return Magenta;
    return std::nullopt;
}

Pixel_Point Corner(const Pass& pass, int course, int miles) {
    const auto [lat, lon] = pass.arc_center;
    const Fix_Point corner = Destination_NM(lat, lon, course, miles);
    return Project(pass.target, corner.lat, corner.lon);
}

void Draw_Circle(const Pass& pass, Boundary_Point& point) {
    point.radius = std::max(point.radius, 1);
    const std::int32_t miles = std::min(point.radius, Longest_Radius);
    const Pixel_Point nw = Corner(pass, Course_To_Corner_Nw, miles);
    const Pixel_Point se = Corner(pass, Course_To_Corner_Se, miles);
    platform::Ellipse(pass.target.device, nw.x, nw.y, se.x, se.y);
}

/// From an arc's centre to a corner of the square whose sides touch its circle, which runs through
/// `place`. The circle's radius is in whole miles.
std::int16_t Corner_Miles(const Pass& pass, Place place) {
    const double radius =
        Distance_NM(pass.arc_center.lat, pass.arc_center.lon, place.lat, place.lon);
    return Round_To_Integer(std::sqrt(radius * radius + radius * radius));
}

/// The arc from the last position to `end`. Where these lie at different distances from the centre,
/// the first sets the upper left corner and the other the lower right one.
void Draw_Arc(const Pass& pass, Place end, bool clockwise) {
    const Pixel_Point nw =
        Corner(pass, Course_To_Corner_Nw, Corner_Miles(pass, pass.last_position));
    const Pixel_Point se = Corner(pass, Course_To_Corner_Se, Corner_Miles(pass, end));
    // The sweep is always counter-clockwise, so a clockwise arc is drawn from its end.
    Pixel_Point first = Pixel_At(pass.target, pass.last_position);
    Pixel_Point second = Pixel_At(pass.target, end);
    if (clockwise) std::swap(first, second);
    platform::Arc(pass.target.device, nw.x, nw.y, se.x, se.y, first.x, first.y, second.x, second.y);
}

void Draw_Point(Pass& pass, Boundary_Point& point) {
    const Place place{point.lat, point.lon};
    const auto [x, y] = Pixel_At(pass.target, place);
    switch (point.kind) {
        case Boundary_Kind::Point_Center:
            pass.arc_center = place;
            return;
        case Boundary_Kind::Point_Circle:
            Draw_Circle(pass, point);
            return;
        case Boundary_Kind::Point_Start:
            break;
        case Boundary_Kind::Point_Arc_Cw:
        case Boundary_Kind::Point_Arc_Ccw:
            Draw_Arc(pass, place, point.kind == Boundary_Kind::Point_Arc_Cw);
            break;
        case Boundary_Kind::Point_Line:
            platform::LineTo(pass.target.device, x, y);
            break;
        default:
            return;
    }
    platform::MoveToEx(pass.target.device, x, y);
    pass.last_position = place;
}

void Set_Outline(platform::Device_Context* device, platform::Colour colour) {
    platform::Set_Pen_Colour(device, colour);
    platform::Set_Fill_Colour(device, colour);
    platform::Set_Pen_Width(device, 1);
    platform::Set_Pen_Style(device, platform::Pen_Style::Dashed);
    platform::Set_Fill_Style(device, platform::Fill_Style::Hollow);
}

}  // namespace

void Draw_Airspaces(const Chart_Target& target) {
    Pass pass{.target = target, .arc_center = {}, .last_position = {}};
    for (Airspace_Info& airspace : current_airspaces) {
        const auto colour = Colour_Of(airspace.class_label);
        if (!colour) continue;
        Set_Outline(target.device, *colour);
        pass.last_position = {};
        for (Boundary_Point& point : airspace.boundary)
            Draw_Point(pass, point);
    }
    Set_Hollow(target.device, Green);
    platform::Set_Pen_Width(target.device, 2);
    platform::Set_Pen_Style(target.device, platform::Pen_Style::Solid);
}

}  // namespace skerrand
