#pragma once

#include <cstdint>
#include <string_view>
#include <sys/socket.h>

/// What both ends of the simulator link agree on where there are no window messages.
///
/// A window is a listening socket (`SOCK_SEQPACKET`) under an abstract name, and a message a packet
/// to it: its sequence number, and with it the block that it is about, as the descriptor of sealed
/// memory. Neither has a name in a file system, so nothing stays behind however a process ends.
namespace platform::posix {

struct Link_Reply {
    std::uint32_t sequence = 0;  ///< of the message, so that a late reply is known as one
    std::uint32_t reply = 0;
};

/// A socket that was connected or bound (`attach` is `connect` or `bind`) to the name of a window
/// class; negative with `errno` on failure. The name has the user's number and $XDG_RUNTIME_DIR
/// in it, so that programs with others keep apart.
int Link_Socket(std::string_view window_class, int (*attach)(int, const sockaddr*, socklen_t));

/// Whether the process at the other end of a connection runs for the same user as this one: any
/// user may take an abstract name.
bool Peer_Is_This_User(int connection);

}  // namespace platform::posix
