#pragma once

#include <QRect>

#include "platform/window.h"

/// Three units of length: twips (1440 to the inch), the toolkit's logical pixels, in which widgets
/// are laid out, and device pixels, which are the program's pixels. On a screen at twice the size a
/// logical pixel is two device pixels wide.
namespace platform::desktop {

inline constexpr double Twips_Per_Inch = 1440;
inline constexpr double Points_Per_Inch = 72;

/// Logical pixels to the inch; 96 on most screens.
double Logical_Dpi();

/// Device pixels to a logical pixel on the primary screen.
double Device_Ratio();

int To_Logical(int twips);

/// The edges are rounded one by one, so that boxes that touch in twips touch on the screen.
QRect To_Logical(const Box& box);

}  // namespace platform::desktop
