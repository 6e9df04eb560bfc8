#pragma once

#include "platform/window.h"

/// The life of the process, and who may run when. Handlers run one after the other; what the
/// program itself sets off inside a handler (a load, an unload, a changed text) runs inside that
/// one as a plain call.
namespace platform::desktop {

/// Gives the toolkit's application, which has to exist, the program's look and habits.
void Set_Up_Application();

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

/// Whether it was told to end from outside, so that nobody is there to answer a message.
bool Is_Leaving();

/// Runs a handler for something that the program itself has done.
void Call(Handler handler);

/// Runs the action as an event's handler, or drops it if another event is at work. While a handler
/// runs an event can only come from the wait for a message box, which blocks the user's input.
template <typename Action>
void On_Event(Action&& action) {
    if (Is_Busy()) return;
    const Handler_Scope scope;
    action();
}

}  // namespace platform::desktop
