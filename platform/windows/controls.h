#pragma once

#include <string>
#include <string_view>

#include "platform/windows/live.h"

/// What controls are built of, what they show and what they tell.
namespace platform::windows {

/// A control's native window, and a menu entry, has the number of its row from here on.
inline constexpr int First_Id = 100;
/// Null for any other number.
Live_Control* Control_Of_Id(Live_Window& window, int id);

/// The menu bar; null if the table has no menus.
HMENU Build_Menus(Live_Window& window);
void Show_Menu_Caption(const Live_Control& entry);
void Enable_Menu(const Live_Control& entry);

/// Makes the native windows of all controls, in the order of the Tab key.
void Build_Controls(Live_Window& window);

/// Tells screen readers a name for a control, and for the text box in a combo box, in place of the
/// one that they would find; an empty one takes it back.
void Tell_Name(HWND handle, const std::wstring& name);

/// What a control is painted on, with its colours set in `dc`; null for the system's own choice.
HBRUSH Back_Brush(Live_Window& window, HWND handle, HDC dc);

/// A caption in which no character stands for an underlined key.
std::wstring Escaped_Caption(std::string_view caption);

/// A control's notice to its window, by its number.
void Take_Notice(Live_Control& control, WORD notice);

/// The text that stands in a native window; what Windows-1252 does not have comes as "?".
std::string Window_Text(HWND handle);

/// Shows the control's text without taking it for news.
void Put_Text(Live_Control& control);

// A combo box whose list is narrowed by typing to the entries that hold the text. The native one
// takes long to fill, and picks what was typed as soon as its list drops; so its own list stays
// empty, and another drops in its place, which asks for an entry only when it shows it.

void Set_Up_Combo(Live_Control& combo);
void Show_Combo_Text(Live_Control& combo);

/// Shows the entries that hold what the user has typed.
void Narrow_Combo(Live_Control& combo);

/// Takes the list away, unless the press was on it or its combo box.
void Close_List_By_Press(HWND pressed);
void Close_List(Live_Control& combo);

/// Draws an entry of the list.
void Draw_Entry(const Live_Window& window, const DRAWITEMSTRUCT& item);

// Lists to find a folder with: the drives, and the folders of one of them. A folder list shows
// where it is and, below, ".." and the subfolders. A double click or the Enter key goes there.

void Fill_Drives(Live_Control& list);

/// Starts in the working folder.
void Set_Up_Folder_List(Live_Control& list);

/// Goes where the user points.
void Walk_Folder_List(Live_Control& list);

}  // namespace platform::windows
