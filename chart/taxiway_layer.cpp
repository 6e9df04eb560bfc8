#include <cmath>
#include <optional>
#include <span>

#include "chart/airport_layers.h"
#include "chart/colours.h"
#include "chart/current_chart.h"
#include "chart/layer_pen.h"
#include "platform/drawing.h"
#include "selection/geodesy.h"
#include "selection/rounding.h"

namespace skerrand {

namespace {

struct Place {
    double lat = 0;
    double lon = 0;
};

struct Path_Ends {
    Place start;
    Place end;
};

template <typename Element>
std::optional<Place> Place_At(const std::vector<Element>& table, std::int32_t index) {
    if (index < 0 || static_cast<std::size_t>(index) >= table.size()) return std::nullopt;
    const Element& element = table[static_cast<std::size_t>(index)];
    return Place{element.lat, element.lon};
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
Place Middle_Of(const Path_Ends& ends) {
    const auto [start, end] = ends;
    const std::int16_t feet = Distance_Feet(start.lat, start.lon, end.lat, end.lon);
    const std::int16_t course = Magnetic_To_True(
        Magnetic_Course(start.lat, start.lon, end.lat, end.lon), start.lat, start.lon);
    const Fix_Point middle =
        Destination_Feet(start.lat, start.lon, course, Round_To_Integer(feet / 2.0));
    return {middle.lat, middle.lon};
}

bool Has_Label(const Taxi_Path& path) {
    return show_taxiway_ids && path.kind == Path_Taxiway && !path.name.empty() && path.name != " ";
}

}  // namespace

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
        const Place middle = Middle_Of(ends);
        Draw_Label(target.device, Project(target, middle.lat, middle.lon), path.name);
    }
}

}  // namespace skerrand
