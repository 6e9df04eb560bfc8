#pragma once

#include "platform/window.h"

/// Timers of windows. They tick one after the other, never inside a handler, and not while a
/// message box stands: what falls due meanwhile is dropped.
namespace platform {

/// Starts the interval anew, unless the timer runs already: then nothing changes.
void Start_Timer(Control_Ref timer);
void Stop_Timer(Control_Ref timer);
bool Is_Running(Control_Ref timer);

/// Milliseconds, 0 or more; 0 never ticks. A running timer starts the new interval at once.
void Set_Interval(Control_Ref timer, int milliseconds);

}  // namespace platform
