#include "platform/desktop/drawing/clip.h"

#include <algorithm>
#include <cmath>

namespace platform::desktop {

namespace {

constexpr double Quarter = Turn / 4;

/// How far a polyline may stray from its curve, in pixels.
constexpr double Chord_Error = 0.2;

/// Narrows the part [from, to] of a line to where its distance `start + t * step` to an edge is not
/// negative; false if nothing of it is left.
bool Narrow(double start, double step, Range& part) {
    if (step == 0) return start >= 0;
    const double t = -start / step;
    if (step > 0) {
        part.from = std::max(part.from, t);
    } else {
        part.to = std::min(part.to, t);
    }
    return part.from <= part.to;
}

QPointF Point_At(const Ellipse_Shape& shape, double t) {
    return {shape.x + shape.radius_x * std::cos(t), shape.y - shape.radius_y * std::sin(t)};
}

}  // namespace

std::optional<QLineF> Clip_Line(const QLineF& line, const QRectF& area) {
    Range part{0, 1};
    const double dx = line.dx();
    const double dy = line.dy();
    const bool visible =
        Narrow(line.x1() - area.left(), dx, part) && Narrow(area.right() - line.x1(), -dx, part) &&
        Narrow(line.y1() - area.top(), dy, part) && Narrow(area.bottom() - line.y1(), -dy, part);
    if (!visible) return std::nullopt;
    return QLineF(part.from == 0 ? line.p1() : line.pointAt(part.from),
                  part.to == 1 ? line.p2() : line.pointAt(part.to));
}

Visible_Parts Visible_Ranges(const Ellipse_Shape& shape, Range range, const QRectF& area) {
    QVarLengthArray<double, 10> cuts{range.from, range.to};
    // Both angles at which the outline crosses an edge's line, by the cosine of the angle or, for
    // the sine, of one that is a quarter smaller.
    const auto add = [&](double cosine, double turned_by) {
        if (!(std::abs(cosine) <= 1)) return;
        for (const double angle : {std::acos(cosine), -std::acos(cosine)}) {
            const double t = std::fmod(angle + turned_by + Turn, Turn);
            if (range.from < t && t < range.to) cuts.append(t);
        }
    };
    add((area.left() - shape.x) / shape.radius_x, 0);
    add((area.right() - shape.x) / shape.radius_x, 0);
    add((shape.y - area.top()) / shape.radius_y, Quarter);
    add((shape.y - area.bottom()) / shape.radius_y, Quarter);
    std::sort(cuts.begin(), cuts.end());

    Visible_Parts parts;
    for (int i = 1; i < cuts.size(); ++i) {
        if (area.contains(Point_At(shape, (cuts[i - 1] + cuts[i]) / 2))) {
            parts.append({cuts[i - 1], cuts[i]});
        }
    }
    return parts;
}

QPolygonF Points_Of(const Ellipse_Shape& shape, Range part) {
    const double radius = std::max({shape.radius_x, shape.radius_y, 1.0});
    const double step = Turn / std::ceil(Turn / std::sqrt(8 * Chord_Error / radius));
    QPolygonF points{Point_At(shape, part.from)};
    for (double i = std::floor(part.from / step) + 1; i * step < part.to; ++i)
        points.append(Point_At(shape, i * step));
    points.append(Point_At(shape, part.to));
    return points;
}

double Length(Measure measure, QPointF step) {
    return measure == Measure::Painted_Pixels ? std::max(std::abs(step.x()), std::abs(step.y()))
                                              : std::hypot(step.x(), step.y());
}

double Way_To(Measure measure, const Ellipse_Shape& shape, double t) {
    if (measure == Measure::Painted_Pixels) return shape.Painted_Way_To(t);
    // The series of an ellipse's arc by its third flattening.
    const double mean = (shape.radius_x + shape.radius_y) / 2;
    const double n = (shape.radius_x - shape.radius_y) / (2 * mean);
    const double n2 = n * n;
    return mean * ((1 + n2 / 4 + n2 * n2 / 64) * t + n * (n2 / 16 - 0.5) * std::sin(2 * t) +
                   n2 * (n2 / 64 - 0.0625) * std::sin(4 * t) - n2 * n / 48 * std::sin(6 * t));
}

}  // namespace platform::desktop
