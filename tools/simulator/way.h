#pragma once

#include <vector>

#include "tools/simulator/sphere.h"

/// Ways over the ground: straight ahead along great circles, and turns along small ones.
namespace simulator {

/// A part of a circle on the Earth. Straight ahead is a circle too, with its axis at the left.
struct Arc {
    Vector start;
    Vector axis;
    double length = 0;  ///< metres
    double turn = 0;    ///< radians about the axis for each metre; negative for a right turn
};

Arc Straight(const Pose& from, double length);

/// The pose after so many metres along the arc, which may be more than its length.
Pose Pose_At(const Arc& arc, double distance);

/// The shortest way of a turn, a straight part and a turn, all three always present though some may
/// have no length. Both turns have that radius, in metres, which is small against the Earth's.
std::vector<Arc> Shortest_Way(const Pose& from, const Pose& to, double radius);

}  // namespace simulator
