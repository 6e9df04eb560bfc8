#include "chart/airport_layers.h"

#include <string>

#include "chart/colours.h"
#include "chart/current_chart.h"
#include "chart/layer_pen.h"
#include "platform/drawing.h"
#include "selection/geodesy.h"

namespace skerrand {

namespace {

constexpr int Ils_Length_Feet = 1800;
constexpr int Ils_Half_Angle = 5;  // degrees

std::string Heading_Label(std::int16_t heading) {
    return "  " + std::to_string(heading) + "*";
}

std::string Runway_Label(const std::string& id, std::int16_t heading) {
    std::string label;
    if (show_runway_ids) label = id;
    if (show_runway_headings) label += Heading_Label(heading);
    return label;
}

}  // namespace

void Draw_Parkings(const Chart_Target& target) {
    const std::int32_t radius = Percent(target, 1);
    for (const Parking_Info& parking : current_airport.parkings) {
        if (!In_View(parking.lat, parking.lon)) continue;
        Set_Solid(target.device, Brown);
        const auto [x, y] = Project(target, parking.lat, parking.lon);
        platform::Ellipse(target.device, x - radius, y + radius, x + radius, y - radius);
        Draw_Label(target.device, {x, y}, parking.name);
    }
}

void Draw_Runways(const Chart_Target& target) {
    for (const Runway_Info& runway : current_airport.runways) {
        Set_Hollow(target.device, Green);
        const Pixel_Point end_1 = Project(target, runway.lat_1, runway.lon_1);
        const Pixel_Point end_2 = Project(target, runway.lat_2, runway.lon_2);
        Draw_Line(target.device, end_1, end_2);
        platform::Set_Pen_Colour(target.device, Black);
        if (!show_runway_ids && !show_runway_headings) continue;
        Draw_Label(target.device, end_1, Runway_Label(runway.id_1, runway.mag_heading_1));
        Draw_Label(target.device, end_2, Runway_Label(runway.id_2, runway.mag_heading_2));
    }
}

void Draw_ILS(const Chart_Target& target) {
    for (const Ils_Info& ils : current_airport.ils) {
        if (!In_View(ils.lat, ils.lon)) continue;
        const int back = Wrap_Degrees(Magnetic_To_True(ils.mag_course, ils.lat, ils.lon) - 180);
        const auto corner = [&](int course) {
            const Fix_Point fix =
                Destination_Feet(ils.lat, ils.lon, Wrap_Degrees(course), Ils_Length_Feet);
            return Project(target, fix.lat, fix.lon);
        };
        const Pixel_Point tip = Project(target, ils.lat, ils.lon);
        const Pixel_Point left = corner(back - Ils_Half_Angle);
        const Pixel_Point right = corner(back + Ils_Half_Angle);
        Set_Solid(target.device, Yellow);
        Draw_Line(target.device, tip, left);
        Draw_Line(target.device, left, right);
        Draw_Line(target.device, right, tip);
        platform::Set_Pen_Colour(target.device, Black);
        if (show_ils_frequency) platform::TextOutA(target.device, tip.x, tip.y, ils.freq + " Mhz");
    }
}

void Draw_Airport_Name(const Chart_Target& target) {
    if (!In_View(current_airport.lat, current_airport.lon)) return;
    Draw_Label(target.device, Project(target, current_airport.lat, current_airport.lon),
               current_airport.airport_name);
}

}  // namespace skerrand
