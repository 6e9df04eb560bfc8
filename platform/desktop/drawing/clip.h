#pragma once

#include <QLineF>
#include <QPolygonF>
#include <QRectF>
#include <QVarLengthArray>
#include <optional>

#include "platform/common/ellipse.h"

/// Lines and ellipses, and what of them can be seen. The program's points may lie two thousand
/// million pixels outside of the picture; the toolkit's own arithmetic is only sound for some ten
/// thousand.
namespace platform::desktop {

using common::Ellipse_Shape;
using common::Turn;

/// The part of the line that runs through the rectangle; nothing if none does.
std::optional<QLineF> Clip_Line(const QLineF& line, const QRectF& area);

/// A part of an ellipse's outline; 0 <= from <= to <= Turn.
struct Range {
    double from = 0;
    double to = 0;
};

using Visible_Parts = QVarLengthArray<Range, 9>;

/// The parts of the range, in ascending order, whose points lie inside the rectangle.
Visible_Parts Visible_Ranges(const Ellipse_Shape& shape, Range range, const QRectF& area);

/// The points of a part of the outline, at places that do not depend on where the part starts, and
/// at its ends. A line between them strays less than a quarter of a pixel from the curve.
QPolygonF Points_Of(const Ellipse_Shape& shape, Range part);

/// What the dashes of a line are counted by: the toolkit counts those of a thin pen in an image by
/// the pixels that are painted, those of others by the line's true length.
enum class Measure : bool { True_Length, Painted_Pixels };

double Length(Measure measure, QPointF step);

/// The length of the outline from the point at t = 0 to that at t, from 0 to Turn.
double Way_To(Measure measure, const Ellipse_Shape& shape, double t);

}  // namespace platform::desktop
