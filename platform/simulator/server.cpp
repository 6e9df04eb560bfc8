#include "platform/simulator/server.h"

#include <array>
#include <cerrno>
#include <cstring>
#include <poll.h>
#include <sys/syscall.h>
#include <vector>

#include "platform/posix/descriptor.h"
#include "platform/posix/link_endpoint.h"

namespace platform::simulator {

namespace {

using posix::Descriptor;

constexpr std::size_t Block_Size = 0x8000;
constexpr std::uint32_t Reply_Refused = 0;
constexpr int Most_Waiting = 8;  // clients that have connected and are not yet taken

/// What the server waits for: the followed process, new clients, and the clients that it has.
enum End : std::size_t { Followed, Listener, First_Client };
std::vector<pollfd> ends(First_Client, {-1, POLLIN, 0});

/// Works on a client's block, which is read and written as a file and not mapped: a client that
/// cuts it short, or changes it meanwhile, does no harm.
std::uint32_t Reply_To(int file, const Answer& answer) {
    static std::array<std::uint8_t, Block_Size> bytes;
    constexpr auto All = static_cast<ssize_t>(Block_Size);
    if (pread(file, bytes.data(), Block_Size, 0) != All) return Reply_Refused;
    const std::uint32_t reply = answer(bytes);
    return pwrite(file, bytes.data(), Block_Size, 0) == All ? reply : Reply_Refused;
}

/// The descriptor that came with a packet; negative if there is none. Room for one alone, so that
/// the system itself closes any others.
int File_In(msghdr& message) {
    int file = -1;
    const cmsghdr* const head = CMSG_FIRSTHDR(&message);
    if (head != nullptr && head->cmsg_level == SOL_SOCKET && head->cmsg_type == SCM_RIGHTS) {
        std::memcpy(&file, CMSG_DATA(head), sizeof file);
    }
    return file;
}

/// Takes one message and replies; false if the client has gone, or sends what no client would.
bool Take_Message(int client, const Answer& answer) {
    posix::Link_Reply reply;
    iovec packet{&reply.sequence, sizeof reply.sequence};
    alignas(cmsghdr) std::array<char, CMSG_SPACE(sizeof(int))> control{};
    msghdr message{};
    message.msg_iov = &packet;
    message.msg_iovlen = 1;
    message.msg_control = control.data();
    message.msg_controllen = CMSG_LEN(sizeof(int));
    const ssize_t size = recvmsg(client, &message, MSG_TRUNC | MSG_DONTWAIT | MSG_CMSG_CLOEXEC);
    if (size < 0) return errno == EAGAIN || errno == EINTR;
    const Descriptor file(File_In(message));
    if (size != sizeof reply.sequence) return false;
    reply.reply = Reply_To(file.Get(), answer);
    return send(client, &reply, sizeof reply, MSG_NOSIGNAL | MSG_DONTWAIT) >= 0;
}

void Take_Client() {
    const int client = accept4(ends[Listener].fd, nullptr, nullptr, SOCK_CLOEXEC);
    if (client < 0) return;
    if (posix::Peer_Is_This_User(client)) {
        ends.push_back({client, POLLIN, 0});
    } else {
        close(client);
    }
}

}  // namespace

std::string Open_Window(const char* window_class) {
    const int listener = posix::Link_Socket(window_class, bind);
    if (listener >= 0 && listen(listener, Most_Waiting) == 0) {
        ends[Listener].fd = listener;
        return "";
    }
    if (errno == EADDRINUSE) {
        return std::string("another simulator has a window of the class ") + window_class;
    }
    return std::string("no socket: ") + std::strerror(errno);
}

void Close_Window() {
    for (std::size_t i = Listener; i < ends.size(); ++i)
        close(ends[i].fd);
    ends.resize(First_Client);
    ends[Listener].fd = -1;
}

bool Follow(int process) {
    ends[Followed].fd = static_cast<int>(syscall(SYS_pidfd_open, process, 0));
    return ends[Followed].fd >= 0;
}

void Serve(const Answer& answer) {
    while (ends[Followed].revents == 0) {
        if (poll(ends.data(), ends.size(), -1) < 0) continue;  // a signal came
        for (std::size_t i = ends.size(); i-- > First_Client;) {
            if (ends[i].revents == 0 || Take_Message(ends[i].fd, answer)) continue;
            close(ends[i].fd);
            ends.erase(ends.begin() + static_cast<std::ptrdiff_t>(i));
        }
        if (ends[Listener].revents != 0) Take_Client();
    }
}

bool Wait(int milliseconds) {
    return poll(&ends[Followed], 1, milliseconds) <= 0;
}

}  // namespace platform::simulator
