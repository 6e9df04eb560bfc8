#pragma once

#include <QPointF>
#include <QRectF>
#include <string_view>

#include "platform/desktop/device.h"

/// Figures with the device's pen and fill. A box is the rectangle round a figure; its right and
/// bottom edges are the first pixels outside.
namespace platform::desktop {

QRectF Sorted_Box(int left, int top, int right, int bottom);

void Draw_Ellipse(Device_Context& device, QPainter& painter, const QRectF& box);
void Draw_Rectangle(Device_Context& device, QPainter& painter, const QRectF& box);

/// Counter-clockwise from the radial through the first point to that through the second.
void Draw_Arc(Device_Context& device, QPainter& painter, const QRectF& box, QPointF from,
              QPointF to);

/// The point is the text's top left corner.
void Draw_Text(Device_Context& device, QPainter& painter, QPointF at, std::string_view text);

}  // namespace platform::desktop
