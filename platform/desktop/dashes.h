#pragma once

#include <QLineF>
#include <QPointF>
#include <QVarLengthArray>

#include "platform/desktop/device.h"

/// The pattern of a dashed pen. Places in it are counted along the figure: its `way`.
namespace platform::desktop {

/// Pixels; a period is a dash and the gap behind it.
struct Dash_Pattern {
    double dash = 0;
    double period = 0;
};

Dash_Pattern Dashes_Of(const Device_Context& device);

/// The way from the start of a period, 0 at least and below the period.
double Place_In_Period(const Dash_Pattern& pattern, double way);

/// A point of a figure that is made of straight pieces.
struct Way_Point {
    QPointF at;
    double way = 0;
};

using Dash_Lines = QVarLengthArray<QLineF, 256>;

/// Adds the dashes of the piece between two points as lines of their own.
void Add_Dashes(const Dash_Pattern& pattern, const Way_Point& from, const Way_Point& to,
                Dash_Lines& dashes);

}  // namespace platform::desktop
