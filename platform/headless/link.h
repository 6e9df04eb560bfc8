#pragma once

#include "platform/link.h"

namespace platform::headless {

/// Forgets all atoms and blocks, as the end of a process does.
void Reset_Link();

}  // namespace platform::headless
