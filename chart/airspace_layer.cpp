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

    friend bool operator==(const Place&, const Place&) = default;
};

/// A corner of a square round the centre, with its distance from it.
struct Corner {
    int miles = -1;  ///< none yet
    Pixel_Point pixel;
};

/// Where a pass over the airspaces stands. The geodesy of an arc costs more than all the rest of
/// it, so what was worked out round one centre is kept as long as that stays.
struct Pass {
    const Chart_Target& target;
    Place arc_center;                        ///< carried from one airspace into the next
    Place last_position;                     ///< of the outline at hand
    std::optional<std::int16_t> last_miles;  ///< `Corner_Miles` of that position, if known
    Corner nw;
    Corner se;
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

void Set_Center(Pass& pass, Place center) {
    if (center == pass.arc_center) return;
    pass.arc_center = center;
    pass.last_miles.reset();
    pass.nw = {};
    pass.se = {};
}

void Set_Position(Pass& pass, Place position, std::optional<std::int16_t> miles) {
    pass.last_position = position;
    pass.last_miles = miles;
}

Pixel_Point Corner_At(const Pass& pass, Corner& corner, int course, int miles) {
    if (corner.miles != miles) {
        const auto [lat, lon] = pass.arc_center;
        const Fix_Point place = Destination_NM(lat, lon, course, miles);
        corner = {miles, Project(pass.target, place.lat, place.lon)};
    }
    return corner.pixel;
}

Pixel_Point Corner_Nw(Pass& pass, int miles) {
    return Corner_At(pass, pass.nw, Course_To_Corner_Nw, miles);
}

Pixel_Point Corner_Se(Pass& pass, int miles) {
    return Corner_At(pass, pass.se, Course_To_Corner_Se, miles);
}

void Draw_Circle(Pass& pass, Boundary_Point& point) {
    point.radius = std::max(point.radius, 1);
    const std::int32_t miles = std::min(point.radius, Longest_Radius);
    const Pixel_Point nw = Corner_Nw(pass, miles);
    const Pixel_Point se = Corner_Se(pass, miles);
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
void Draw_Arc(Pass& pass, Place end, bool clockwise) {
    if (!pass.last_miles) pass.last_miles = Corner_Miles(pass, pass.last_position);
    const std::int16_t end_miles = Corner_Miles(pass, end);
    const Pixel_Point nw = Corner_Nw(pass, *pass.last_miles);
    const Pixel_Point se = Corner_Se(pass, end_miles);
    // The sweep is always counter-clockwise, so a clockwise arc is drawn from its end.
    Pixel_Point first = Pixel_At(pass.target, pass.last_position);
    const Pixel_Point at_end = Pixel_At(pass.target, end);
    Pixel_Point second = at_end;
    if (clockwise) std::swap(first, second);
    platform::Arc(pass.target.device, nw.x, nw.y, se.x, se.y, first.x, first.y, second.x, second.y);
    platform::MoveToEx(pass.target.device, at_end.x, at_end.y);
    Set_Position(pass, end, end_miles);
}

void Draw_Point(Pass& pass, Boundary_Point& point) {
    const Place place{point.lat, point.lon};
    switch (point.kind) {
        case Boundary_Kind::Point_Center:
            Set_Center(pass, place);
            return;
        case Boundary_Kind::Point_Circle:
            Draw_Circle(pass, point);
            return;
        case Boundary_Kind::Point_Arc_Cw:
        case Boundary_Kind::Point_Arc_Ccw:
            Draw_Arc(pass, place, point.kind == Boundary_Kind::Point_Arc_Cw);
            return;
        case Boundary_Kind::Point_Start:
        case Boundary_Kind::Point_Line:
            break;
        default:
            return;
    }
    const auto [x, y] = Pixel_At(pass.target, place);
    if (point.kind == Boundary_Kind::Point_Line) platform::LineTo(pass.target.device, x, y);
    platform::MoveToEx(pass.target.device, x, y);
    Set_Position(pass, place, std::nullopt);
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
    Pass pass{.target = target,
              .arc_center = {},
              .last_position = {},
              .last_miles = {},
              .nw = {},
              .se = {}};
    for (Airspace_Info& airspace : current_airspaces) {
        const auto colour = Colour_Of(airspace.class_label);
        if (!colour) continue;
        Set_Outline(target.device, *colour);
        Set_Position(pass, {}, std::nullopt);
        for (Boundary_Point& point : airspace.boundary)
            Draw_Point(pass, point);
    }
    Set_Hollow(target.device, Green);
    platform::Set_Pen_Width(target.device, 2);
    platform::Set_Pen_Style(target.device, platform::Pen_Style::Solid);
}

}  // namespace skerrand
