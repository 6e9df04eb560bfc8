#include "platform/timers.h"

#include <algorithm>

#include "platform/desktop/windows/window_widget.h"
#include "platform/desktop/windows/windows.h"

namespace platform {

namespace {

using desktop::Live_Control;

/// A timer of fewer milliseconds is one that asks again and again. Its interval is stretched, so
/// that it leaves the processor to others: a key press lasts 50 ms and more.
constexpr int Shortest_Interval = 5;
constexpr int Asking_Interval = 20;

void Start_Interval(const Live_Control& control) {
    if (control.running && control.interval > 0) {
        const bool asks = control.interval < Shortest_Interval;
        control.timer->start(asks ? Asking_Interval : control.interval);
    } else {
        control.timer->stop();
    }
}

Live_Control* Find_Timer(Control_Ref timer) {
    return desktop::Find_Live(timer, Control_Kind::Timer);
}

void Set_Running(Control_Ref timer, bool running) {
    Live_Control* control = Find_Timer(timer);
    if (control == nullptr || control->running == running) return;
    control->running = running;
    Start_Interval(*control);
}

}  // namespace

void Start_Timer(Control_Ref timer) {
    Set_Running(timer, true);
}

void Stop_Timer(Control_Ref timer) {
    Set_Running(timer, false);
}

bool Is_Running(Control_Ref timer) {
    const Live_Control* control = Find_Timer(timer);
    return control != nullptr && control->running;
}

void Set_Interval(Control_Ref timer, int milliseconds) {
    Live_Control* control = Find_Timer(timer);
    if (control == nullptr) return;
    control->interval = std::max(milliseconds, 0);
    Start_Interval(*control);
}

}  // namespace platform
