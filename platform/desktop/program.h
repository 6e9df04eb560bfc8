#pragma once

#include "platform/window.h"

/// The life of the process.
namespace platform::desktop {

/// Gives the toolkit's application, which has to exist, the program's look and habits.
void Set_Up_Application();

/// Starts a program from nothing: windows that an earlier one left go without their handlers.
void Begin(Handler start);

/// Whether it was told to end from outside, so that nobody is there to answer a message.
bool Is_Leaving();

}  // namespace platform::desktop
