#include "tools/simulator/sphere.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace simulator {

namespace {

constexpr double Radians = std::numbers::pi / 180;

}  // namespace

Vector operator+(const Vector& a, const Vector& b) {
    return {a.x + b.x, a.y + b.y, a.z + b.z};
}

Vector operator-(const Vector& a, const Vector& b) {
    return {a.x - b.x, a.y - b.y, a.z - b.z};
}

Vector operator*(double factor, const Vector& a) {
    return {factor * a.x, factor * a.y, factor * a.z};
}

double Dot(const Vector& a, const Vector& b) {
    return a.x * b.x + a.y * b.y + a.z * b.z;
}

Vector Cross(const Vector& a, const Vector& b) {
    return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}

double Length(const Vector& a) {
    return std::sqrt(Dot(a, a));
}

Vector Unit(const Vector& a) {
    return 1 / Length(a) * a;
}

Vector Rotate(const Vector& a, const Vector& axis, double angle) {
    const double c = std::cos(angle);
    return c * a + std::sin(angle) * Cross(axis, a) + (1 - c) * Dot(axis, a) * axis;
}

double Angle_About(const Vector& axis, const Vector& a, const Vector& b) {
    // From the axis on, since on a small circle `a` and `b` themselves hardly differ from it.
    const Vector u = a - axis;
    const Vector v = b - axis;
    return std::atan2(Dot(axis, Cross(u, v)), Dot(u, v) - Dot(axis, u) * Dot(axis, v));
}

Vector Point_Of(const Place& place) {
    const double lat = place.lat * Radians;
    const double lon = place.lon * Radians;
    return {std::cos(lat) * std::cos(lon), std::cos(lat) * std::sin(lon), std::sin(lat)};
}

Place Place_Of(const Vector& point) {
    const double lat = std::atan2(point.z, std::hypot(point.x, point.y));
    return {lat / Radians, std::atan2(point.y, point.x) / Radians};
}

double Distance(const Vector& a, const Vector& b) {
    return 2 * std::asin(std::min(1.0, Length(b - a) / 2)) * Earth_Radius;
}

Vector Left_Of(const Pose& pose) {
    return Cross(pose.at, pose.ahead);
}

Pose Facing(const Vector& from, const Vector& to) {
    const Vector way = to - from;
    return {from, Unit(way - Dot(way, from) * from)};
}

double Heading_Of(const Pose& pose) {
    // On a pole, where no direction is east, that of its meridian 90 is taken.
    const double out = std::hypot(pose.at.x, pose.at.y);
    const Vector east = out > 0 ? Vector{-pose.at.y / out, pose.at.x / out, 0} : Vector{0, 1, 0};
    const Vector north = Cross(pose.at, east);
    const double heading = std::atan2(Dot(pose.ahead, east), Dot(pose.ahead, north)) / Radians;
    return heading < 0 ? heading + 360 : heading;
}

}  // namespace simulator
