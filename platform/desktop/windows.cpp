#include "platform/desktop/windows.h"

#include <algorithm>

#include "platform/desktop/window_widget.h"

namespace platform::desktop {

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

void Add_Window(Window_Widget* widget) {
    loaded.push_back(widget);
}

void Remove_Window(const Window_Widget* widget) {
    std::erase(loaded, widget);
}

bool Any_Topmost() {
    return std::any_of(loaded.begin(), loaded.end(),
                       [](const Window_Widget* widget) { return widget->Is_Topmost(); });
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

void Show_Drawings() {
    for (Window_Widget* widget : loaded)
        widget->canvas->Show_Drawing();
}

void Destroy_Windows() {
    const std::vector<Window_Widget*> widgets = std::move(loaded);
    loaded.clear();
    for (Window_Widget* widget : widgets)
        delete widget;
}

}  // namespace platform::desktop
