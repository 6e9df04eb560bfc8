#include "tools/simulator/runway_line.h"

#include <algorithm>
#include <cmath>

namespace simulator {

namespace {

constexpr double Shortest = 100;  // metres
constexpr double Metres_Per_Foot = 0.3048;

bool On_Earth(double lat, double lon) {
    return std::abs(lat) <= 90 && std::abs(lon) <= 360;
}

}  // namespace

Runway_Line Longest_Runway(const skerrand::Airport_Info& airport) {
    Runway_Line longest;
    for (const skerrand::Runway_Info& runway : airport.runways) {
        if (!On_Earth(runway.lat_1, runway.lon_1) || !On_Earth(runway.lat_2, runway.lon_2))
            continue;
        const Vector end_1 = Point_Of({runway.lat_1, runway.lon_1});
        const Vector end_2 = Point_Of({runway.lat_2, runway.lon_2});
        const double length = Distance(end_1, end_2);
        if (length < Shortest || length <= longest.length) continue;
        longest = {Facing(end_1, end_2), length, runway.width_ft * Metres_Per_Foot};
    }
    return longest;
}

Runway_Line Reversed(const Runway_Line& line) {
    const Pose end = On_Line(line, line.length);
    return {{end.at, -1 * end.ahead}, line.length, line.width};
}

Pose On_Line(const Runway_Line& line, double distance) {
    return Pose_At(Straight(line.start, 0), distance);
}

Offset Offset_From(const Runway_Line& line, const Vector& point) {
    const double along = std::asin(std::clamp(Dot(point, line.start.ahead), -1.0, 1.0));
    const double left = std::asin(std::clamp(Dot(point, Left_Of(line.start)), -1.0, 1.0));
    return {along * Earth_Radius, left * Earth_Radius};
}

}  // namespace simulator
