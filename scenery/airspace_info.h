#pragma once

#include <cstdint>
#include <string>
#include <vector>

/// One airspace as the chart holds it. Positions are degrees, north and east positive.
namespace skerrand {

enum class Boundary_Kind : std::uint8_t {
    Point_Start = 0,    ///< the outline starts, or starts anew, here
    Point_Center = 1,   ///< the centre of the arcs and circles that follow
    Point_Circle = 2,   ///< a full circle round the last centre
    Point_Arc_Cw = 3,   ///< clockwise round the last centre, from the last position to here
    Point_Arc_Ccw = 4,  ///< the same counter-clockwise
    Point_Line = 5,     ///< a straight line from the last position to here
};

struct Boundary_Point {
    Boundary_Kind kind = Boundary_Kind::Point_Start;
    double lat = 0, lon = 0;  ///< 0 in a circle
    std::int32_t radius = 0;  ///< nautical miles, only in a circle
};

struct Airspace_Info {
    std::vector<Boundary_Point> boundary;  ///< the outline in the order of the file
    double center_lat = 0, center_lon = 0;
    std::int32_t low_limit = 0;  ///< as stored in the file
    std::int32_t high_limit = 0;
    std::string freq_text;    ///< each frequency as its number, " Mhz" and two blanks
    std::string class_label;  ///< one of the texts that the search gives
    std::string name;
    std::string facility_text;  ///< text of the last frequency record
};

}  // namespace skerrand
