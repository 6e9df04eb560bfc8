#include "platform/desktop/clip.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace platform::desktop {

namespace {

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

/// Adds both angles at which `cosine` is the cosine, each in all its turns within the range.
void Add_Crossings(double cosine, double turned_by, Range range, std::vector<double>& crossings) {
    if (!(std::abs(cosine) <= 1)) return;
    constexpr double Turn = 2 * std::numbers::pi;
    for (const double sign : {-1.0, 1.0}) {
        double t = sign * std::acos(cosine) + turned_by;
        t += Turn * std::ceil((range.from - t) / Turn);
        for (; t < range.to; t += Turn)
            crossings.push_back(t);
    }
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

std::vector<Range> Visible_Ranges(const Ellipse_Shape& shape, Range range, const QRectF& area) {
    constexpr double Quarter = std::numbers::pi / 2;
    std::vector<double> cuts{range.from, range.to};
    Add_Crossings((area.left() - shape.centre.x()) / shape.radius_x, 0, range, cuts);
    Add_Crossings((area.right() - shape.centre.x()) / shape.radius_x, 0, range, cuts);
    // sin t is cos (t - a quarter turn).
    Add_Crossings((shape.centre.y() - area.top()) / shape.radius_y, Quarter, range, cuts);
    Add_Crossings((shape.centre.y() - area.bottom()) / shape.radius_y, Quarter, range, cuts);
    std::sort(cuts.begin(), cuts.end());

    std::vector<Range> ranges;
    for (std::size_t i = 1; i < cuts.size(); ++i) {
        const Range part{cuts[i - 1], cuts[i]};
        if (part.to <= part.from || !area.contains(shape.At((part.from + part.to) / 2))) continue;
        if (!ranges.empty() && ranges.back().to == part.from) {
            ranges.back().to = part.to;
        } else {
            ranges.push_back(part);
        }
    }
    return ranges;
}

}  // namespace platform::desktop
