#pragma once

namespace platform::desktop {

struct Live_Control;

/// The user has done to the control what its handler is for.
void Fire(Live_Control& control);

}  // namespace platform::desktop
