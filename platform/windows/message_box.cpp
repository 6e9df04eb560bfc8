#include "platform/message_box.h"

#include "platform/windows/live.h"
#include "platform/windows/program.h"
#include "platform/windows/text.h"

namespace platform {

namespace {

UINT Native_Icon(Icon icon) {
    switch (icon) {
        case Icon::Information:
            return MB_ICONINFORMATION;
        case Icon::Exclamation:
            return MB_ICONEXCLAMATION;
        default:
            return MB_ICONERROR;
    }
}

/// The window that the box belongs to: the active one, else the one shown last.
HWND Owner() {
    HWND owner = nullptr;
    const HWND active = GetActiveWindow();
    for (const auto* each : windows::Loaded_Windows()) {
        const auto* window = static_cast<const windows::Live_Window*>(each);
        if (!IsWindowVisible(window->handle) || IsIconic(window->handle)) continue;
        if (window->handle == active) return active;
        owner = window->handle;
    }
    return owner;
}

/// The other windows take no input either while the box stands. Its owner it disables itself, and
/// enables ahead of its own end: a disabled one could not become the active window then.
void Set_Input(HWND owner, bool enabled) {
    for (const auto* each : windows::Loaded_Windows()) {
        const auto* window = static_cast<const windows::Live_Window*>(each);
        if (window->handle != owner) EnableWindow(window->handle, enabled && window->takes_input);
    }
}

}  // namespace

void Message_Box(std::string_view text, Icon icon, std::string_view title) {
    bool is_topmost = false;
    for (common::Live_Window* window : windows::Loaded_Windows()) {
        is_topmost = is_topmost || window->is_topmost;
        window->Show_Drawing();
    }
    const UINT style =
        MB_OK | MB_SETFOREGROUND | Native_Icon(icon) | (is_topmost ? MB_TOPMOST : 0U);
    {
        const windows::Handler_Scope scope;
        const HWND owner = Owner();
        Set_Input(owner, false);
        MessageBoxW(owner, windows::To_Wide(text).c_str(), windows::To_Wide(title).c_str(), style);
        Set_Input(owner, true);
    }
    windows::Drop_Due_Ticks();
}

}  // namespace platform
