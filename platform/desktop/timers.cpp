#include "platform/timers.h"

#include <algorithm>

#include "platform/desktop/events.h"
#include "platform/desktop/live_control.h"
#include "platform/desktop/timer_rows.h"
#include "platform/desktop/window_widget.h"
#include "platform/desktop/windows.h"

namespace platform {

namespace desktop {

namespace {

/// A timer of fewer milliseconds is one that asks again and again. Its interval is stretched, so
/// that it leaves the processor to others; nobody holds a key for less than that.
constexpr int Shortest_Interval = 5;
constexpr int Asking_Interval = 10;

void Start_Interval(const Live_Control& control) {
    if (control.running && control.interval > 0) {
        const bool asks = control.interval < Shortest_Interval;
        control.timer->start(asks ? Asking_Interval : control.interval);
    } else {
        control.timer->stop();
    }
}

Live_Control* Find_Timer(Control_Ref timer) {
    Live_Control* control = Find_Live(timer);
    return control != nullptr && control->timer != nullptr ? control : nullptr;
}

}  // namespace

void Build_Timer(Live_Control& control) {
    control.timer = new QTimer(control.window);
    control.timer->setTimerType(Qt::PreciseTimer);
    control.interval = control.row->interval;
    control.running = control.row->enabled;
    // What falls due while a message box stands is dropped there, and the interval goes on.
    QObject::connect(control.timer, &QTimer::timeout, control.window,
                     [&control] { Fire(control); });
    Start_Interval(control);
}

}  // namespace desktop

void Start_Timer(Control_Ref timer) {
    desktop::Live_Control* control = desktop::Find_Timer(timer);
    if (control == nullptr || control->running) return;
    control->running = true;
    desktop::Start_Interval(*control);
}

void Stop_Timer(Control_Ref timer) {
    desktop::Live_Control* control = desktop::Find_Timer(timer);
    if (control == nullptr) return;
    control->running = false;
    desktop::Start_Interval(*control);
}

bool Is_Running(Control_Ref timer) {
    const desktop::Live_Control* control = desktop::Find_Timer(timer);
    return control != nullptr && control->running;
}

void Set_Interval(Control_Ref timer, int milliseconds) {
    desktop::Live_Control* control = desktop::Find_Timer(timer);
    if (control == nullptr) return;
    control->interval = std::max(milliseconds, 0);
    desktop::Start_Interval(*control);
}

}  // namespace platform
