#pragma once

#include <cstdint>
#include <string_view>

#include "platform/colour.h"
#include "platform/window.h"

/// The drawing calls and the drawing state of a target, the window or the printer's page.
///
/// Points are pixels of the target, from the top left corner of the client area or of the page,
/// x to the right and y downwards; what lies outside is cut off. The state stays until it is set
/// again. A null device takes every call and draws nothing.
namespace platform {

struct Device_Context;

/// The window's drawing target; null if the window is not loaded. Valid until it is unloaded.
Device_Context* Window_Device(const Window& window);

enum class Pen_Style : std::uint8_t { Solid, Dashed };
enum class Fill_Style : std::uint8_t { Solid, Hollow };

/// The pen draws lines and outlines; its colour is the colour of text too. Width in pixels.
void Set_Pen_Colour(Device_Context* device, Colour colour);
void Set_Pen_Width(Device_Context* device, int width);
void Set_Pen_Style(Device_Context* device, Pen_Style style);

/// The fill is the inside of ellipses and rectangles; a hollow one leaves it as it stands.
void Set_Fill_Colour(Device_Context* device, Colour colour);
void Set_Fill_Style(Device_Context* device, Fill_Style style);

/// Sets the current position.
void MoveToEx(Device_Context* device, int x, int y);

/// A line from the current position to the point, which becomes the current position.
void LineTo(Device_Context* device, int x, int y);

/// The ellipse in the rectangle of two corners, which come in any order.
void Ellipse(Device_Context* device, int left, int top, int right, int bottom);

/// The rectangle of two corners, which come in any order.
void Rectangle(Device_Context* device, int left, int top, int right, int bottom);

/// An arc of the ellipse in that rectangle, counter-clockwise on the screen from the radial through
/// (x1, y1) to the radial through (x2, y2); the whole ellipse if the radials are the same. The pen
/// alone draws it, and the current position stays.
void Arc(Device_Context* device, int left, int top, int right, int bottom, int x1, int y1, int x2,
         int y2);

/// A text with its top left corner at the point, in the pen's colour and the default font.
void TextOutA(Device_Context* device, int x, int y, std::string_view text);

}  // namespace platform
