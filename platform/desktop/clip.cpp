#include "platform/desktop/clip.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace platform::desktop {

namespace {

constexpr double Turn = 2 * std::numbers::pi;
constexpr double Quarter = Turn / 4;

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

using Crossings = QVarLengthArray<double, 24>;

/// Adds both angles at which `cosine` is the cosine, each in all its turns within the range.
void Add_Crossings(double cosine, double turned_by, Range range, Crossings& crossings) {
    if (!(std::abs(cosine) <= 1)) return;
    const double angle = std::acos(cosine);
    for (const double sign : {-1.0, 1.0}) {
        double t = sign * angle + turned_by;
        t += Turn * std::ceil((range.from - t) / Turn);
        for (; t < range.to; t += Turn)
            crossings.push_back(t);
    }
}

/// The least rectangle round a part of an ellipse.
QRectF Box_Of(const Ellipse_Shape& shape, Range range) {
    const QPointF start = shape.At(range.from);
    const QPointF end = shape.At(range.to);
    double left = std::min(start.x(), end.x());
    double right = std::max(start.x(), end.x());
    double top = std::min(start.y(), end.y());
    double bottom = std::max(start.y(), end.y());
    // The outermost points lie at whole quarters of a turn.
    const double last = std::min(range.to, range.from + Turn);
    for (double i = std::ceil(range.from / Quarter); i * Quarter <= last; ++i) {
        const QPointF point = shape.At(i * Quarter);
        left = std::min(left, point.x());
        right = std::max(right, point.x());
        top = std::min(top, point.y());
        bottom = std::max(bottom, point.y());
    }
    return {QPointF(left, top), QPointF(right, bottom)};
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
    if (part.from == 0 && part.to == 1) return line;
    return QLineF(line.x1() + part.from * dx, line.y1() + part.from * dy, line.x1() + part.to * dx,
                  line.y1() + part.to * dy);
}

QPointF Ellipse_Shape::At(double t) const {
    return {centre.x() + radius_x * std::cos(t), centre.y() - radius_y * std::sin(t)};
}

Visible_Parts Visible_Ranges(const Ellipse_Shape& shape, Range range, const QRectF& area) {
    const QRectF box = Box_Of(shape, range);
    if (box.left() > area.right() || box.right() < area.left() || box.top() > area.bottom() ||
        box.bottom() < area.top()) {
        return {};
    }
    if (area.contains(box.topLeft()) && area.contains(box.bottomRight())) return {range};

    Crossings cuts{range.from, range.to};
    Add_Crossings((area.left() - shape.centre.x()) / shape.radius_x, 0, range, cuts);
    Add_Crossings((area.right() - shape.centre.x()) / shape.radius_x, 0, range, cuts);
    // sin t is cos (t - a quarter turn).
    Add_Crossings((shape.centre.y() - area.top()) / shape.radius_y, Quarter, range, cuts);
    Add_Crossings((shape.centre.y() - area.bottom()) / shape.radius_y, Quarter, range, cuts);
    std::sort(cuts.begin(), cuts.end());

    Visible_Parts parts;
    for (int i = 1; i < cuts.size(); ++i) {
        const Range part{cuts[i - 1], cuts[i]};
        if (part.to <= part.from || !area.contains(shape.At((part.from + part.to) / 2))) continue;
        if (!parts.isEmpty() && parts.back().to == part.from) {
            parts.back().to = part.to;
        } else {
            parts.append(part);
        }
    }
    return parts;
}

}  // namespace platform::desktop
