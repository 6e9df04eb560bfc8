#pragma once

#include "platform/keys.h"

namespace platform::headless {

/// All keys up, no press to be told.
void Reset_Keys();

}  // namespace platform::headless
