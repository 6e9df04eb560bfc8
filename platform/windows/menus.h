#pragma once

#include "platform/windows/live.h"

namespace platform::windows {

/// The menu bar; null if the table has no menus.
HMENU Build_Menus(Live_Window& window);

void Set_Menu_Caption(const Live_Control& entry, std::string_view caption);
void Enable_Menu(const Live_Control& entry, bool enabled);

}  // namespace platform::windows
