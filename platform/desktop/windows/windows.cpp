#include "platform/desktop/windows/windows.h"

#include <algorithm>

#include "platform/desktop/drawing/text.h"
#include "platform/desktop/program.h"
#include "platform/desktop/windows/window_widget.h"
#include "platform/timers.h"

namespace platform {

namespace desktop {

namespace {
std::vector<Window_Widget*> loaded;
}  // namespace

const std::vector<Window_Widget*>& Loaded_Windows() {
    return loaded;
}

Window_Widget* Find_Window(const Window& window) {
    for (Window_Widget* widget : loaded) {
        if (&widget->table == &window) return widget;
    }
    return nullptr;
}

Live_Control* Find_Live(Control_Ref control) {
    Window_Widget* widget = control.window != nullptr ? Find_Window(*control.window) : nullptr;
    if (widget == nullptr || control.index >= widget->controls.size()) return nullptr;
    return &widget->controls[control.index];
}

Live_Control* Find_Live(Control_Ref control, Control_Kind kind) {
    Live_Control* live = Find_Live(control);
    return live != nullptr && live->row->kind == kind ? live : nullptr;
}

void Remove_Window(const Window_Widget* widget) {
    std::erase(loaded, widget);
}

void Settle_Windows() {
    // A resize handler may load and unload windows, so the list in hand is a copy.
    const std::vector<Window_Widget*> widgets = loaded;
    for (Window_Widget* widget : widgets) {
        if (std::find(loaded.begin(), loaded.end(), widget) == loaded.end()) continue;
        widget->canvas->Show_Drawing();
        widget->Report_Size();
    }
}

void Destroy_Windows() {
    for (const Window_Widget* widget : std::exchange(loaded, {}))
        delete widget;
}

}  // namespace desktop

using desktop::Find_Window;
using desktop::Window_Widget;

void Show(const Window& window) {
    const desktop::Handler_Scope scope;
    if (Find_Window(window) == nullptr) {
        desktop::loaded.push_back(new Window_Widget(window));
        for (std::size_t i = 0; i < window.controls.size(); ++i) {
            Set_Interval({&window, i}, window.controls[i].interval);
            if (window.controls[i].enabled) Start_Timer({&window, i});
        }
        desktop::Call(window.load);
    }
    // The load handler may have unloaded the window or ended the program.
    Window_Widget* widget = Find_Window(window);
    if (widget != nullptr && !desktop::Is_Ending()) widget->Present();
}

void Unload(const Window& window) {
    const desktop::Handler_Scope scope;
    if (Window_Widget* widget = Find_Window(window)) widget->Dismiss();
}

bool Is_Loaded(const Window& window) {
    return Find_Window(window) != nullptr;
}

void Set_Caption(const Window& window, std::string_view caption) {
    if (Window_Widget* widget = Find_Window(window))
        widget->setWindowTitle(desktop::To_Qt(caption));
}

void Set_Enabled(const Window& window, bool enabled) {
    if (Window_Widget* widget = Find_Window(window)) widget->Set_Input(enabled);
}

void Repaint(const Window& window) {
    Window_Widget* widget = Find_Window(window);
    if (widget == nullptr) return;
    widget->canvas->Show_Drawing();
    widget->repaint();
}

Window_State State_Of(const Window& window) {
    const Window_Widget* widget = Find_Window(window);
    return widget != nullptr ? widget->State() : Window_State::Normal;
}

void Minimise(const Window& window) {
    if (Window_Widget* widget = Find_Window(window)) widget->Minimise_Now();
}

Size Outer_Size(const Window& window) {
    const Window_Widget* widget = Find_Window(window);
    if (widget == nullptr) return {};
    const QSize pixels = widget->Outer_Pixels();
    return {pixels.width() / Twips_To_Pixels_X(1), pixels.height() / Twips_To_Pixels_Y(1)};
}

void Erase(const Window& window) {
    if (Window_Widget* widget = Find_Window(window)) widget->canvas->Wipe();
}

void Set_User_Coordinates(const Window& window, double left, double top, double right,
                          double bottom) {
    Window_Widget* widget = Find_Window(window);
    if (widget == nullptr) return;
    widget->canvas->Set_User_Bounds(QRectF(QPointF(left, top), QPointF(right, bottom)));
}

void SetWindowPos(const Window& window, Insert_After after, int x, int y, int cx, int cy,
                  unsigned flags) {
    Window_Widget* widget = Find_Window(window);
    if (widget == nullptr) return;
    widget->Set_Topmost(after == Insert_After::HWND_TOPMOST);
    if ((flags & SWP_NOMOVE) == 0) widget->Move_Outer(QPoint(x, y));
    if ((flags & SWP_NOSIZE) == 0) widget->Resize_Outer(QSize(cx, cy));
}

}  // namespace platform
