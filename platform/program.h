#pragma once

#include <string>

#include "platform/window.h"

/// The life of the process.
namespace platform {

/// Runs the program: calls `start` once, then serves events until the program ends. Returns the
/// exit status. The command line belongs to the back-end; the program takes none.
int Run(int argc, char** argv, Handler start);

/// Ends the program once the running handler has returned. No unload handler is called, no timer
/// ticks and no event arrives any more.
void End_Program();

/// Whether `End_Program` was called, or no window is left.
bool Has_Ended();

/// The working folder at start-up, in Windows-1252, as the file system gives it. Empty if its name
/// holds characters that Windows-1252 does not have.
std::string Current_Folder();

}  // namespace platform
