#pragma once

#include <QIcon>

namespace platform::desktop {

/// The icon of all windows: a runway in a compass ring.
QIcon Program_Icon();

}  // namespace platform::desktop
