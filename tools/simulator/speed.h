#pragma once

#include <span>
#include <vector>

#include "tools/simulator/way.h"

/// How fast a way is followed.
namespace simulator {

/// A part of a way, with what the aircraft can and may do there.
struct Leg {
    Arc arc;
    double speed = 0;         ///< at most, metres a second
    double acceleration = 0;  ///< metres a second, each second
    double braking = 0;       ///< the same, positive
};

/// Time with one acceleration.
struct Stretch {
    double start = 0;     ///< seconds since the first leg's start
    double distance = 0;  ///< metres from there
    double speed = 0;
    double acceleration = 0;
    double duration = 0;
};

/// From a stand at the start of the first leg to a stand at the end of the last, each leg as fast
/// as it and its neighbours allow.
std::vector<Stretch> Time_Of(std::span<const Leg> legs);

struct Progress {
    double distance = 0;  ///< metres from the start of the first leg
    double speed = 0;     ///< metres a second
};

/// Where the aircraft is at that time, which may be before the first or after the last stretch.
Progress Progress_At(std::span<const Stretch> stretches, double seconds);

}  // namespace simulator
