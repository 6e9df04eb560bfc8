#include "chart/draw_chart.h"

#include <optional>
#include <string>

#include "chart/airspace_layer.h"
#include "chart/current_chart.h"
#include "selection/geodesy.h"
#include "selection/rounding.h"
#include "simlink/live_poll.h"

namespace skerrand {

namespace {

constexpr platform::Colour Yellow{255, 255, 0};    // ILS
constexpr platform::Colour Brown{128, 64, 64};     // parkings
constexpr platform::Colour Silver{192, 192, 192};  // taxiways

constexpr int Ils_Length_Feet = 1800;
constexpr int Ils_Half_Angle = 5;  // degrees
constexpr int Heading_Line_Feet = 500;

/// Pen and fill in one colour, the fill solid.
void Set_Solid(platform::Device_Context* device, platform::Colour colour) {
    platform::Set_Pen_Colour(device, colour);
    platform::Set_Fill_Colour(device, colour);
    platform::Set_Fill_Style(device, platform::Fill_Style::Solid);
}

/// The pen in a colour; the fill black and hollow, so that it shows nowhere.
void Set_Hollow(platform::Device_Context* device, platform::Colour pen) {
    platform::Set_Pen_Colour(device, pen);
    platform::Set_Fill_Colour(device, platform::Colour_Black);
    platform::Set_Fill_Style(device, platform::Fill_Style::Hollow);
}

void Draw_Line(platform::Device_Context* device, Pixel_Point from, Pixel_Point to) {
    platform::MoveToEx(device, from.x, from.y);
    platform::LineTo(device, to.x, to.y);
}

/// A text in black with its top left corner at the point.
void Draw_Label(platform::Device_Context* device, Pixel_Point at, std::string_view text) {
    platform::Set_Pen_Colour(device, platform::Colour_Black);
    platform::TextOutA(device, at.x, at.y, text);
}

/// A disc in the pen and fill that are set. Its radius goes by whole percents of the target's
/// width.
void Draw_Disc(const Chart_Target& target, Pixel_Point at) {
    const std::int32_t radius = Round_To_Long(target.width / 100.0);
    platform::Ellipse(target.device, at.x - radius, at.y + radius, at.x + radius, at.y - radius);
}

std::string Runway_Label(const std::string& id, std::int16_t heading) {
    std::string label;
    if (show_runway_ids) label = id;
    if (show_runway_headings) label += "  " + std::to_string(heading) + "*";
    return label;
}

struct Path_Ends {
    Fix_Point start;
    Fix_Point end;
};

template <typename Element>
std::optional<Fix_Point> Place_At(const std::vector<Element>& table, std::int32_t index) {
    if (index < 0 || static_cast<std::size_t>(index) >= table.size()) return std::nullopt;
    const Element& element = table[static_cast<std::size_t>(index)];
    return Fix_Point{element.lat, element.lon};
}

/// The ends of a path; those of the path before it for a kind that has no meaning here. Nothing if
/// the path refers outside its tables: it has no picture.
std::optional<Path_Ends> Ends_Of(const Taxi_Path& path, const Path_Ends& before) {
    if (path.kind != Path_Taxiway && path.kind != Path_Runway && path.kind != Path_Parking) {
        return before;
    }
    const auto start = Place_At(current_airport.taxi_points, path.start_point);
    const auto end = path.kind == Path_Parking
                         ? Place_At(current_airport.parkings, path.end_point)
                         : Place_At(current_airport.taxi_points, path.end_point);
    if (!start || !end) return std::nullopt;
    return Path_Ends{*start, *end};
}

/// Half way along the path, where its name stands.
Fix_Point Middle_Of(const Path_Ends& ends) {
    const auto [start, end] = ends;
    const std::int16_t feet = Distance_Feet(start.lat, start.lon, end.lat, end.lon);
    const std::int16_t course = Magnetic_To_True(
        Magnetic_Course(start.lat, start.lon, end.lat, end.lon), start.lat, start.lon);
    return Destination_Feet(start.lat, start.lon, course, Round_To_Integer(feet / 2.0));
}

bool Has_Label(const Taxi_Path& path) {
    return show_taxiway_ids && path.kind == Path_Taxiway && !path.name.empty() && path.name != " ";
}

void Draw_Airport_Name(const Chart_Target& target) {
    if (!In_View(current_airport.lat, current_airport.lon)) return;
    Draw_Label(target.device, Project(target, current_airport.lat, current_airport.lon),
               current_airport.airport_name);
}

// Each layer walks its table of the airport with the pen width and style that it finds, and leaves
// the colours as its last step set them.

/// Discs of one hundredth of the target's width at every zoom, with their names.
void Draw_Parkings(const Chart_Target& target) {
    for (const Parking_Info& parking : current_airport.parkings) {
        if (!In_View(parking.lat, parking.lon)) continue;
        Set_Solid(target.device, Brown);
        const Pixel_Point centre = Project(target, parking.lat, parking.lon);
        Draw_Disc(target, centre);
        Draw_Label(target.device, centre, parking.name);
    }
}

/// Lines with the taxiways' names at their middles.
void Draw_Taxiways(const Chart_Target& target) {
    Path_Ends ends;
    for (const Taxi_Path& path : current_airport.taxi_paths) {
        const auto found = Ends_Of(path, ends);
        if (!found) continue;
        ends = *found;
        const auto [start, end] = ends;
        if (!In_View(start.lat, start.lon) && !In_View(end.lat, end.lon)) continue;

        Set_Hollow(target.device, Silver);
        Draw_Line(target.device, Project(target, start.lat, start.lon),
                  Project(target, end.lat, end.lon));
        if (!Has_Label(path)) continue;
        // The middle costs more than all the rest, and serves the label alone.
        const Fix_Point middle = Middle_Of(ends);
        Draw_Label(target.device, Project(target, middle.lat, middle.lon), path.name);
    }
}

/// One line a runway, with ids and magnetic headings at both ends; also those outside the view.
void Draw_Runways(const Chart_Target& target) {
    for (const Runway_Info& runway : current_airport.runways) {
        Set_Hollow(target.device, Green);
        const Pixel_Point end_1 = Project(target, runway.lat_1, runway.lon_1);
        const Pixel_Point end_2 = Project(target, runway.lat_2, runway.lon_2);
        Draw_Line(target.device, end_1, end_2);
        platform::Set_Pen_Colour(target.device, platform::Colour_Black);
        if (!show_runway_ids && !show_runway_headings) continue;
        Draw_Label(target.device, end_1, Runway_Label(runway.id_1, runway.mag_heading_1));
        Draw_Label(target.device, end_2, Runway_Label(runway.id_2, runway.mag_heading_2));
    }
}

/// Triangles out along the approach, with the frequency at their tips.
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
        platform::Set_Pen_Colour(target.device, platform::Colour_Black);
        if (show_ils_frequency) platform::TextOutA(target.device, tip.x, tip.y, ils.freq + " Mhz");
    }
}

}  // namespace

void Set_Outline(platform::Device_Context* device, int width, platform::Colour pen) {
    platform::Set_Pen_Style(device, platform::Pen_Style::Solid);
    platform::Set_Pen_Width(device, width);
    Set_Hollow(device, pen);
}

void Draw_Chart(const Chart_Target& target) {
    const bool airport_shows = chart_view.zoom_rate >= Zoom_Airport;
    const Airport_Info& airport = current_airport;

    if (!airport_shows && show_airspace && !current_airspaces.empty()) Draw_Airspaces(target);

    Set_Outline(target.device, 2, Green);
    if (airport_shows) {
        if (show_gates && !airport.parkings.empty()) Draw_Parkings(target);
        if (show_taxiways && !airport.taxi_paths.empty()) Draw_Taxiways(target);
        if (!airport.runways.empty()) Draw_Runways(target);
    }

    Set_Outline(target.device, 1, Green);
    if (airport_shows && show_ils && !airport.ils.empty()) Draw_ILS(target);
    if (show_airport_name) Draw_Airport_Name(target);
}

void Draw_Aircraft(const Chart_Target& target) {
    if (!chart_view.link_open || !In_View(aircraft_lat, aircraft_lon)) return;
    const Pixel_Point centre = Project(target, aircraft_lat, aircraft_lon);
    const Fix_Point ahead =
        Destination_Feet(aircraft_lat, aircraft_lon, aircraft_heading, Heading_Line_Feet);
    Set_Solid(target.device, Green);
    Draw_Disc(target, centre);
    Draw_Line(target.device, centre, Project(target, ahead.lat, ahead.lon));
    platform::TextOutA(target.device, centre.x, centre.y, "Your Plane");
}

}  // namespace skerrand
