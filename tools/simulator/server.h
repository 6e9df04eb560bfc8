#pragma once

#include <cstdint>
#include <functional>
#include <list>
#include <memory>
#include <span>
#include <string>

#include "platform/posix/descriptor.h"

/// The simulator's window: the socket that clients of the link find, and the messages to it.
namespace simulator {

/// Works on a block of requests, in place, and gives the reply. Only a block with the reply 1 goes
/// back to the client.
using Answer = std::function<std::uint32_t(std::span<std::uint8_t> block)>;

struct Server {
    Server(int socket, std::string path_);
    Server(const Server&) = delete;
    Server& operator=(const Server&) = delete;
    /// Takes the socket away.
    ~Server();

    platform::posix::Descriptor listener;
    std::string path;
    std::list<platform::posix::Descriptor> clients;
};

/// A window of that class stands from now on. Null with `fault` if one stands already or none can.
std::unique_ptr<Server> Open_Server(const char* window_class, std::string& fault);

/// Answers messages until one of the file descriptors in `ends` can be read, or poll fails.
void Serve(Server& server, std::span<const int> ends, const Answer& answer);

}  // namespace simulator
