#pragma once

#include <string_view>

#include "platform/window.h"
#include "platform/windows/native.h"

/// Lengths and fonts at the screen's resolution, which is that of the system for all screens.
namespace platform::windows {

inline constexpr double Twips_Per_Inch = 1440;

int Screen_Dpi();

/// To whole pixels; edges are rounded, so that neighbours stay neighbours.
int To_Pixels(int twips);
RECT To_Pixels(const Box& box);

/// The default font, which lives as long as the process.
HFONT Default_Font();

/// The row's font; null if that is the default font.
HFONT Make_Font(const Font& font);

/// The default font in that height, in pixels of any device.
HFONT Make_Default_Font(int pixels);

/// The same font with narrower letters, for a text that has so many pixels; not so narrow that it
/// is hard to read.
HFONT Make_Narrow_Font(HFONT font, std::wstring_view text, int room);

/// In pixels of the screen.
SIZE Text_Extent(HFONT font, std::wstring_view text);

}  // namespace platform::windows
