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

/// A font of that height in pixels of a device; what stands in `like` otherwise.
HFONT Make_Default_Font(int pixels);

/// In pixels of the screen.
SIZE Text_Extent(HFONT font, std::wstring_view text);

}  // namespace platform::windows
