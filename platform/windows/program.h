#pragma once

#include "platform/window.h"
#include "platform/windows/native.h"

/// The life of the program inside this back-end.
namespace platform::windows {

/// Once in a process, ahead of any window.
void Set_Up();

/// Puts everything back to the state of a new process, then calls `start`.
void Begin(Handler start);

/// Serves what is there to serve, and then waits for more, at most that many milliseconds.
void Serve(unsigned long most_wait);

/// The class of all windows, registered at the first call.
const wchar_t* Window_Class();

/// Hands a message of the queue to the window that it is for: as to a dialog, so that the Tab key
/// and the arrows work.
void Dispatch(MSG& message);

/// From now on the keys of all programs are noted; none counts as pressed, whatever was.
void Watch_Keys();

// Ticks of the program's timers are counted here and not by the system, whose timers are coarser
// than the scan of thousands of files asks for, and whose messages queue up.

/// Runs the handlers of the timers that are due, in the order of their times, each once.
void Run_Due_Timers();

/// Milliseconds until the next tick; INFINITE if no timer runs.
DWORD Time_To_Next_Tick();

/// Drops the ticks that have fallen due by now; the intervals go on.
void Drop_Due_Ticks();

}  // namespace platform::windows
