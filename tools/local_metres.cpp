#include "tools/local_metres.h"

#include <cmath>
#include <numbers>

#include "tools/bgl_writer.h"

namespace world {

namespace {

constexpr double Radians = std::numbers::pi / 180;
constexpr double Metres_Of_Degree = 60 * 1852.0;
constexpr double Metres_Of_Radian = Metres_Of_Degree / Radians;
constexpr double Runway_Metres_Of_Degree = 40007000.0 / 360;

double Normal_Longitude(double lon) {
    return std::remainder(lon, 360.0);
}

}  // namespace

double Longitude_Between(double from, double to) {
    return Normal_Longitude(to - from);
}

Local_Metres To_Local(Position reference, Position position) {
    // A right-angled triangle on the sphere, its right angle at the reference's meridian.
    const double turn = Longitude_Between(reference.lon, position.lon) * Radians;
    const double arc = std::atan(std::tan(turn) * std::cos(reference.lat * Radians));
    return {arc * Metres_Of_Radian, (position.lat - reference.lat) * Metres_Of_Degree};
}

Position From_Local(Position reference, Local_Metres offset) {
    const double arc = offset.east / Metres_Of_Radian;
    const double turn = std::atan(std::tan(arc) / std::cos(reference.lat * Radians));
    return {reference.lat + offset.north / Metres_Of_Degree,
            Normal_Longitude(reference.lon + turn / Radians)};
}

Runway_Line Line_Of_Runway(Position end_1, Position end_2) {
    const double turn = Longitude_Between(end_1.lon, end_2.lon);
    Runway_Line line;
    line.center = {(end_1.lat + end_2.lat) / 2, Normal_Longitude(end_1.lon + turn / 2)};
    const double north = (end_2.lat - end_1.lat) * Runway_Metres_Of_Degree;
    const double east = turn * std::cos(line.center.lat * Radians) * Runway_Metres_Of_Degree;
    line.heading = std::atan2(east, north) / Radians;
    line.length_m = std::hypot(east, north);
    return line;
}

Position As_Stored(Position position) {
    return {Scaled_Latitude(position.lat) * 90.0 / 10001750,
            Scaled_Longitude(position.lon) * 360.0 / 4294967296.0};
}

}  // namespace world
