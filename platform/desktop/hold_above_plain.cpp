#include "platform/desktop/hold_above.h"

namespace platform::desktop {

/// Built without the X library: what the toolkit has set once has to do.
void Hold_Above(const QWindow&) {}

}  // namespace platform::desktop
