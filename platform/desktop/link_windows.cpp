#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <cstring>
#include <list>
#include <poll.h>
#include <string>
#include <sys/socket.h>
#include <utility>

#include "platform/desktop/link.h"
#include "platform/posix/descriptor.h"
#include "platform/posix/link_endpoint.h"

// The window of another program is a connection to its socket, and a message a packet there.
namespace platform {

namespace {

using Clock = std::chrono::steady_clock;
using posix::Link_Reply;
using posix::Link_Request;

struct Connection {
    Connection(Window_Handle handle_, std::string window_class_, int number)
        : handle(handle_), window_class(std::move(window_class_)), socket(number) {}

    Window_Handle handle;
    std::string window_class;
    posix::Descriptor socket;
};

std::list<Connection> connections;
Window_Handle last_handle = 0;
std::uint32_t last_sequence = 0;

enum class Outcome { Done, Too_Late, Window_Gone };

/// Waits for one of the events, or for the end of the connection; false if `end` comes first.
bool Wait(int socket, short events, Clock::time_point end) {
    using std::chrono::milliseconds;
    for (;;) {
        const auto left = std::chrono::ceil<milliseconds>(end - Clock::now()).count();
        if (left < 0) return false;
        pollfd waiting{socket, events, 0};
        const int count = poll(&waiting, 1, static_cast<int>(std::min<long>(left, INT32_MAX)));
        if (count > 0) return true;
        if (count == 0 || errno != EINTR) return false;
    }
}

bool Has_Ended(const Connection& connection) {
    pollfd state{connection.socket.Get(), 0, 0};
    return poll(&state, 1, 0) != 0;
}

/// False if there is no such window, or one that another user has put there.
bool Connect(int socket, std::string_view window_class) {
    sockaddr_un address;
    std::string fault;
    if (socket < 0 || !posix::Link_Address(window_class, address, fault)) return false;
    const auto* const generic = static_cast<const sockaddr*>(static_cast<const void*>(&address));
    return connect(socket, generic, sizeof address) == 0 && posix::Peer_Is_This_User(socket);
}

Outcome Send(int socket, const Link_Request& head, const std::string& text, Clock::time_point end) {
    std::array<char, sizeof head + posix::Longest_Atom> packet;
    std::memcpy(packet.data(), &head, sizeof head);
    text.copy(packet.data() + sizeof head, posix::Longest_Atom);
    while (send(socket, packet.data(), sizeof head + text.size(), MSG_NOSIGNAL) < 0) {
        if (errno == EINTR) continue;
        if (errno != EAGAIN) return Outcome::Window_Gone;
        if (!Wait(socket, POLLOUT, end)) return Outcome::Too_Late;
    }
    return Outcome::Done;
}

/// Replies to earlier messages, whose time had run out, are passed over.
Outcome Receive(int socket, std::uint32_t sequence, std::uint32_t& reply, Clock::time_point end) {
    while (Wait(socket, POLLIN, end)) {
        Link_Reply answer;
        const ssize_t size = recv(socket, &answer, sizeof answer, MSG_TRUNC);
        if (size < 0 && (errno == EINTR || errno == EAGAIN)) continue;
        if (size <= 0) return Outcome::Window_Gone;
        if (size == sizeof answer && answer.sequence == sequence) {
            reply = answer.reply;
            return Outcome::Done;
        }
    }
    return Outcome::Too_Late;
}

}  // namespace

Window_Handle FindWindowExA(const char* window_class) {
    connections.remove_if(Has_Ended);
    for (const Connection& connection : connections) {
        if (connection.window_class == window_class) return connection.handle;
    }
    const int number = socket(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    connections.emplace_back(last_handle + 1, window_class, number);
    if (!Connect(number, window_class)) {
        connections.pop_back();
        return 0;
    }
    return ++last_handle;
}

bool SendMessageTimeoutA(Window_Handle window, Message_Id message, std::int32_t parameter,
                         std::uint32_t time_out, std::uint32_t& reply) {
    const Clock::time_point end = Clock::now() + std::chrono::milliseconds(time_out);
    const auto found =
        std::find_if(connections.begin(), connections.end(),
                     [=](const Connection& connection) { return connection.handle == window; });
    Outcome outcome = Outcome::Window_Gone;
    if (found != connections.end()) {
        const int socket = found->socket.Get();
        const Link_Request head{++last_sequence, message};
        outcome = Send(socket, head, desktop::Atom_Text(parameter), end);
        if (outcome == Outcome::Done) outcome = Receive(socket, head.sequence, reply, end);
    }
    desktop::Set_Last_Error(outcome == Outcome::Window_Gone ? Error_Invalid_Window : 0);
    return outcome == Outcome::Done;
}

}  // namespace platform
