#include "platform/headless/program.h"

#include <algorithm>
#include <cstdio>

#include "platform/headless/form.h"
#include "platform/headless/protocol.h"

namespace platform {

namespace {

std::int64_t now = 0;

/// The timer that ticks next; null if none falls due up to `limit`.
common::Live_Control* Next_Timer(std::int64_t limit) {
    common::Live_Control* next = nullptr;
    for (const common::Live_Window* window : common::Loaded_Windows()) {
        for (common::Live_Control* timer : window->rows) {
            if (!timer->running || timer->interval == 0 || timer->due > limit) continue;
            if (next != nullptr && timer->due == limit) continue;
            next = timer;
            limit = timer->due;
        }
    }
    return next;
}

void Tick(common::Live_Control& timer) {
    now = std::max(now, timer.due);
    timer.due = now + timer.interval;
    common::Call(timer.row->handler);
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
    now = 0;
    Reset_Surroundings();
    Reset_Printer();
    Reset_Link();
    common::Begin(start);
}

void common::Leave_Loop() {}  // each command asks whether the program has ended

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

std::int64_t headless::Clock() {
    return now;
}

void headless::Advance(std::int64_t milliseconds) {
    const std::int64_t target = now + milliseconds;
    while (!Is_Ending() && now <= target) {
        common::Live_Control* next = Next_Timer(target);
        if (next == nullptr) break;
        Tick(*next);
    }
    now = std::max(now, target);
}

void headless::Pass_Time(std::int64_t milliseconds) {
    now += milliseconds;
}

void headless::Control_State::Fit_Timer() {
    due = now + interval;
}

}  // namespace platform
