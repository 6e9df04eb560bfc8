#pragma once

#include <cstdint>

#include "platform/desktop/keys/key_codes.h"

/// What is known of the keyboard. The watcher reports each key that goes down or up, so that a
/// question about a code is no more than a look at an array.
namespace platform::desktop {

/// Tells the keys of the keyboard apart: the X server's keycode.
using Key_Id = std::uint32_t;

/// A key has gone down. Without effect if it is down already, for a held key repeats itself.
void Press_Key(Key_Id key, Key_Codes codes);

/// A key turns out to be down, and was not pressed: it was held before anybody watched.
void Find_Key_Down(Key_Id key, Key_Codes codes);

/// A key has gone up, whatever codes the keyboard gives it by now.
void Release_Key(Key_Id key);

/// Watches all keys of the X server from here on, whichever program has the focus, with nothing
/// known of earlier ones; without such a server no key is seen. Ends with the toolkit's
/// application.
void Watch_Keys();

}  // namespace platform::desktop
