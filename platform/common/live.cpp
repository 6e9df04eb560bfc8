#include "platform/common/live.h"

#include <algorithm>
#include <numeric>
#include <utility>

#include "platform/common/handlers.h"

namespace platform::common {

namespace {

/// Never destroyed: the windows that are loaded when the process ends are left to it.
std::vector<Live_Window*>& loaded = *new std::vector<Live_Window*>;

bool Is_Loaded(const Live_Window* window) {
    return std::find(loaded.begin(), loaded.end(), window) != loaded.end();
}

}  // namespace

Live_Control::Live_Control(Live_Window& holder, const Control& table_row)
    : window(&holder),
      row(&table_row),
      enabled(row->enabled),
      transparent(row->transparent),
      running(row->kind == Control_Kind::Timer && row->enabled),
      interval(std::max(row->interval, 0)) {
    const bool has_text = row->kind == Control_Kind::Text || row->kind == Control_Kind::Combo;
    (has_text ? text : caption) = row->caption;
}

Live_Window::Live_Window(const Window& window)
    : table(window),
      caption(window.caption),
      user_bounds{0, 0, static_cast<double>(window.client_width),
                  static_cast<double>(window.client_height)} {}

void Live_Window::Dismiss() {
    if (is_unloading) return;
    is_unloading = true;
    Call(table.unload);
    std::erase(loaded, this);
    for (Live_Control* control : rows) {
        if (std::exchange(control->running, false)) control->Fit_Timer();
    }
    Retire();
}

Pixels Live_Window::Outer_Pixels() const {
    return State() == Window_State::Minimised ? reported_size : Frame_Pixels();
}

void Live_Window::Minimise_Now() {
    if (!was_shown || State() == Window_State::Minimised) return;
    const Handler_Scope scope;
    reported_size = Frame_Pixels();
    reported_state = Window_State::Minimised;
    Show_Minimised();
    Call(table.resize);
}

void Live_Window::Report_Size() {
    if (!was_shown || is_unloading || Is_Busy()) return;
    const Window_State state = State();
    const Pixels size = Outer_Pixels();
    if (state == reported_state && size == reported_size) return;
    reported_state = state;
    reported_size = size;
    Call(table.resize);
}

void Live_Window::Take_Press(Mouse_Button button, double x, double y, Pixels client) const {
    const auto [left, top, right, bottom] = user_bounds;
    const double user_x = left + x * (right - left) / client.width;
    const double user_y = top + y * (bottom - top) / client.height;
    if (table.mouse_down == nullptr) return;
    On_Event(
        [&] { table.mouse_down(button, static_cast<float>(user_x), static_cast<float>(user_y)); });
}

void Live_Window::Take_Wheel(int turn) {
    constexpr int Notch = 120;
    for (wheel += turn; wheel >= Notch; wheel -= Notch)
        On_Event([this] { Call(table.wheel_away); });
    for (; wheel <= -Notch; wheel += Notch)
        On_Event([this] { Call(table.wheel_towards); });
}

const std::vector<Live_Window*>& Loaded_Windows() {
    return loaded;
}

Live_Window* Find_Window(const Window& window) {
    for (Live_Window* live : loaded) {
        if (&live->table == &window) return live;
    }
    return nullptr;
}

Live_Control* Find_Live(Control_Ref control) {
    Live_Window* window = control.window != nullptr ? Find_Window(*control.window) : nullptr;
    if (window == nullptr || control.index >= window->rows.size()) return nullptr;
    return window->rows[control.index];
}

Live_Control* Find_Live(Control_Ref control, Control_Kind kind) {
    Live_Control* live = Find_Live(control);
    return live != nullptr && live->row->kind == kind ? live : nullptr;
}

void Settle_Windows() {
    // A resize handler may load and unload windows, so the list in hand is a copy.
    const std::vector<Live_Window*> windows = loaded;
    for (Live_Window* window : windows) {
        if (!Is_Loaded(window)) continue;
        window->Show_Drawing();
        window->Report_Size();
    }
}

void Destroy_Windows() {
    for (const Live_Window* window : std::exchange(loaded, {}))
        delete window;
}

void Fire(const Live_Control& control) {
    // An unloaded window lives on until nobody is at work in it.
    if (Is_Loaded(control.window)) On_Event([&control] { Call(control.row->handler); });
}

std::vector<std::size_t> Tab_Order(const Window& table) {
    std::vector<std::size_t> order(table.controls.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    // As an unsigned number -1 comes behind all others.
    std::ranges::stable_sort(order, {}, [&table](std::size_t index) {
        return static_cast<unsigned>(table.controls[index].tab_index);
    });
    return order;
}

}  // namespace platform::common

namespace platform {

using common::Find_Window;
using common::Live_Window;

void Show(const Window& window) {
    const common::Handler_Scope scope;
    if (Find_Window(window) == nullptr) {
        Live_Window* made = common::Make_Window(window);
        common::loaded.push_back(made);
        for (common::Live_Control* control : made->rows) {
            if (control->row->kind == Control_Kind::Timer) control->Fit_Timer();
        }
        common::Call(window.load);
    }
    // The load handler may have unloaded the window or ended the program.
    Live_Window* live = Find_Window(window);
    if (live != nullptr && !common::Is_Ending()) live->Present();
}

void Unload(const Window& window) {
    const common::Handler_Scope scope;
    if (Live_Window* live = Find_Window(window)) live->Dismiss();
}

bool Is_Loaded(const Window& window) {
    return Find_Window(window) != nullptr;
}

void Set_Caption(const Window& window, std::string_view caption) {
    Live_Window* live = Find_Window(window);
    if (live == nullptr) return;
    live->caption = caption;
    live->Show_Caption();
}

void Set_Enabled(const Window& window, bool enabled) {
    Live_Window* live = Find_Window(window);
    if (live == nullptr) return;
    live->takes_input = enabled;
    live->Show_Input();
}

void Repaint(const Window& window) {
    Live_Window* live = Find_Window(window);
    if (live == nullptr) return;
    live->Show_Drawing();
    live->Repaint();
}

Window_State State_Of(const Window& window) {
    const Live_Window* live = Find_Window(window);
    return live != nullptr ? live->State() : Window_State::Normal;
}

void Minimise(const Window& window) {
    if (Live_Window* live = Find_Window(window)) live->Minimise_Now();
}

Size Outer_Size(const Window& window) {
    const Live_Window* live = Find_Window(window);
    if (live == nullptr) return {};
    const auto [width, height] = live->Outer_Pixels();
    return {width / Twips_To_Pixels_X(1), height / Twips_To_Pixels_Y(1)};
}

void Erase(const Window& window) {
    if (Live_Window* live = Find_Window(window)) live->Wipe();
}

void Set_User_Coordinates(const Window& window, double left, double top, double right,
                          double bottom) {
    if (Live_Window* live = Find_Window(window)) live->user_bounds = {left, top, right, bottom};
}

void SetWindowPos(const Window& window, Insert_After after, int x, int y, int cx, int cy,
                  unsigned flags) {
    Live_Window* live = Find_Window(window);
    if (live == nullptr) return;
    live->is_topmost = after == Insert_After::HWND_TOPMOST;
    live->Place(x, y, cx, cy, flags);
}

}  // namespace platform
