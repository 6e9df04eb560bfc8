#include "platform/headless/timers.h"

#include <algorithm>

#include "platform/headless/form.h"
#include "platform/headless/program.h"

namespace platform {

namespace {

using headless::Control_State;
using headless::Find_State;

std::int64_t now = 0;

/// The timer that ticks next, its window null if none falls due up to `limit`.
Control_Ref Next_Timer(std::int64_t limit) {
    Control_Ref next{nullptr, 0};
    for (const auto& form : headless::forms) {
        for (const std::size_t index : form->timers) {
            const Control_State& timer = form->controls[index];
            if (!timer.running || timer.interval == 0 || timer.due > limit) continue;
            if (next.window != nullptr && timer.due == limit) continue;
            next = {form->window, index};
            limit = timer.due;
        }
    }
    return next;
}

void Tick(Control_Ref control) {
    Control_State& timer = *Find_State(control);
    now = std::max(now, timer.due);
    timer.due = now + timer.interval;
    headless::Call(control.window->controls[control.index].handler);
    headless::Settle();
}

}  // namespace

std::int64_t headless::Clock() {
    return now;
}

void headless::Advance(std::int64_t milliseconds) {
    const std::int64_t target = now + milliseconds;
    while (!Is_Over() && now <= target) {
        const Control_Ref next = Next_Timer(target);
        if (next.window == nullptr) break;
        Tick(next);
    }
    now = std::max(now, target);
}

void headless::Pass_Time(std::int64_t milliseconds) {
    now += milliseconds;
}

void headless::Reset_Clock() {
    now = 0;
}

void Start_Timer(Control_Ref timer) {
    Control_State* state = Find_State(timer, Control_Kind::Timer);
    if (state == nullptr || state->running) return;
    state->running = true;
    state->due = now + state->interval;
}

void Stop_Timer(Control_Ref timer) {
    if (Control_State* state = Find_State(timer, Control_Kind::Timer)) state->running = false;
}

bool Is_Running(Control_Ref timer) {
    const Control_State* state = Find_State(timer, Control_Kind::Timer);
    return state != nullptr && state->running;
}

void Set_Interval(Control_Ref timer, int milliseconds) {
    Control_State* state = Find_State(timer, Control_Kind::Timer);
    if (state == nullptr) return;
    state->interval = std::max(milliseconds, 0);
    state->due = now + state->interval;
}

}  // namespace platform
