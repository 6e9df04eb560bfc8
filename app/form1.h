#pragma once

#include "platform/window.h"

/// The splash window: three seconds, then the start-up decision.
namespace skerrand::form1 {

extern const platform::Window window;

}  // namespace skerrand::form1
