#include "platform/windows/handlers.h"

#include "platform/program.h"
#include "platform/windows/live.h"

namespace platform {

namespace windows {

namespace {

int handlers_running = 0;
int boxes_standing = 0;
bool ending = false;

}  // namespace

Handler_Scope::Handler_Scope() {
    ++handlers_running;
}

Handler_Scope::~Handler_Scope() {
    --handlers_running;
    if (handlers_running > 0) return;
    if (Has_Ended()) ending = true;
    // Ends the loops of a menu or of a window that is being dragged too.
    if (ending) {
        PostQuitMessage(0);
    } else {
        Settle_Windows();
    }
}

Box_Scope::Box_Scope() {
    ++boxes_standing;
}

Box_Scope::~Box_Scope() {
    --boxes_standing;
}

bool Is_Busy() {
    return handlers_running > 0 || boxes_standing > 0 || ending;
}

bool Is_Ending() {
    return ending;
}

void Reset_Life() {
    ending = false;
    MSG quit;
    PeekMessageW(&quit, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE);
}

void Call(Handler handler) {
    if (handler == nullptr || ending) return;
    const Handler_Scope scope;
    handler();
}

}  // namespace windows

void End_Program() {
    windows::ending = true;
    // Called from outside any handler it takes effect at once.
    const windows::Handler_Scope scope;
}

bool Has_Ended() {
    return windows::ending || windows::Loaded_Windows().empty();
}

}  // namespace platform
