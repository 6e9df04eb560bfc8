#pragma once

#include <string>

#include "platform/headless/device.h"

/// A picture put into words.
namespace platform::headless {

/// The call with the state that it was made in, as `picture` and `page` show it. Windows-1252.
std::string Call_Text(const Picture& picture, const Drawing_Call& call);

/// "R,G,B".
std::string Colour_Text(Colour colour);

/// Measures of a picture in its pixels.
struct Svg_Measures {
    int width = 0;
    int height = 0;
    int text_height = 0;
};

/// The picture as an SVG file.
std::string Svg_Text(const Picture& picture, const Svg_Measures& measures);

}  // namespace platform::headless
