#pragma once

#include "platform/window.h"

/// The life of the program inside this back-end.
namespace platform::windows {

/// Once in a process, ahead of any window.
void Set_Up();

/// Puts everything back to the state of a new process, then calls `start`.
void Begin(Handler start);

/// Serves what is there to serve, and then waits for more, at most that many milliseconds.
void Serve(unsigned long most_wait);

}  // namespace platform::windows
