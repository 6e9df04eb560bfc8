#include <algorithm>

#include "platform/windows/live.h"
#include "platform/windows/program.h"

namespace platform::windows {

namespace {

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

bool Ticks(const common::Live_Control& timer) {
    return timer.running && timer.interval > 0;
}

/// Calls `visit` for each timer that ticks.
template <typename Visit>
void For_Each_Timer(Visit visit) {
    for (const common::Live_Window* window : Loaded_Windows()) {
        for (common::Live_Control* control : window->rows) {
            if (Ticks(*control)) visit(*control);
        }
    }
}

common::Live_Control* Next_Timer() {
    common::Live_Control* next = nullptr;
    For_Each_Timer([&next](common::Live_Control& timer) {
        if (next == nullptr || timer.due < next->due) next = &timer;
    });
    return next;
}

/// Asks for the finer clock as long as a timer is in need of it.
void Fit_Clock() {
    static bool is_fine = false;
    bool wants_fine = false;
    For_Each_Timer([&wants_fine](const common::Live_Control& timer) {
        wants_fine = wants_fine || timer.Real_Interval() < Coarse_Interval;
    });
    if (wants_fine == is_fine) return;
    is_fine = wants_fine;
    if (is_fine) {
        timeBeginPeriod(Fine_Period);
    } else {
        timeEndPeriod(Fine_Period);
    }
}

}  // namespace

void Live_Control::Fit_Timer() {
    due = Clock() + Real_Interval();
    Fit_Clock();
}

void Run_Due_Timers() {
    // What a handler starts is not due before this time; what has fallen behind ticks once.
    const std::int64_t now = Clock();
    while (!Is_Busy()) {
        common::Live_Control* timer = Next_Timer();
        if (timer == nullptr || timer->due > now) return;
        timer->due = std::max(timer->due + timer->Real_Interval(), now + 1);
        Fire(*timer);
    }
}

DWORD Time_To_Next_Tick() {
    const common::Live_Control* timer = Next_Timer();
    if (timer == nullptr) return INFINITE;
    return static_cast<DWORD>(std::max<std::int64_t>(timer->due - Clock(), 0));
}

void Drop_Due_Ticks() {
    const std::int64_t now = Clock();
    For_Each_Timer([now](common::Live_Control& timer) {
        const int interval = timer.Real_Interval();
        if (timer.due <= now) timer.due = now + interval - (now - timer.due) % interval;
    });
}

}  // namespace platform::windows
