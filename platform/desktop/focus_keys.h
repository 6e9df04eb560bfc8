#pragma once

class QObject;

namespace platform::desktop {

/// Watches the keys that reach windows of the program, until the result is deleted. When none of
/// them has the focus any more, all keys count as released.
QObject* Watch_Focus_Keys();

}  // namespace platform::desktop
