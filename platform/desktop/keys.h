#pragma once

#include <cstdint>

#include "platform/desktop/key_codes.h"

class QObject;

/// What is known of the keyboard. Watchers report each key that goes down or up, so that a question
/// about a code is no more than a look at an array.
namespace platform::desktop {

/// Tells the keys of the keyboard apart, as the watcher numbers them.
using Key_Id = std::uint32_t;

/// A key has gone down. Without effect if it is down already, for a held key repeats itself.
void Press_Key(Key_Id key, Key_Codes codes);

/// A key turns out to be down, and was not pressed: it was held before anybody watched.
void Find_Key_Down(Key_Id key, Key_Codes codes);

/// A key has gone up, whatever codes the keyboard gives it by now.
void Release_Key(Key_Id key);

void Release_All_Keys();

/// Watches the keys from here on, with nothing known of earlier ones: all of them on an X server,
/// elsewhere only while a window of the program has the focus. Ends with the toolkit's application.
void Watch_Keys();

/// Watches the keys of the X server, whichever program has the focus, until the result is deleted.
/// Null if there is no X server or it cannot tell.
QObject* Watch_Server_Keys();

}  // namespace platform::desktop
