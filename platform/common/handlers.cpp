#include "platform/common/handlers.h"

#include "platform/common/live.h"
#include "platform/program.h"

namespace platform {

namespace common {

namespace {

int handlers_running = 0;
bool begun = false;
bool ending = false;

}  // namespace

void Begin(Handler start) {
    Destroy_Windows();
    begun = true;
    ending = false;
    Call(start);
}

Handler_Scope::Handler_Scope() {
    ++handlers_running;
}

Handler_Scope::~Handler_Scope() {
    --handlers_running;
    if (handlers_running > 0) return;
    if (begun && Has_Ended()) ending = true;
    if (ending) {
        Leave_Loop();
    } else {
        Settle_Windows();
    }
}

bool Is_Busy() {
    return handlers_running > 0 || ending;
}

bool Is_Ending() {
    return ending;
}

void Call(Handler handler) {
    if (handler == nullptr || ending) return;
    const Handler_Scope scope;
    handler();
}

}  // namespace common

void End_Program() {
    common::ending = true;
    // Called from outside any handler it takes effect at once.
    const common::Handler_Scope scope;
}

bool Has_Ended() {
    return common::ending || common::Loaded_Windows().empty();
}

}  // namespace platform
