#pragma once

#include <QVarLengthArray>

#include "platform/desktop/clip.h"
#include "platform/desktop/dashes.h"

/// Curves as polylines.
namespace platform::desktop {

using Curve_Points = QVarLengthArray<Way_Point, 128>;

/// Lengths along an ellipse's outline.
struct Outline {
    double angle = 0;   ///< how the length grows with t, all in all
    double waves[3]{};  ///< what is added times sin 2t, sin 4t and sin 6t
};

/// With lengths stretched so that the whole outline is a whole number of periods: whichever part of
/// it is drawn, and from wherever, a dash of it lies at the same place.
Outline Outline_Of(const Ellipse_Shape& shape, double period);

/// From the point at t = 0 to that at t.
double Way_To(const Outline& outline, double t);

/// The points of a part of the outline, at places that do not depend on where the part starts, and
/// at its ends. A line between them strays less than a quarter of a pixel from the curve.
Curve_Points Points_Of(const Ellipse_Shape& shape, const Outline& outline, Range part);

}  // namespace platform::desktop
