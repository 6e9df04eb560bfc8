#include "platform/desktop/print_queue.h"

namespace platform::desktop {

std::optional<Print_Queue> Default_Queue() {
    return std::nullopt;
}

bool Send_To_Queue(const Print_Queue&, const QString&, const QByteArray&) {
    return false;
}

}  // namespace platform::desktop
