#include "platform/windows/live.h"

#include <algorithm>
#include <utility>

#include "platform/windows/canvas.h"
#include "platform/windows/frame.h"
#include "platform/windows/handlers.h"
#include "platform/windows/measures.h"

namespace platform::windows {

namespace {

using Windows = std::vector<std::unique_ptr<Live_Window>>;

Windows loaded;
Windows retired;

/// A caption that was condensed has a font of its own.
void Drop_Narrow_Font(const Live_Control& control) {
    if (control.handle == nullptr) return;
    const auto font = reinterpret_cast<HFONT>(SendMessageW(control.handle, WM_GETFONT, 0, 0));
    if (font != nullptr && font != control.font && font != Default_Font()) DeleteObject(font);
}

void Destroy(Live_Window& window) {
    for (Live_Control& control : window.controls) {
        if (control.list != nullptr) DestroyWindow(control.list);
        Drop_Narrow_Font(control);
    }
    SetWindowLongPtrW(window.handle, GWLP_USERDATA, 0);
    DestroyWindow(window.handle);
    for (Live_Control& control : window.controls) {
        if (control.font != nullptr) DeleteObject(control.font);
    }
    Close_Canvas(window);
    DeleteObject(window.back_brush);
}

void Destroy_All(const Windows& windows) {
    for (const auto& window : windows)
        Destroy(*window);
}

}  // namespace

const Windows& Loaded_Windows() {
    return loaded;
}

Live_Window* Find_Window(const Window& window) {
    for (const auto& live : loaded) {
        if (live->table == &window) return live.get();
    }
    return nullptr;
}

Live_Control* Find_Live(Control_Ref control) {
    Live_Window* window = control.window != nullptr ? Find_Window(*control.window) : nullptr;
    if (window == nullptr || control.index >= window->controls.size()) return nullptr;
    return &window->controls[control.index];
}

Live_Control* Find_Live(Control_Ref control, Control_Kind kind) {
    Live_Control* live = Find_Live(control);
    return live != nullptr && live->row->kind == kind ? live : nullptr;
}

Live_Control* Control_Of_Id(Live_Window& window, int id) {
    const auto index = static_cast<std::size_t>(id - First_Id);
    return index < window.controls.size() ? &window.controls[index] : nullptr;
}

void Add_Window(std::unique_ptr<Live_Window> window) {
    loaded.push_back(std::move(window));
}

void Retire_Window(Live_Window& window) {
    const auto place = std::find_if(loaded.begin(), loaded.end(),
                                    [&](const auto& each) { return each.get() == &window; });
    if (place == loaded.end()) return;
    retired.push_back(std::move(*place));
    loaded.erase(place);
}

void Settle_Windows() {
    Show_Drawings();
    // A resize handler may load and unload windows.
    for (std::size_t i = 0; i < loaded.size(); ++i)
        Report_Size(*loaded[i]);
}

void Show_Drawings() {
    for (const auto& window : retired)
        ShowWindow(window->handle, SW_HIDE);
    for (const auto& window : loaded)
        Show_Drawing(*window);
}

void Destroy_Retired() {
    if (!Is_Busy()) Destroy_All(std::exchange(retired, {}));
}

void Destroy_Windows() {
    Destroy_All(std::exchange(loaded, {}));
    Destroy_All(std::exchange(retired, {}));
}

void Fire(const Live_Control& control) {
    if (Find_Window(*control.window->table) != control.window) return;
    On_Event([&control] { Call(control.row->handler); });
}

}  // namespace platform::windows
