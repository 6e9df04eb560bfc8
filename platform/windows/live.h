#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/common/handlers.h"
#include "platform/common/live.h"
#include "platform/windows/device.h"
#include "platform/windows/native.h"

/// The loaded windows and their controls with their native ones.
namespace platform::windows {

using namespace common;

struct Live_Window;

struct Live_Control final : common::Live_Control {
    using common::Live_Control::Live_Control;

    RECT place = {};          ///< pixels of the client area
    HWND handle = nullptr;    ///< null for a menu entry, a timer and a picture
    HFONT font = nullptr;     ///< of its own, if it has one
    bool is_setting = false;  ///< the program is at work on it: what it tells is no news

    HWND list = nullptr;                   ///< the one that a combo box drops: its matches
    std::vector<std::wstring> subfolders;  ///< of a folder list, by their native names
    HWND path_line = nullptr;              ///< above a folder list: where it is

    Live_Window& Holder() const;

    void Show_Caption() override;
    void Show_Text() override;
    void Show_Enabled() override;
    void Show_Checked() override;
    void Show_Transparent() override { InvalidateRect(handle, nullptr, TRUE); }
    void Show_Entries() override;
    void Show_Progress() override;
    void Repaint() override;
    void Fit_Timer() override;
    bool Go_To(std::string_view path) override;
};

struct Live_Window final : common::Live_Window {
    explicit Live_Window(const Window& window);
    ~Live_Window() override;

    HWND handle = nullptr;
    HBRUSH back_brush;
    std::vector<Live_Control> controls;  ///< in the order of the table
    Device_Context device;
    HBITMAP bitmap = nullptr;  ///< the picture of the client area
    SIZE bitmap_size = {};
    HWND focus = nullptr;       ///< the control to get it back
    HWND lost_focus = nullptr;  ///< disabled while it had the focus

    void Present() override;
    /// It stays on the screen until the running handler has ended, so that the next window comes
    /// before this one goes and keeps the focus in the program.
    void Retire() override;
    void Show_Caption() override;
    void Show_Input() override { EnableWindow(handle, takes_input); }
    void Show_Drawing() override;
    void Repaint() override;
    void Wipe() override;
    Window_State State() const override;
    Pixels Frame_Pixels() const override;
    void Show_Minimised() override { SendMessageW(handle, WM_SYSCOMMAND, SC_MINIMIZE, 0); }
    void Place(int x, int y, int cx, int cy, unsigned flags) override;
};

inline Live_Window* Find_Window(const Window& window) {
    return static_cast<Live_Window*>(common::Find_Window(window));
}

inline Live_Control* Find_Live(Control_Ref control) {
    return static_cast<Live_Control*>(common::Find_Live(control));
}

/// Destroys the retired windows; not while a handler runs.
void Destroy_Retired();

}  // namespace platform::windows
