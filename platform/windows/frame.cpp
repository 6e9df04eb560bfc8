#include "platform/windows/frame.h"

#include "platform/windows/builder.h"
#include "platform/windows/canvas.h"
#include "platform/windows/handlers.h"
#include "platform/windows/measures.h"
#include "platform/windows/menus.h"
#include "platform/windows/procedure.h"
#include "platform/windows/text.h"

namespace platform::windows {

namespace {

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
    const LONG missing = To_Pixels(window.table->client_height) - client.bottom;
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

Window_State State_Of(const Live_Window& window) {
    return IsIconic(window.handle) ? Window_State::Minimised : Window_State::Normal;
}

}  // namespace

std::unique_ptr<Live_Window> Make_Window(const Window& table) {
    auto window = std::make_unique<Live_Window>();
    window->table = &table;
    window->user_bounds = {0, 0, static_cast<double>(table.client_width),
                           static_cast<double>(table.client_height)};
    window->device.pen_colour = table.fore_colour;
    window->back_brush = CreateSolidBrush(Native_Colour(table.back_colour));
    for (const Control& row : table.controls) {
        Live_Control control;
        control.window = window.get();
        control.row = &row;
        window->controls.push_back(std::move(control));
    }
    const DWORD style = Style_Of(table.frame);
    const HMENU menu_bar = Build_Menus(*window);
    const SIZE size = Frame_Size(table, style, menu_bar);
    window->handle = CreateWindowExW(0, Window_Class(), To_Wide(table.caption).c_str(), style,
                                     CW_USEDEFAULT, CW_USEDEFAULT, size.cx, size.cy, nullptr,
                                     menu_bar, GetModuleHandleW(nullptr), window.get());
    if (table.frame == Frame_Style::Splash) Centre(window->handle, size);
    Fit_Client(*window);
    Build_Controls(*window);
    return window;
}

void Present(Live_Window& window) {
    if (!window.was_shown) {
        Open_Canvas(window);
        window.reported_size = Outer_Pixels(window);
        window.was_shown = true;
    }
    ShowWindow(window.handle, SW_SHOW);
    SetForegroundWindow(window.handle);
    UpdateWindow(window.handle);
}

void Dismiss(Live_Window& window) {
    if (window.is_unloading) return;
    window.is_unloading = true;
    Call(window.table->unload);
    for (Live_Control& control : window.controls)
        control.running = false;
    SendMessageW(window.handle, WM_CANCELMODE, 0, 0);
    Retire_Window(window);
}

void Minimise_Now(Live_Window& window) {
    if (!window.was_shown || State_Of(window) == Window_State::Minimised) return;
    const Handler_Scope scope;
    window.reported_size = Outer_Pixels(window);
    window.reported_state = Window_State::Minimised;
    ShowWindow(window.handle, SW_MINIMIZE);
    Call(window.table->resize);
}

SIZE Outer_Pixels(const Live_Window& window) {
    if (State_Of(window) == Window_State::Minimised) return window.reported_size;
    RECT frame;
    GetWindowRect(window.handle, &frame);
    return {frame.right - frame.left, frame.bottom - frame.top};
}

void Report_Size(Live_Window& window) {
    if (!window.was_shown || window.is_unloading || Is_Busy()) return;
    const Window_State state = State_Of(window);
    const SIZE size = Outer_Pixels(window);
    const SIZE& known = window.reported_size;
    if (state == window.reported_state && size.cx == known.cx && size.cy == known.cy) return;
    window.reported_state = state;
    window.reported_size = size;
    On_Event([&window] { Call(window.table->resize); });
}

}  // namespace platform::windows
