#pragma once

#include "platform/windows/live.h"

/// Ticks of the program's timers. They are counted here and not by the system, whose timers are
/// coarser than the scan of thousands of files asks for, and whose messages queue up.
namespace platform::windows {

/// Puts a timer into the state of its row.
void Begin_Timer(Live_Control& timer);

/// Runs the handlers of the timers that are due, in the order of their times, each once.
void Run_Due_Timers();

/// Milliseconds until the next tick; INFINITE if no timer runs.
DWORD Time_To_Next_Tick();

/// Drops the ticks that have fallen due by now; the intervals go on.
void Drop_Due_Ticks();

}  // namespace platform::windows
