#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/socket.h>

#include "platform/posix/link_endpoint.h"
#include "tools/simulator/server.h"

namespace simulator {

namespace {

using platform::posix::Descriptor;

constexpr int Kind = SOCK_SEQPACKET | SOCK_CLOEXEC | SOCK_NONBLOCK;
constexpr int Most_Waiting = 8;  // clients that have connected and are not yet taken

const sockaddr* Generic(const sockaddr_un& address) {
    return static_cast<const sockaddr*>(static_cast<const void*>(&address));
}

/// Removes a socket that nobody listens to any more; false if somebody does.
bool Clear_Place(const sockaddr_un& address) {
    const Descriptor probe(socket(AF_UNIX, Kind, 0));
    if (connect(probe.Get(), Generic(address), sizeof address) == 0 || errno == EAGAIN) {
        return false;
    }
    if (errno == ECONNREFUSED) unlink(address.sun_path);
    return true;
}

/// Two simulators that start at once take turns.
int Lock_Folder() {
    std::string fault;
    const int folder = open(platform::posix::Link_Folder(fault).c_str(), O_RDONLY | O_CLOEXEC);
    if (folder >= 0) flock(folder, LOCK_EX);
    return folder;
}

}  // namespace

Server::~Server() {
    unlink(path.c_str());
}

std::unique_ptr<Server> Open_Server(const char* window_class, std::string& fault) {
    sockaddr_un address;
    if (!platform::posix::Link_Address(window_class, address, fault)) return nullptr;
    const Descriptor folder(Lock_Folder());
    if (!Clear_Place(address)) {
        fault = std::string("another simulator has a window of the class ") + window_class;
        return nullptr;
    }
    const int number = socket(AF_UNIX, Kind, 0);
    if (bind(number, Generic(address), sizeof address) == 0) {
        auto server = std::make_unique<Server>(number, address.sun_path);
        if (listen(number, Most_Waiting) == 0) return server;
    } else if (number >= 0) {
        close(number);
    }
    fault = std::string(address.sun_path) + ": " + std::strerror(errno);
    return nullptr;
}

}  // namespace simulator
