#include "platform/headless/program.h"

#include <algorithm>
#include <cstdio>

#include "platform/headless/form.h"
#include "platform/headless/protocol.h"
#include "platform/timers.h"

namespace platform {

namespace {

using headless::Control_State;
using headless::Find_State;

bool end_called = false;
bool over = false;
std::int64_t now = 0;

/// The timer that ticks next, its window null if none falls due up to `limit`.
Control_Ref Next_Timer(std::int64_t limit) {
    Control_Ref next{nullptr, 0};
    for (const auto& form : headless::forms) {
        for (std::size_t i = 0; i < form->controls.size(); ++i) {
            const Control_State& timer = form->controls[i];
            if (!timer.running || timer.interval == 0 || timer.due > limit) continue;
            if (next.window != nullptr && timer.due == limit) continue;
            next = {form->window, i};
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

/// False at the end of the input, unless a line without its line feed stands there.
bool Read_Line(std::string& line) {
    line.clear();
    int c = std::getchar();
    for (; c != EOF && c != '\n'; c = std::getchar())
        line += static_cast<char>(c);
    return c != EOF || !line.empty();
}

}  // namespace

void headless::Begin(Handler start) {
    forms.clear();
    end_called = false;
    over = false;
    now = 0;
    Reset_Surroundings();
    Reset_Printer();
    Reset_Link();
    Call(start);
    Settle();
}

void headless::Call(Handler handler) {
    if (handler != nullptr && !end_called) handler();
}

void headless::Settle() {
    over = over || Has_Ended();
}

bool headless::Is_Over() {
    return over;
}

int Run(int, char**, Handler start) {
    headless::Begin(start);
    std::string line;
    while (!headless::Was_Quit() && Read_Line(line)) {
        const std::string answer = headless::Execute(line);
        std::fwrite(answer.data(), 1, answer.size(), stdout);
        std::fflush(stdout);
    }
    return 0;
}

void End_Program() {
    end_called = true;
}

bool Has_Ended() {
    return end_called || headless::forms.empty();
}

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
