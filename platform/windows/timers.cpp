#include "platform/windows/timers.h"

#include <algorithm>

#include "platform/timers.h"
#include "platform/windows/handlers.h"

namespace platform {

namespace windows {

namespace {

/// A timer of fewer milliseconds is one that asks again and again. Its interval is stretched, so
/// that it leaves the processor to others; nobody holds a key for less than that.
constexpr int Shortest_Interval = 5;
constexpr int Asking_Interval = 20;

/// The system wakes a program at every 64th of a second, if nobody asks for better. It is asked
/// while a timer runs that needs it, for it costs power.
constexpr int Coarse_Interval = 16;
constexpr UINT Fine_Period = 1;  // milliseconds

std::int64_t Clock() {
    static const LONGLONG frequency = [] {
        LARGE_INTEGER value;
        QueryPerformanceFrequency(&value);
        return value.QuadPart;
    }();
    LARGE_INTEGER count;
    QueryPerformanceCounter(&count);
    return count.QuadPart / (frequency / 1000);
}

int Interval_Of(const Live_Control& timer) {
    return timer.interval < Shortest_Interval ? Asking_Interval : timer.interval;
}

bool Ticks(const Live_Control& timer) {
    return timer.running && timer.interval > 0;
}

/// Calls `visit` for each timer that ticks.
template <typename Visit>
void For_Each_Timer(Visit visit) {
    for (const auto& window : Loaded_Windows()) {
        for (Live_Control& control : window->controls) {
            if (Ticks(control)) visit(control);
        }
    }
}

Live_Control* Next_Timer() {
    Live_Control* next = nullptr;
    For_Each_Timer([&next](Live_Control& timer) {
        if (next == nullptr || timer.due < next->due) next = &timer;
    });
    return next;
}

/// Asks for the finer clock as long as a timer is in need of it.
void Fit_Clock() {
    static bool is_fine = false;
    bool wants_fine = false;
    For_Each_Timer([&wants_fine](const Live_Control& timer) {
        wants_fine =
            wants_fine || (timer.interval >= Shortest_Interval && timer.interval < Coarse_Interval);
    });
    if (wants_fine == is_fine) return;
    is_fine = wants_fine;
    if (is_fine) {
        timeBeginPeriod(Fine_Period);
    } else {
        timeEndPeriod(Fine_Period);
    }
}

void Start_Interval(Live_Control& timer) {
    timer.due = Clock() + Interval_Of(timer);
    Fit_Clock();
}

}  // namespace

void Begin_Timer(Live_Control& timer) {
    timer.interval = std::max(timer.row->interval, 0);
    timer.running = timer.row->enabled;
    Start_Interval(timer);
}

void Run_Due_Timers() {
    // What a handler starts is not due before this time; what has fallen behind ticks once.
    const std::int64_t now = Clock();
    while (!Is_Busy()) {
        Live_Control* timer = Next_Timer();
        if (timer == nullptr || timer->due > now) return;
        timer->due = std::max(timer->due + Interval_Of(*timer), now + 1);
        Fire(*timer);
    }
}

DWORD Time_To_Next_Tick() {
    const Live_Control* timer = Next_Timer();
    if (timer == nullptr) return INFINITE;
    return static_cast<DWORD>(std::max<std::int64_t>(timer->due - Clock(), 0));
}

void Drop_Due_Ticks() {
    const std::int64_t now = Clock();
    For_Each_Timer([now](Live_Control& timer) {
        const int interval = Interval_Of(timer);
        if (timer.due <= now) timer.due = now + interval - (now - timer.due) % interval;
    });
}

}  // namespace windows

void Start_Timer(Control_Ref timer) {
    windows::Live_Control* live = windows::Find_Live(timer, Control_Kind::Timer);
    if (live == nullptr || live->running) return;
    live->running = true;
    windows::Start_Interval(*live);
}

void Stop_Timer(Control_Ref timer) {
    windows::Live_Control* live = windows::Find_Live(timer, Control_Kind::Timer);
    if (live == nullptr) return;
    live->running = false;
    windows::Fit_Clock();
}

bool Is_Running(Control_Ref timer) {
    const windows::Live_Control* live = windows::Find_Live(timer, Control_Kind::Timer);
    return live != nullptr && live->running;
}

void Set_Interval(Control_Ref timer, int milliseconds) {
    windows::Live_Control* live = windows::Find_Live(timer, Control_Kind::Timer);
    if (live == nullptr) return;
    live->interval = std::max(milliseconds, 0);
    windows::Start_Interval(*live);
}

}  // namespace platform
