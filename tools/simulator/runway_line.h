#pragma once

#include "scenery/airport_info.h"
#include "tools/simulator/way.h"

/// A runway in the direction in which it is used.
namespace simulator {

struct Runway_Line {
    Pose start;
    double length = 0;  ///< metres, of the part between the ends that the database has
    double width = 0;   ///< metres
};

/// The longest runway, from its first end; a length of 0 if none is at least 100 m long.
Runway_Line Longest_Runway(const skerrand::Airport_Info& airport);

/// The same runway from its other end.
Runway_Line Reversed(const Runway_Line& line);

/// The pose on the extended centre line so many metres behind the start, or ahead of it if
/// negative.
Pose On_Line(const Runway_Line& line, double distance);

/// A point beside the line, metres from its start: along it, and to its left.
struct Offset {
    double along = 0, left = 0;
};

/// Good for points within some ten kilometres.
Offset Offset_From(const Runway_Line& line, const Vector& point);

}  // namespace simulator
