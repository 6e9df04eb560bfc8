#pragma once

#include "platform/program.h"

/// The life of the program inside this back-end.
namespace platform::headless {

/// Puts everything back to the state of a new process, then calls `start`. For programs that drive
/// the back-end in their own process.
void Begin(Handler start);

/// Calls a handler; nothing for a null one, and once `End_Program` was called.
void Call(Handler handler);

/// To be called after each outermost handler and each command: notes whether the program has ended.
void Settle();

/// Whether the program has ended for good; it serves no event any more.
bool Is_Over();

}  // namespace platform::headless
