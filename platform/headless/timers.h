#pragma once

#include <cstdint>

#include "platform/timers.h"

/// The virtual clock, in milliseconds since the start of the program.
namespace platform::headless {

std::int64_t Clock();

/// Moves the clock on and lets every timer tick that falls due, in order of time, of loading of the
/// windows and of their tables. Stops at the tick that ends the program, and at one that waits past
/// that time: what fell due meanwhile ticks in the next `Advance`.
void Advance(std::int64_t milliseconds);

/// Moves the clock on at once, as a wait of the program does: nothing ticks before the next
/// `Advance`, and then each timer that fell due once.
void Pass_Time(std::int64_t milliseconds);

void Reset_Clock();

}  // namespace platform::headless
