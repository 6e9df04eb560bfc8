#pragma once

#include "platform/windows/native.h"

namespace platform::windows {

/// The picture of the splash window: an airport on a chart.
void Draw_Picture(HDC dc, const RECT& place);

}  // namespace platform::windows
