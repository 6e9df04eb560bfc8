#include "platform/desktop/keys.h"

namespace platform::desktop {

/// Built without the X libraries: the keys of the program's own windows have to do.
QObject* Watch_Server_Keys() {
    return nullptr;
}

}  // namespace platform::desktop
