#include "chart/airspace_layer.h"

#include <algorithm>
#include <cmath>

#include "chart/current_chart.h"
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

/// Where a pass over the airspaces stands.
struct Pass {
    const Chart_Target& target;
    Fix_Point arc_center = {};  ///< carried from one airspace into the next
    Fix_Point last_position = {};
};

Pixel_Point Corner(const Pass& pass, int course, int miles) {
    const Fix_Point place = Destination_NM(pass.arc_center.lat, pass.arc_center.lon, course, miles);
    return Project(pass.target, place.lat, place.lon);
}

void Draw_Circle(const Pass& pass, Boundary_Point& point) {
    point.radius = std::max(point.radius, 1);
    const std::int32_t miles = std::min(point.radius, 32767);  // distances are 16-bit
    const Pixel_Point nw = Corner(pass, Course_To_Corner_Nw, miles);
    const Pixel_Point se = Corner(pass, Course_To_Corner_Se, miles);
    platform::Ellipse(pass.target.device, nw.x, nw.y, se.x, se.y);
}

/// From an arc's centre to a corner of the square whose sides touch its circle, which runs through
/// `place`. The circle's radius is in whole miles.
std::int16_t Corner_Miles(const Pass& pass, Fix_Point place) {
    const double radius =
        Distance_NM(pass.arc_center.lat, pass.arc_center.lon, place.lat, place.lon);
    return Round_To_Integer(std::sqrt(radius * radius + radius * radius));
}

/// The arc from the last position, whose pixel is `from`, to `end` at the pixel `to`. Where these
/// lie at different distances from the centre, the first sets the upper left corner and the other
/// the lower right one.
void Draw_Arc(const Pass& pass, Fix_Point end, Pixel_Point from, Pixel_Point to, bool clockwise) {
    const Pixel_Point nw =
        Corner(pass, Course_To_Corner_Nw, Corner_Miles(pass, pass.last_position));
    const Pixel_Point se = Corner(pass, Course_To_Corner_Se, Corner_Miles(pass, end));
    // The sweep is always counter-clockwise, so a clockwise arc is drawn from its end.
    if (clockwise) std::swap(from, to);
    platform::Arc(pass.target.device, nw.x, nw.y, se.x, se.y, from.x, from.y, to.x, to.y);
}

void Draw_Point(Pass& pass, Boundary_Point& point) {
    using enum Boundary_Kind;
    const Fix_Point place{point.lat, point.lon};
    const Pixel_Point at = Project(pass.target, place.lat, place.lon);
    const Pixel_Point before = Project(pass.target, pass.last_position.lat, pass.last_position.lon);
    switch (point.kind) {
        case Point_Center:
            pass.arc_center = place;
            return;
        case Point_Circle:
            Draw_Circle(pass, point);
            return;
        case Point_Arc_Cw:
        case Point_Arc_Ccw:
            Draw_Arc(pass, place, before, at, point.kind == Point_Arc_Cw);
            break;
        case Point_Line:
            platform::LineTo(pass.target.device, at.x, at.y);
            break;
        case Point_Start:
            break;
        default:
            return;
    }
    platform::MoveToEx(pass.target.device, at.x, at.y);
    pass.last_position = place;
}

}  // namespace

void Draw_Airspaces(const Chart_Target& target) {
    Pass pass{.target = target};
    platform::Set_Pen_Width(target.device, 1);
    platform::Set_Pen_Style(target.device, platform::Pen_Style::Dashed);
    platform::Set_Fill_Style(target.device, platform::Fill_Style::Hollow);
    for (Airspace_Info& airspace : current_airspaces) {
        const bool is_b = airspace.class_label == Label_Class_B;
        if (!is_b && airspace.class_label != Label_Class_C) continue;
        platform::Set_Pen_Colour(target.device, is_b ? Blue : Magenta);
        platform::Set_Fill_Colour(target.device, is_b ? Blue : Magenta);
        pass.last_position = {};
        for (Boundary_Point& point : airspace.boundary)
            Draw_Point(pass, point);
    }
}

}  // namespace skerrand
