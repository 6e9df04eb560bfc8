#pragma once

#include <span>
#include <string>
#include <string_view>

#include "platform/window.h"

/// What the program asks of a window's controls. An operation on a kind that has no such property,
/// or on a window that is not loaded, does nothing; a question answers empty, 0, -1 or false.
/// Changes made here call the control's handler where a change made by the user would.
namespace platform {

/// Of a frame, label, button, check box, option button or menu entry.
void Set_Caption(Control_Ref control, std::string_view caption);

/// Of a text or combo box; in a combo box it clears the selection.
void Set_Text(Control_Ref control, std::string_view text);
std::string Text_Of(Control_Ref control);

/// A control that is disabled with the focus gives it to the next one that takes it, and has it
/// again once it is enabled.
void Set_Enabled(Control_Ref control, bool enabled);

/// Brings the control up to date on the screen at once.
void Repaint(Control_Ref control);

/// Of a check box or option button. Selecting an option button clears its neighbours in the same
/// frame. Calls the click handler if the value changes (an option button: if it becomes selected).
void Set_Checked(Control_Ref control, bool checked);
bool Is_Checked(Control_Ref control);

/// Of a label: whether the background shows through.
void Set_Transparent(Control_Ref control, bool transparent);

/// Entries of a combo box or list. A sorted one orders all its entries by their bytes after the
/// addition, so add many at once. The selection is cleared by both; in a combo box its text goes
/// with it, while a text that was typed or set stays.
void Clear_Entries(Control_Ref control);
void Add_Entries(Control_Ref control, std::span<const std::string> entries);

/// Entries of a combo, list, drive or folder list.
int Entry_Count(Control_Ref control);
/// The text of an entry, counted from 0; empty outside the list.
std::string Entry_Text(Control_Ref control, int index);
/// The entry that the user picked, counted from 0; -1 if there is none, also when text was typed
/// that happens to stand in the list.
int Selected_Index(Control_Ref control);

/// Of a folder list. The path is the file system's own, without a separator at its end unless it is
/// a root. Setting a folder that does not exist changes nothing. A two-character drive name stands
/// for that drive's current folder; an empty path for where the list starts, which is the working
/// folder unless the back-end knows a better place.
std::string Folder_Path(Control_Ref control);
void Set_Folder_Path(Control_Ref control, std::string_view path);

/// The two-character name of the drive that a drive list shows; empty if there is none.
std::string Drive_Name(Control_Ref control);

/// Of a progress bar. `minimum` <= `value` <= `maximum` holds after it: a value outside is moved to
/// the nearer end. An empty range shows an empty bar.
struct Progress {
    int value = 0;
    int minimum = 0;
    int maximum = 100;
};
void Set_Progress(Control_Ref control, const Progress& progress);
Progress Progress_Of(Control_Ref control);

}  // namespace platform
