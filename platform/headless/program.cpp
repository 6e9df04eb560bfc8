#include "platform/headless/program.h"

#include <cstdio>
#include <iostream>
#include <string>

#include "platform/headless/form.h"
#include "platform/headless/message_box.h"
#include "platform/headless/protocol.h"
#include "platform/headless/surroundings.h"
#include "platform/headless/timers.h"

namespace platform {

namespace {

bool end_called = false;
bool over = false;

}  // namespace

void headless::Begin(Handler start) {
    forms.clear();
    end_called = false;
    over = false;
    Reset_Clock();
    Take_Messages();
    Reset_Surroundings();
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
    std::ios::sync_with_stdio(false);
    headless::Begin(start);
    std::string line;
    while (!headless::Was_Quit() && std::getline(std::cin, line)) {
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

}  // namespace platform
