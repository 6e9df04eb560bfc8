#pragma once

#include <QLineF>

#include "platform/desktop/clip.h"
#include "platform/desktop/device.h"

/// Lines and curves with the device's pen, cut to what can be seen.
namespace platform::desktop {

/// The middle of a pixel, or its corner, whichever makes a straight line of the pen's width crisp.
double Pixel_Middle(const Device_Context& device);

/// A line in the pen's style. `way` is the length of the figure before it and grows by the line's,
/// so that the dashes of a figure run on round its corners.
void Stroke_Line(Device_Context& device, QPainter& painter, const QLineF& line, double& way);

/// The part of an ellipse's outline.
void Stroke_Curve(Device_Context& device, QPainter& painter, const Ellipse_Shape& shape,
                  Range range);

}  // namespace platform::desktop
