#include "platform/window.h"

#include "platform/windows/canvas.h"
#include "platform/windows/frame.h"
#include "platform/windows/handlers.h"
#include "platform/windows/live.h"
#include "platform/windows/text.h"

namespace platform {

using windows::Find_Window;
using windows::Live_Window;

void Show(const Window& window) {
    const windows::Handler_Scope scope;
    if (Find_Window(window) == nullptr) {
        windows::Add_Window(windows::Make_Window(window));
        windows::Call(window.load);
    }
    // The load handler may have unloaded the window or ended the program.
    Live_Window* live = Find_Window(window);
    if (live != nullptr && !windows::Is_Ending()) windows::Present(*live);
}

void Unload(const Window& window) {
    const windows::Handler_Scope scope;
    if (Live_Window* live = Find_Window(window)) windows::Dismiss(*live);
}

bool Is_Loaded(const Window& window) {
    return Find_Window(window) != nullptr;
}

void Set_Caption(const Window& window, std::string_view caption) {
    if (const Live_Window* live = Find_Window(window)) {
        SetWindowTextW(live->handle, windows::To_Wide(caption).c_str());
    }
}

void Set_Enabled(const Window& window, bool enabled) {
    Live_Window* live = Find_Window(window);
    if (live == nullptr) return;
    live->takes_input = enabled;
    EnableWindow(live->handle, enabled);
}

void Repaint(const Window& window) {
    Live_Window* live = Find_Window(window);
    if (live == nullptr) return;
    windows::Show_Drawing(*live);
    RedrawWindow(live->handle, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
}

Window_State State_Of(const Window& window) {
    const Live_Window* live = Find_Window(window);
    const bool is_minimised = live != nullptr && IsIconic(live->handle);
    return is_minimised ? Window_State::Minimised : Window_State::Normal;
}

void Minimise(const Window& window) {
    if (Live_Window* live = Find_Window(window)) windows::Minimise_Now(*live);
}

Size Outer_Size(const Window& window) {
    const Live_Window* live = Find_Window(window);
    if (live == nullptr) return {};
    const SIZE pixels = windows::Outer_Pixels(*live);
    return {static_cast<double>(pixels.cx) / Twips_To_Pixels_X(1),
            static_cast<double>(pixels.cy) / Twips_To_Pixels_Y(1)};
}

void Erase(const Window& window) {
    if (Live_Window* live = Find_Window(window)) windows::Wipe_Canvas(*live);
}

void Set_User_Coordinates(const Window& window, double left, double top, double right,
                          double bottom) {
    if (Live_Window* live = Find_Window(window)) live->user_bounds = {left, top, right, bottom};
}

// Without a change of the focus: the simulator has it while the chart comes above it.
void SetWindowPos(const Window& window, Insert_After after, int x, int y, int cx, int cy,
                  unsigned flags) {
    Live_Window* live = Find_Window(window);
    if (live == nullptr) return;
    live->is_topmost = after == Insert_After::HWND_TOPMOST;
    const auto place = reinterpret_cast<HWND>(LONG_PTR{live->is_topmost ? -1 : -2});
    ::SetWindowPos(live->handle, place, x, y, cx, cy, flags | SWP_NOACTIVATE);
    windows::Report_Size(*live);
}

}  // namespace platform
