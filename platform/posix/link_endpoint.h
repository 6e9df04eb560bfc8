#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <sys/un.h>

/// What both ends of the simulator link agree on: where sockets and blocks are found, and the
/// packets that stand for a window message and its reply.
///
/// A window is a listening socket (`SOCK_SEQPACKET`), named after the window's class, in a folder
/// that only its user may enter. A client keeps its connection as the window's handle. A block is a
/// POSIX shared memory object.
namespace platform::posix {

/// Opens a message; the text of its atom follows, without a NUL, since there are no atoms that
/// other programs could look up. Both fields are in the machine's own byte order.
struct Link_Request {
    std::uint32_t sequence = 0;  ///< tells a late reply from the one that is waited for
    std::uint32_t message = 0;
};

struct Link_Reply {
    std::uint32_t sequence = 0;  ///< that of its request
    std::uint32_t reply = 0;
};

inline constexpr std::size_t Longest_Atom = 255;  // bytes, as on the native platform

/// The number of a message, 0xC000 to 0xFFFF: the same for the same name in every program. 0 for
/// an empty name.
std::uint32_t Message_Number(std::string_view name);

/// The folder of the sockets: $XDG_RUNTIME_DIR/skerrand, or /tmp/skerrand-UID where there is no
/// such place. It is made if it is missing. Empty if it cannot be made, belongs to another user, is
/// a link, or lets others in; `fault` then tells which.
std::string Link_Folder(std::string& fault);

/// The socket of a window class, which is made of letters and digits; false with `fault` if there
/// is no folder for it or the path is too long.
bool Link_Address(std::string_view window_class, sockaddr_un& address, std::string& fault);

/// Whether the process at the other end of a connection runs for the same user as this one.
bool Peer_Is_This_User(int connection);

/// The name of a block as `shm_open` takes it; empty if it could not be one.
std::string Block_Path(std::string_view name);

}  // namespace platform::posix
