#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/message_box.h"
#include "platform/program.h"

/// The life of the program inside this back-end: its handlers, its clock, and what a new process
/// starts with.
namespace platform::headless {

/// Puts everything back to the state of a new process, then calls `start`. For programs that drive
/// the back-end in their own process.
void Begin(Handler start);

/// The virtual clock, in milliseconds since the start of the program.
std::int64_t Clock();

/// Moves the clock on and lets every timer tick that falls due, in order of time, of loading of the
/// windows and of their tables. Stops at the tick that ends the program, and at one that waits past
/// that time: what fell due meanwhile ticks in the next `Advance`.
void Advance(std::int64_t milliseconds);

/// Moves the clock on at once, as a wait of the program does: nothing ticks before the next
/// `Advance`, and then each timer that fell due once.
void Pass_Time(std::int64_t milliseconds);

/// A message that was shown and answered.
struct Shown_Message {
    Icon icon;
    std::string title;
    std::string text;
};

/// The messages since the last call, oldest first.
std::vector<Shown_Message> Take_Messages();

/// Entries of the drive list of windows loaded from now on, in Windows-1252.
extern std::vector<std::string> drive_entries;

/// No message, no drive, all keys up; a usual printer with an empty tray; no simulator, no link.
void Reset_Surroundings();
void Reset_Printer();
void Reset_Link();

}  // namespace platform::headless
