#pragma once

namespace platform::desktop {

class Window_Widget;

/// Builds the menu bar from the table's menu rows; none if there are no such rows.
void Build_Menus(Window_Widget& window);

}  // namespace platform::desktop
