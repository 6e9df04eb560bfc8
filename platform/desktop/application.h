#pragma once

#include "platform/window.h"

/// The parts of `Run`, for programs that bring an event loop of their own.
namespace platform::desktop {

/// Gives the toolkit's application, which has to exist, the program's look and habits.
void Set_Up_Application();

/// Starts a program from nothing: windows that an earlier one left go without their handlers.
void Begin(Handler start);

}  // namespace platform::desktop
