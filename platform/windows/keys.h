#pragma once

namespace platform::windows {

/// From now on the keys of all programs are noted.
void Watch_Keys();

}  // namespace platform::windows
