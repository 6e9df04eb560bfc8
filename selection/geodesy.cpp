#include "selection/geodesy.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "scenery/magnetic.h"
#include "selection/rounding.h"

namespace skerrand {

namespace {

// Pi and two pi are these decimals, not the full values: every stored position and drawn pixel
// follows from them. A nautical mile is one minute of arc.
constexpr double Pi = 3.14159265358979;
constexpr double Two_Pi = 6.28318530717958;
constexpr double Degrees_To_Radians = Pi / 180;
constexpr double Radians_To_Degrees = 180 / Pi;
constexpr double Radians_To_Miles = 10800 / Pi;
constexpr double Miles_To_Radians = Pi / 10800;

constexpr double Feet_Per_Mile = 6080;  // the round figure, not 6076
constexpr double Meters_Per_Mile = 1852;
constexpr double Longest = 32767;  // distances are 16-bit

/// Great-circle angle between two points, all in radians.
double Central_Angle(double lat1, double lon1, double lat2, double lon2) {
    if (std::trunc(lat1 - lat2) == 0 && std::trunc(lon2 - lon1) == 0) {
        const double half_lat = std::sin((lat1 - lat2) / 2);
        const double half_lon = std::sin((lon1 - lon2) / 2);
        return 2 * Arc_Sin(std::sqrt(half_lat * half_lat +
                                     std::cos(lat1) * std::cos(lat2) * (half_lon * half_lon)));
    }
    return Arc_Cos(std::sin(lat1) * std::sin(lat2) +
                   std::cos(lat1) * std::cos(lat2) * std::cos(lon1 - lon2));
}

double Distance_In_Miles(double lat1, double lon1, double lat2, double lon2) {
    return Central_Angle(lat1 * Degrees_To_Radians, lon1 * Degrees_To_Radians,
                         lat2 * Degrees_To_Radians, lon2 * Degrees_To_Radians) *
           Radians_To_Miles;
}

/// Variation in whole degrees, east positive, cut towards zero.
int Variation(double lat, double lon) {
    const double row = std::nearbyint(lat);
    double column = std::nearbyint(lon);
    if (column < 0) column += 360;
    const double index = (row + 90) + 181 * column;
    if (!(index >= 0 && index < static_cast<double>(magnetic_table.size()))) return 0;
    return magnetic_table[static_cast<std::size_t>(index)] * 360 / 65536;
}

Fix_Point Destination(double lat, double lon, int course, double miles, double power) {
    // Longitude counts west positive from here to the last step.
    const double west = -lon * Degrees_To_Radians;
    const double north = lat * Degrees_To_Radians;
    const double bearing = course * Degrees_To_Radians;
    const double angle = miles * Miles_To_Radians;

    const double lat2 = Arc_Sin(std::sin(north) * std::cos(angle) +
                                std::cos(north) * std::sin(angle) * std::cos(bearing));
    double west2 = west;
    if (std::cos(lat2) != 0) {
        const double turn = Arc_Sin(std::sin(bearing) * std::sin(angle) / std::cos(lat2));
        west2 = Float_Mod(west - turn + Pi, Two_Pi) - Pi;
    }
    return {Round_Decimals(lat2 * Radians_To_Degrees, power),
            Round_Decimals(-west2 * Radians_To_Degrees, power)};
}

}  // namespace

double Arc_Sin(double x) {
    if (x < -1 || x > 1) return 0;
    return 2 * std::atan(x / (1 + std::sqrt(1 - x * x)));
}

double Arc_Cos(double x) {
    if (x < -1 || x > 1) return 0;
    if (x >= 0) return 2 * std::atan(std::sqrt((1 - x) / (1 + x)));
    return Pi - 2 * std::atan(std::sqrt((1 + x) / (1 - x)));
}

double Float_Mod(double y, double x) {
    const double rest = y - x * std::floor(y / x);
    return rest < 0 ? rest + x : rest;
}

std::int16_t Wrap_Degrees(int heading) {
    if (heading > 360) heading -= 360;
    if (heading < 0) heading += 360;
    return static_cast<std::int16_t>(std::clamp(heading, -32768, 32767));
}

std::int16_t True_To_Magnetic(int heading, double lat, double lon) {
    return Wrap_Degrees(heading - Variation(lat, lon));
}

std::int16_t Magnetic_To_True(int heading, double lat, double lon) {
    return Wrap_Degrees(heading + Variation(lat, lon));
}

std::int16_t Magnetic_Course(double lat1, double lon1, double lat2, double lon2) {
    const double north1 = lat1 * Degrees_To_Radians;
    const double east1 = lon1 * Degrees_To_Radians;
    const double north2 = lat2 * Degrees_To_Radians;
    const double east2 = lon2 * Degrees_To_Radians;
    const double angle = Central_Angle(north1, east1, north2, east2);

    // The formula counts longitude the other way round; the subtraction from 360 sets that right.
    double course = 0;
    if (angle != 0) {
        const double quotient = (std::sin(north2) - std::sin(north1) * std::cos(angle)) /
                                (std::sin(angle) * std::cos(north1));
        course = std::sin(east2 - east1) < 0 ? Arc_Cos(quotient) : Two_Pi - Arc_Cos(quotient);
    }
    const int clockwise = 360 - Round_To_Long(std::floor(course * Radians_To_Degrees));
    return True_To_Magnetic(Wrap_Degrees(clockwise), lat1, lon1);
}

std::int16_t Distance_NM(double lat1, double lon1, double lat2, double lon2) {
    return Round_To_Integer(std::min(Distance_In_Miles(lat1, lon1, lat2, lon2), Longest));
}

std::int16_t Distance_Feet(double lat1, double lon1, double lat2, double lon2) {
    const double miles = Round_Decimals(Distance_In_Miles(lat1, lon1, lat2, lon2), 1e5);
    const double feet = Round_Decimals(miles * Feet_Per_Mile, 1e5);
    return Round_To_Integer(std::min(feet, Longest));
}

Fix_Point Destination_Meters(double lat, double lon, int course, double distance) {
    return Destination(lat, lon, course, std::abs(distance) / Meters_Per_Mile, 1e6);
}

Fix_Point Destination_NM(double lat, double lon, int course, int distance) {
    return Destination(lat, lon, course, std::max(distance, 0), 1e5);
}

Fix_Point Destination_Feet(double lat, double lon, int course, int distance) {
    return Destination(lat, lon, course, std::max(distance, 0) / Feet_Per_Mile, 1e5);
}

}  // namespace skerrand
