#include "platform/link.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <cstring>
#include <fcntl.h>
#include <poll.h>
#include <sys/mman.h>
#include <sys/socket.h>
#include <thread>
#include <unistd.h>

#include "platform/posix/link_endpoint.h"

// The window of the simulator is a connection to its socket, a message a packet there, and the
// block sealed memory that goes along with each message, so that no atom has to tell its name.
namespace platform {

namespace {

using Clock = std::chrono::steady_clock;

constexpr Window_Handle The_Window = 1;
constexpr Mapping_Handle The_Mapping = 1;
constexpr Atom The_Atom = 0xC000;
constexpr Message_Id The_Message = 0xC000;
constexpr std::uint32_t Error_Not_Enough_Memory = 8;

/// No other process can cut a block short, which would kill this one at its next touch.
constexpr int Block_Seals = F_SEAL_SHRINK | F_SEAL_GROW | F_SEAL_SEAL;

int connection = -1;
int block = -1;
std::uint32_t block_size = 0;
std::uint32_t last_error = 0;
std::uint32_t last_sequence = 0;

void Close(int& file) {
    if (file >= 0) close(file);
    file = -1;
}

bool Fail(std::uint32_t error) {
    last_error = error;
    return false;
}

/// A packet with the number of the message and the block, if there is one.
bool Send(std::uint32_t sequence) {
    iovec packet{&sequence, sizeof sequence};
    msghdr message{};
    message.msg_iov = &packet;
    message.msg_iovlen = 1;
    alignas(cmsghdr) std::array<char, CMSG_SPACE(sizeof block)> control{};
    if (block >= 0) {
        message.msg_control = control.data();
        message.msg_controllen = control.size();
        cmsghdr* const head = CMSG_FIRSTHDR(&message);
        head->cmsg_level = SOL_SOCKET;
        head->cmsg_type = SCM_RIGHTS;
        head->cmsg_len = CMSG_LEN(sizeof block);
        std::memcpy(CMSG_DATA(head), &block, sizeof block);
    }
    if (sendmsg(connection, &message, MSG_NOSIGNAL | MSG_DONTWAIT) >= 0) return true;
    // A server that leaves so many messages lying about that no more fit has stopped answering.
    return Fail(errno == EAGAIN ? 0 : Error_Invalid_Window);
}

/// Replies to earlier messages, whose time had run out, are passed over.
bool Receive(std::uint32_t sequence, Clock::time_point end, std::uint32_t& reply) {
    for (;;) {
        using std::chrono::milliseconds;
        const auto left = std::chrono::ceil<milliseconds>(end - Clock::now()).count();
        pollfd waiting{connection, POLLIN, 0};
        const int ready = poll(&waiting, 1, static_cast<int>(std::max<long>(left, 0)));
        if (ready == 0 || left < 0) return Fail(0);
        if (ready < 0) continue;  // a signal came
        posix::Link_Reply answer;
        const ssize_t size = recv(connection, &answer, sizeof answer, MSG_TRUNC);
        if (size <= 0) return Fail(Error_Invalid_Window);
        if (size != sizeof answer || answer.sequence != sequence) continue;
        reply = answer.reply;
        return true;
    }
}

}  // namespace

Window_Handle FindWindowExA(const char* window_class) {
    Close(connection);
    connection = posix::Link_Socket(window_class, connect);
    if (connection >= 0 && !posix::Peer_Is_This_User(connection)) Close(connection);
    return connection < 0 ? 0 : The_Window;
}

// The sockets carry no other message than the link's.
Message_Id RegisterWindowMessageA(const char*) {
    return The_Message;
}

Atom GlobalAddAtomA(const char*) {
    return The_Atom;
}

void GlobalDeleteAtom(Atom) {}

Mapping_Handle CreateFileMappingA(std::uint32_t size, const char*) {
    last_error = block < 0 ? 0 : Error_Already_Exists;
    if (last_error != 0) return 0;
    block_size = size;
    block = memfd_create("skerrand", MFD_CLOEXEC | MFD_ALLOW_SEALING);
    // The memory is taken here, since a lack of it later would end the process.
    if (block >= 0 && posix_fallocate(block, 0, size) == 0 &&
        fcntl(block, F_ADD_SEALS, Block_Seals) == 0) {
        return The_Mapping;
    }
    Close(block);
    last_error = Error_Not_Enough_Memory;
    return 0;
}

void CloseHandle(Mapping_Handle) {
    Close(block);
}

std::uint8_t* MapViewOfFile(Mapping_Handle) {
    void* const view = mmap(nullptr, block_size, PROT_READ | PROT_WRITE, MAP_SHARED, block, 0);
    if (view != MAP_FAILED) return static_cast<std::uint8_t*>(view);
    last_error = Error_Not_Enough_Memory;
    return nullptr;
}

void UnmapViewOfFile(std::uint8_t* view) {
    munmap(view, block_size);
}

bool SendMessageTimeoutA(Window_Handle, Message_Id, std::int32_t, std::uint32_t time_out,
                         std::uint32_t& reply) {
    const Clock::time_point end = Clock::now() + std::chrono::milliseconds(time_out);
    return Send(++last_sequence) && Receive(last_sequence, end, reply);
}

std::uint32_t GetLastError() {
    return last_error;
}

std::uint32_t GetCurrentProcessId() {
    return static_cast<std::uint32_t>(getpid());
}

void Sleep(std::uint32_t milliseconds) {
    std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
}

}  // namespace platform
