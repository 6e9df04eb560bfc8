#include <utility>

#include "platform/windows/canvas.h"
#include "platform/windows/controls.h"
#include "platform/windows/measures.h"
#include "platform/windows/program.h"
#include "platform/windows/text.h"

namespace platform::windows {

namespace {

std::vector<Live_Window*> retired;

DWORD Style_Of(Frame_Style frame) {
    constexpr DWORD Captioned = WS_CAPTION | WS_SYSMENU | WS_CLIPCHILDREN;
    switch (frame) {
        case Frame_Style::Fixed:
            return Captioned | WS_MINIMIZEBOX;
        case Frame_Style::Sizable:
            return Captioned | WS_MINIMIZEBOX | WS_THICKFRAME;
        case Frame_Style::Dialog:
            return Captioned;
        default:
            return WS_POPUP | WS_CLIPCHILDREN;
    }
}

/// The frame round a client area of that many twips.
SIZE Frame_Size(const Window& table, DWORD style, HMENU menu_bar) {
    RECT frame{0, 0, To_Pixels(table.client_width), To_Pixels(table.client_height)};
    AdjustWindowRectEx(&frame, style, menu_bar != nullptr, 0);
    return {frame.right - frame.left, frame.bottom - frame.top};
}

/// A menu bar that needs a second line takes it from the client area.
void Fit_Client(const Live_Window& window) {
    RECT client, frame;
    GetClientRect(window.handle, &client);
    GetWindowRect(window.handle, &frame);
    const LONG missing = To_Pixels(window.table.client_height) - client.bottom;
    if (missing == 0) return;
    ::SetWindowPos(window.handle, nullptr, 0, 0, frame.right - frame.left,
                   frame.bottom - frame.top + missing, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void Centre(HWND window, SIZE size) {
    RECT area;
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &area, 0);
    ::SetWindowPos(window, nullptr, (area.left + area.right - size.cx) / 2,
                   (area.top + area.bottom - size.cy) / 2, 0, 0,
                   SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

/// A caption that was condensed has a font of its own.
void Drop_Narrow_Font(const Live_Control& control) {
    if (control.handle == nullptr) return;
    const auto font = reinterpret_cast<HFONT>(SendMessageW(control.handle, WM_GETFONT, 0, 0));
    if (font != nullptr && font != control.font && font != Default_Font()) DeleteObject(font);
}

}  // namespace

Live_Window::Live_Window(const Window& window)
    : common::Live_Window(window), back_brush(CreateSolidBrush(Native_Colour(table.back_colour))) {
    device.pen_colour = table.fore_colour;
    controls.reserve(table.controls.size());
    for (const Control& row : table.controls)
        rows.push_back(&controls.emplace_back(*this, row));
    const DWORD style = Style_Of(table.frame);
    const HMENU menu_bar = Build_Menus(*this);
    const SIZE size = Frame_Size(table, style, menu_bar);
    handle = CreateWindowExW(0, Window_Class(), To_Wide(caption).c_str(), style, CW_USEDEFAULT,
                             CW_USEDEFAULT, size.cx, size.cy, nullptr, menu_bar,
                             GetModuleHandleW(nullptr), this);
    if (table.frame == Frame_Style::Splash) Centre(handle, size);
    Fit_Client(*this);
    Build_Controls(*this);
}

Live_Window::~Live_Window() {
    for (Live_Control& control : controls) {
        if (control.list != nullptr) DestroyWindow(control.list);
        Tell_Name(control.handle, {});
        Drop_Narrow_Font(control);
    }
    SetWindowLongPtrW(handle, GWLP_USERDATA, 0);
    DestroyWindow(handle);
    for (Live_Control& control : controls) {
        if (control.font != nullptr) DeleteObject(control.font);
    }
    Close_Canvas(*this);
    DeleteObject(back_brush);
}

void Live_Window::Present() {
    if (!was_shown) {
        Open_Canvas(*this);
        reported_size = Frame_Pixels();
        was_shown = true;
    }
    ShowWindow(handle, SW_SHOW);
    SetForegroundWindow(handle);
    UpdateWindow(handle);
}

void Live_Window::Retire() {
    SendMessageW(handle, WM_CANCELMODE, 0, 0);
    retired.push_back(this);
}

void Live_Window::Show_Caption() {
    SetWindowTextW(handle, To_Wide(caption).c_str());
}

void Live_Window::Show_Drawing() {
    for (const Live_Window* window : retired)
        ShowWindow(window->handle, SW_HIDE);
    Show_Canvas(*this);
}

void Live_Window::Repaint() {
    RedrawWindow(handle, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
}

Window_State Live_Window::State() const {
    return IsIconic(handle) ? Window_State::Minimised : Window_State::Normal;
}

Pixels Live_Window::Frame_Pixels() const {
    RECT frame;
    GetWindowRect(handle, &frame);
    return {frame.right - frame.left, frame.bottom - frame.top};
}

// Without a change of the focus: the simulator has it while the chart comes above it.
void Live_Window::Place(int x, int y, int cx, int cy, unsigned flags) {
    const auto place = reinterpret_cast<HWND>(LONG_PTR{is_topmost ? -1 : -2});
    ::SetWindowPos(handle, place, x, y, cx, cy, flags | SWP_NOACTIVATE);
    Report_Size();
}

void Destroy_Retired() {
    if (Is_Busy()) return;
    for (const Live_Window* window : std::exchange(retired, {}))
        delete window;
}

}  // namespace platform::windows

platform::common::Live_Window* platform::common::Make_Window(const Window& table) {
    return new windows::Live_Window(table);
}
