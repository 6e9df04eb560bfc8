#pragma once

#include <vector>

#include "tools/simulator/speed.h"

/// A flight from its first to its last stand. Where the aircraft is follows from the time alone.
namespace simulator {

struct Flight {
    std::vector<Leg> legs;
    std::vector<Stretch> stretches;
};

struct Aircraft {
    double lat = 0, lon = 0;  ///< degrees, north and east positive
    double heading = 0;       ///< true, 0 to 360 degrees
    double speed = 0;         ///< metres a second
};

/// Ahead of its start the aircraft stands at the start, after its end at the end.
Aircraft Aircraft_At(const Flight& flight, double seconds);

/// Seconds from start to end.
double Duration(const Flight& flight);

}  // namespace simulator
