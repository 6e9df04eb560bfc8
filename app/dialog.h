#pragma once

#include "platform/window.h"

namespace skerrand {

/// Puts a dialog of the chart above all windows, the chart among them, in the screen's top left
/// corner. To be called in its load.
inline void Place_Dialog(const platform::Window& window) {
    platform::SetWindowPos(window, platform::Insert_After::HWND_TOPMOST, 0, 0, 0, 0,
                           platform::SWP_NOSIZE);
}

}  // namespace skerrand
