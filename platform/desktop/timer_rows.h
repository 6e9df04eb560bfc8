#pragma once

namespace platform::desktop {

struct Live_Control;

/// Makes the timer of a table row and starts it if the row says so.
void Build_Timer(Live_Control& control);

}  // namespace platform::desktop
