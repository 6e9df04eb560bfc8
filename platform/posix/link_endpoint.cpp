#include "platform/posix/link_endpoint.h"

#include <cerrno>
#include <cstddef>
#include <cstdlib>
#include <string>
#include <sys/un.h>
#include <unistd.h>

namespace platform::posix {

int Link_Socket(std::string_view window_class, int (*attach)(int, const sockaddr*, socklen_t)) {
    const char* const runtime = std::getenv("XDG_RUNTIME_DIR");
    std::string name = "skerrand/" + std::to_string(getuid()) + "/";
    name.append(window_class).append(runtime == nullptr ? "" : runtime);
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    // Behind a zero byte, which makes the name an abstract one; cut off where a folder's is long.
    const std::size_t length = name.copy(address.sun_path + 1, sizeof address.sun_path - 1);
    const auto size = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + 1 + length);
    const int number = socket(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    const auto* const generic = static_cast<const sockaddr*>(static_cast<const void*>(&address));
    if (number < 0 || attach(number, generic, size) == 0) return number;
    const int reason = errno;
    close(number);
    errno = reason;
    return -1;
}

bool Peer_Is_This_User(int connection) {
    ucred peer{};
    socklen_t size = sizeof peer;
    return getsockopt(connection, SOL_SOCKET, SO_PEERCRED, &peer, &size) == 0 &&
           peer.uid == geteuid();
}

}  // namespace platform::posix
