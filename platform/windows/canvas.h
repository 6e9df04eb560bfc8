#pragma once

#include "platform/windows/live.h"

/// The picture of a window's client area: what is drawn stays in a bitmap, from which it is shown
/// again whenever it is uncovered.
namespace platform::windows {

/// Makes the bitmap, wiped; until then drawing is lost.
void Open_Canvas(Live_Window& window);
void Close_Canvas(Live_Window& window);

/// Gives it the size of the client area: the picture stays, a new strip has the back colour.
void Fit_Canvas(Live_Window& window);

/// Lets the system show what has been drawn since the last time.
void Show_Canvas(Live_Window& window);

void Paint_Canvas(Live_Window& window);

/// The picture of the splash window: an airport on a chart.
void Draw_Picture(HDC dc, const RECT& place);

/// What of the picture lies behind a label, onto the label itself.
void Paint_Behind(const Live_Control& label, HDC dc);

}  // namespace platform::windows
