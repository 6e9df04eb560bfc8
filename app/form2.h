#pragma once

#include "platform/window.h"

/// First-run setup: the user points at the simulator's folder, and the settings file is written.
namespace skerrand::form2 {

extern const platform::Window window;

}  // namespace skerrand::form2
