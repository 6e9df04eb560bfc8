#pragma once

#include <string>
#include <string_view>

#include "platform/windows/live.h"

/// What controls show and what they tell.
namespace platform::windows {

/// A caption in which no character stands for an underlined key.
std::wstring Escaped_Caption(std::string_view caption);

/// Puts the caption or text of its row into a new control.
void Show_First_Caption(Live_Control& control);

/// A control's notice to its window, by its number.
void Take_Notice(Live_Control& control, WORD notice);

/// The text that stands in a native window; what Windows-1252 does not have comes as "?".
std::string Window_Text(HWND handle);

}  // namespace platform::windows
