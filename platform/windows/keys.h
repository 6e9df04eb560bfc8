#pragma once

namespace platform::windows {

/// From now on the keys of all programs are noted.
void Watch_Keys();

/// Takes no key for pressed, whatever was.
void Forget_Keys();

}  // namespace platform::windows
