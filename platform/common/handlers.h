#pragma once

#include "platform/window.h"

/// Who may run when. Handlers run one after the other; what the program itself sets off inside a
/// handler (a load, an unload, a changed text) runs inside that one as a plain call.
namespace platform::common {

/// Starts a program from nothing: windows that an earlier one left go without their handlers.
void Begin(Handler start);

/// Stands on the stack while a handler runs. The end of the outermost one brings the windows up to
/// date, and ends the program if no window is left.
class Handler_Scope {
  public:
    Handler_Scope();
    ~Handler_Scope();
    Handler_Scope(const Handler_Scope&) = delete;
    Handler_Scope& operator=(const Handler_Scope&) = delete;
};

/// Whether an event has to be passed over: a handler runs (perhaps with a message box that waits
/// for its answer), or the program ends.
bool Is_Busy();

/// Whether the program ends as soon as the running handler has returned.
bool Is_Ending();

/// Runs a handler for something that the program itself has done.
void Call(Handler handler);

/// Runs the action as an event's handler, or drops it if another event is at work. While a handler
/// runs an event can only come from what the handler itself does to windows, or from the wait for a
/// message box, which blocks the user's input.
template <typename Action>
void On_Event(Action&& action) {
    if (Is_Busy()) return;
    const Handler_Scope scope;
    action();
}

/// The back-end's own: ends the loop that serves events.
void Leave_Loop();

}  // namespace platform::common
