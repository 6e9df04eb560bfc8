#pragma once

namespace platform::desktop {

class Window_Widget;

/// Builds the menus, controls and timers of the window's table; calls no handler of the program.
void Build_Controls(Window_Widget& window);

}  // namespace platform::desktop
