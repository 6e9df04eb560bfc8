#pragma once

#include <QLineF>
#include <QRectF>
#include <QVarLengthArray>
#include <optional>

/// Cutting to what can be seen. The program's points may lie two thousand million pixels outside of
/// the picture; the toolkit's own arithmetic is only sound for some ten thousand.
namespace platform::desktop {

/// The part of the line that runs through the rectangle; nothing if none does.
std::optional<QLineF> Clip_Line(const QLineF& line, const QRectF& area);

/// An ellipse whose axes lie along those of the picture. A point of it is
/// (centre.x + radius_x * cos t, centre.y - radius_y * sin t), so that t grows counter-clockwise.
struct Ellipse_Shape {
    QPointF centre;
    double radius_x = 0;
    double radius_y = 0;

    QPointF At(double t) const;
};

struct Range {
    double from = 0;
    double to = 0;
};

using Visible_Parts = QVarLengthArray<Range, 8>;

/// The parts of the range of t, in ascending order, whose points lie inside the rectangle.
Visible_Parts Visible_Ranges(const Ellipse_Shape& shape, Range range, const QRectF& area);

}  // namespace platform::desktop
