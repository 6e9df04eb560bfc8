#pragma once

#include "platform/window.h"

/// The preferences: which layers and labels the chart shows, whether it follows the aircraft, and
/// the unit of the altimeter setting. A change holds at once; the chart, which stands still while
/// the dialog is open, shows it at its next tick.
namespace skerrand::form5 {

extern const platform::Window window;

}  // namespace skerrand::form5
