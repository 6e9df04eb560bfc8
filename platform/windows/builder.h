#pragma once

#include "platform/windows/live.h"

namespace platform::windows {

/// Makes the native windows of all controls, in the order of the Tab key, and sets up the timers.
void Build_Controls(Live_Window& window);

/// What a control is painted on, with its colours set in `dc`; null for the system's own choice.
HBRUSH Back_Brush(Live_Window& window, HWND handle, HDC dc);

}  // namespace platform::windows
