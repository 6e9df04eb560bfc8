#pragma once

#include <string_view>

#include "chart/chart_view.h"
#include "platform/colour.h"

/// The few steps that the layers share.
namespace skerrand {

/// A solid pen of a width in pixels of the target.
void Set_Pen(platform::Device_Context* device, int width);

/// Pen and fill in one colour, the fill solid.
void Set_Solid(platform::Device_Context* device, platform::Colour colour);

/// The pen in a colour; the fill black and hollow, so that it shows nowhere.
void Set_Hollow(platform::Device_Context* device, platform::Colour pen);

void Draw_Line(platform::Device_Context* device, Pixel_Point from, Pixel_Point to);

/// A text in black with its top left corner at the point.
void Draw_Label(platform::Device_Context* device, Pixel_Point at, std::string_view text);

}  // namespace skerrand
