#pragma once

#include <string>

#include "platform/headless/device.h"

/// A picture put into words.
namespace platform::headless {

/// The call with the state that it was made in, as `picture` and `page` show it. Windows-1252.
std::string Call_Text(const Picture& picture, const Drawing_Call& call);

/// "R,G,B".
std::string Colour_Text(Colour colour);

/// The picture as an SVG file of that size in pixels.
std::string Svg_Text(const Picture& picture, int width, int height);

}  // namespace platform::headless
