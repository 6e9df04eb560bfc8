#include "tools/simulator/way.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace simulator {

namespace {

constexpr double Full_Turn = 2 * std::numbers::pi;
/// A turn that lacks less than this to a full one, in radians, is none at all with a rounding
/// error.
constexpr double Nearly_Nothing = 1e-7;

/// Which way a turn goes.
constexpr double Left = 1;
constexpr double Right = -1;

struct Circle {
    Vector centre;
    double radius = 0;  ///< radians
    double side = Left;
};

Circle Circle_At(const Pose& pose, double radius, double side) {
    const double angle = radius / Earth_Radius;
    return {std::cos(angle) * pose.at + side * std::sin(angle) * Left_Of(pose), angle, side};
}

double Forward(double angle) {
    if (angle < 0) angle += Full_Turn;
    return angle > Full_Turn - Nearly_Nothing ? 0 : angle;
}

Arc Along(const Circle& circle, const Vector& from, const Vector& to) {
    const double angle = Forward(circle.side * Angle_About(circle.centre, from, to));
    const double size = std::sin(circle.radius) * Earth_Radius;  // metres to the radian
    return {from, circle.centre, angle * size, circle.side / size};
}

/// The axis of the straight way that leaves the first circle and meets the second; false if they
/// lie on different sides of it and too near to each other.
bool Tangent_Axis(const Circle& first, const Circle& last, Vector& axis) {
    const Vector across = last.centre - first.centre;
    const double half = Length(across) / 2;  // sine of half the angle between the centres
    const Vector middle = Unit(first.centre + last.centre);
    const double to_first = first.side * std::sin(first.radius);
    const double to_last = last.side * std::sin(last.radius);
    const double up = (to_first + to_last) / 2 / std::sqrt(1 - half * half);
    const double along = (to_last - to_first) / 2 / half;
    const double rest = 1 - up * up - along * along;
    if (rest < 0) return false;
    const Vector unit_across = Unit(across);
    axis = up * middle + along * unit_across + std::sqrt(rest) * Cross(middle, unit_across);
    return true;
}

/// Where a circle touches the great circle of that axis.
Vector Touch(const Circle& circle, const Vector& axis) {
    return Unit(circle.centre - Dot(circle.centre, axis) * axis);
}

/// Empty if there is no such way.
std::vector<Arc> Way_By(const Circle& first, const Circle& last, const Pose& from, const Pose& to) {
    if (Length(last.centre - first.centre) < 1e-12) {
        if (first.side != last.side) return {};
        const Arc turn = Along(first, from.at, to.at);
        return {turn, Straight(to, 0), {to.at, last.centre, 0, turn.turn}};
    }
    Vector axis;
    if (!Tangent_Axis(first, last, axis)) return {};
    const Vector leave = Touch(first, axis);
    const Vector meet = Touch(last, axis);
    const double angle = Forward(Angle_About(axis, leave, meet));
    return {Along(first, from.at, leave),
            {leave, axis, angle * Earth_Radius, 1 / Earth_Radius},
            Along(last, meet, to.at)};
}

double Length_Of(const std::vector<Arc>& way) {
    double length = 0;
    for (const Arc& arc : way)
        length += arc.length;
    return length;
}

}  // namespace

Arc Straight(const Pose& from, double length) {
    return {from.at, Left_Of(from), length, 1 / Earth_Radius};
}

Pose Pose_At(const Arc& arc, double distance) {
    const Vector at = Rotate(arc.start, arc.axis, arc.turn * distance);
    const double side = arc.turn < 0 ? Right : Left;
    return {at, Unit(side * Cross(arc.axis, at))};
}

std::vector<Arc> Shortest_Way(const Pose& from, const Pose& to, double radius) {
    std::vector<Arc> best;
    for (const double first : {Left, Right}) {
        for (const double last : {Left, Right}) {
            std::vector<Arc> way =
                Way_By(Circle_At(from, radius, first), Circle_At(to, radius, last), from, to);
            const bool better = best.empty() || Length_Of(way) < Length_Of(best);
            if (!way.empty() && better) best = std::move(way);
        }
    }
    return best;
}

}  // namespace simulator
