#pragma once

#include <cmath>
#include <numbers>

namespace platform::common {

inline constexpr double Turn = 2 * std::numbers::pi;  // radians

/// An ellipse whose axes lie along those of the picture. A point of it is
/// (x + radius_x * cos t, y - radius_y * sin t), so that t grows counter-clockwise.
struct Ellipse_Shape {
    double x = 0;
    double y = 0;
    double radius_x = 0;
    double radius_y = 0;

    /// Where the radial through a place meets the outline, from 0 to Turn: a radial at an angle of
    /// the circle meets the ellipse at the angle of the point that the same squeeze of both axes
    /// would bring there.
    double Angle_Of(double to_x, double to_y) const {
        const double t = std::atan2((y - to_y) / radius_y, (to_x - x) / radius_x);
        return t < 0 ? t + Turn : t;
    }

    /// The pixels that a thin pen paints from the point at t = 0 to that at t, from 0 to Turn. In
    /// each quarter first the one axis has more of them, then the other.
    double Painted_Way_To(double t) const {
        const double quarters = std::floor(t / (Turn / 4));
        const double u = t - quarters * (Turn / 4);
        const bool is_upright = std::fmod(quarters, 2) == 0;
        const double first = is_upright ? radius_y : radius_x;
        const double second = is_upright ? radius_x : radius_y;
        const double whole = std::hypot(first, second);
        const bool is_first = first * std::cos(u) > second * std::sin(u);
        return quarters * whole + (is_first ? first * std::sin(u) : whole - second * std::cos(u));
    }
};

}  // namespace platform::common
