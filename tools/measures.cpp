#include "tools/measures.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace world {

namespace {

constexpr double Radians = std::numbers::pi / 180;
constexpr double Metres_Of_Degree = 60 * 1852.0;
constexpr double Runway_Metres_Of_Degree = 40007000.0 / 360;

}  // namespace

Local_Metres To_Local(Position reference, Position position) {
    // A right-angled triangle on the sphere, its right angle at the reference's meridian.
    const double turn = std::remainder(position.lon - reference.lon, 360.0) * Radians;
    const double arc = std::atan(std::tan(turn) * std::cos(reference.lat * Radians));
    return {arc * (Metres_Of_Degree / Radians), (position.lat - reference.lat) * Metres_Of_Degree};
}

Runway_Line Line_Of_Runway(Position end_1, Position end_2) {
    const double turn = std::remainder(end_2.lon - end_1.lon, 360.0);
    Runway_Line line;
    line.center = {(end_1.lat + end_2.lat) / 2, std::remainder(end_1.lon + turn / 2, 360.0)};
    const double north = (end_2.lat - end_1.lat) * Runway_Metres_Of_Degree;
    const double east = turn * std::cos(line.center.lat * Radians) * Runway_Metres_Of_Degree;
    line.heading = std::atan2(east, north) / Radians;
    line.length_m = std::hypot(east, north);
    return line;
}

Position Place_From(Position from, double course, double miles) {
    const double lat = from.lat * Radians;
    const double arc = miles / 60 * Radians;
    const double north =
        std::sin(lat) * std::cos(arc) + std::cos(lat) * std::sin(arc) * std::cos(course * Radians);
    const double east = std::sin(course * Radians) * std::sin(arc);
    const double ahead =
        std::cos(lat) * std::cos(arc) - std::sin(lat) * std::sin(arc) * std::cos(course * Radians);
    return {std::asin(std::clamp(north, -1.0, 1.0)) / Radians,
            std::remainder(from.lon + std::atan2(east, ahead) / Radians, 360.0)};
}

}  // namespace world
