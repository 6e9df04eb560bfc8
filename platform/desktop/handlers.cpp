#include "platform/desktop/handlers.h"

#include <QCoreApplication>

#include "platform/desktop/windows.h"
#include "platform/program.h"

namespace platform {

namespace desktop {

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
    // Not quit(): that would close the windows one by one, as the user would.
    if (ending) {
        QCoreApplication::exit(0);
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
}

void Call(Handler handler) {
    if (handler == nullptr || ending) return;
    const Handler_Scope scope;
    handler();
}

}  // namespace desktop

void End_Program() {
    desktop::ending = true;
    // Called from outside any handler it takes effect at once.
    const desktop::Handler_Scope scope;
}

bool Has_Ended() {
    return desktop::ending || desktop::Loaded_Windows().empty();
}

}  // namespace platform
