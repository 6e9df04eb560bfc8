#pragma once

#include "platform/windows/native.h"

namespace platform::windows {

/// The class of all windows, registered at the first call.
const wchar_t* Window_Class();

/// Hands a message of the queue to the window that it is for: as to a dialog, so that the Tab key
/// and the arrows work.
void Dispatch(MSG& message);

}  // namespace platform::windows
