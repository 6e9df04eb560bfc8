#pragma once

#include <array>
#include <vector>

#include "scenery/airport_info.h"

/// A flight: down a runway, along the great circle, and down the runway of the destination.
namespace simulator {

/// From the middle of the Earth; those here have the length 1.
using Vector = std::array<double, 3>;

/// A part of a great circle, which neither the date line nor a pole disturbs.
struct Leg {
    Vector at{};       ///< its start
    Vector ahead{};    ///< the direction there
    double angle = 0;  ///< its length, in radians
};

struct Aircraft {
    double lat = 0, lon = 0;  ///< degrees, north and east positive, longitude -180 to 180
    double heading = 0;       ///< true, -180 to 180 degrees
};

/// The longest runway from its first end; the angle is 0 if the airport has none of 100 m or more
/// whose ends are places on the Earth.
Leg Longest_Runway(const skerrand::Airport_Info& airport);

/// Between the longest runways, each in the direction that lies nearer to the way. Without a
/// destination straight on, once round the Earth. All airports must have such a runway.
std::vector<Leg> Plan_Flight(const skerrand::Airport_Info& departure,
                             const skerrand::Airport_Info* destination);

/// Seconds from the stand at the start to the stand at the end.
double Duration(const std::vector<Leg>& flight);

/// Ahead of its start the aircraft stands at the start, after its end at the end.
Aircraft Aircraft_At(const std::vector<Leg>& flight, double seconds);

}  // namespace simulator
