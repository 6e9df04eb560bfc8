#pragma once

#include <string_view>

#include "platform/windows/live.h"

/// A combo box whose list is narrowed by typing to the entries that hold the text. The native one
/// takes long to fill, and picks what was typed as soon as its list drops; so its own list stays
/// empty, and another drops in its place, which asks for an entry only when it shows it.
namespace platform::windows {

void Set_Up_Combo(Live_Control& combo);

/// Takes the selection away, as all that is not a pick does.
void Set_Combo_Text(Live_Control& combo, std::string_view text);

/// Shows the entries that hold what the user has typed.
void Narrow_Combo(Live_Control& combo);

/// Takes the list away, unless the press was on it or its combo box.
void Close_List_By_Press(HWND pressed);
void Close_List(Live_Control& combo);

/// Draws an entry of the list.
void Draw_Entry(const Live_Window& window, const DRAWITEMSTRUCT& item);

}  // namespace platform::windows
