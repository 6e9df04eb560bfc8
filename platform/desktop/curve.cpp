#include "platform/desktop/curve.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace platform::desktop {

namespace {

constexpr double Turn = 2 * std::numbers::pi;

/// How far a polyline may stray from its curve, in pixels.
constexpr double Chord_Error = 0.2;

/// An angle by its cosine and sine.
struct Direction {
    double x = 1;
    double y = 0;
};

Direction At_Angle(double t) {
    return {std::cos(t), std::sin(t)};
}

/// The sum of both angles.
Direction Turned(Direction one, Direction other) {
    return {one.x * other.x - one.y * other.y, one.y * other.x + one.x * other.y};
}

double Way(const Outline& outline, double t, Direction direction) {
    const Direction twice = Turned(direction, direction);
    const Direction four_times = Turned(twice, twice);
    const Direction six_times = Turned(four_times, twice);
    return outline.angle * t + outline.waves[0] * twice.y + outline.waves[1] * four_times.y +
           outline.waves[2] * six_times.y;
}

}  // namespace

Outline Outline_Of(const Ellipse_Shape& shape, double period) {
    // The series of an ellipse's arc by its third flattening.
    const double mean = (shape.radius_x + shape.radius_y) / 2;
    const double n = mean > 0 ? (shape.radius_x - shape.radius_y) / (2 * mean) : 0;
    const double n2 = n * n;
    const double angle = mean * (1 + n2 / 4 + n2 * n2 / 64);
    const double periods = std::max(1.0, std::round(angle * Turn / period));
    const double stretch = angle > 0 ? periods * period / (angle * Turn) : 1;
    const double scale = stretch * mean;
    return {stretch * angle,
            {scale * n * (n2 / 16 - 0.5), scale * n2 * (n2 / 64 - 0.0625), -scale * n2 * n / 48}};
}

double Way_To(const Outline& outline, double t) {
    return Way(outline, t, At_Angle(t));
}

Curve_Points Points_Of(const Ellipse_Shape& shape, const Outline& outline, Range part) {
    Curve_Points points;
    const auto add = [&](double t, Direction direction) {
        points.append({QPointF(shape.centre.x() + shape.radius_x * direction.x,
                               shape.centre.y() - shape.radius_y * direction.y),
                       Way(outline, t, direction)});
    };
    const double radius = std::max({shape.radius_x, shape.radius_y, 1.0});
    const double step = Turn / std::ceil(Turn / std::sqrt(8 * Chord_Error / radius));
    const double first = std::floor(part.from / step) + 1;
    const double end = std::ceil(part.to / step);

    add(part.from, At_Angle(part.from));
    if (first < end) {
        const Direction turn = At_Angle(step);
        Direction direction = At_Angle(first * step);
        for (double i = first; i < end; ++i) {
            add(i * step, direction);
            direction = Turned(direction, turn);
        }
    }
    add(part.to, At_Angle(part.to));
    return points;
}

}  // namespace platform::desktop
