#include "tools/simulator/server.h"

#include <array>
#include <cerrno>
#include <cstring>
#include <poll.h>
#include <string_view>
#include <sys/socket.h>
#include <utility>
#include <vector>

#include "platform/posix/link_endpoint.h"
#include "tools/simulator/shared_block.h"

namespace simulator {

namespace {

using platform::posix::Descriptor;
using platform::posix::Link_Reply;
using platform::posix::Link_Request;

constexpr std::size_t Most_Clients = 32;
constexpr std::uint32_t Reply_Done = 1;
constexpr std::uint32_t Reply_Refused = 0;

std::uint32_t Reply_To(const Link_Request& request, const std::string& block_name,
                       const Answer& answer) {
    static const std::uint32_t link_message = platform::posix::Message_Number("FSASMLIB:IPC");
    static Shared_Block::Bytes bytes;
    if (request.message != link_message) return Reply_Refused;
    const Shared_Block block(block_name);
    if (!block.Read(bytes)) return Reply_Refused;
    const std::uint32_t reply = answer(bytes);
    return reply != Reply_Done || block.Write(bytes) ? reply : Reply_Refused;
}

/// Takes one message and replies; false if the client has gone, or sends what no client would.
bool Take_Message(int client, const Answer& answer) {
    std::array<char, sizeof(Link_Request) + platform::posix::Longest_Atom> packet;
    const ssize_t count = recv(client, packet.data(), packet.size(), MSG_TRUNC | MSG_DONTWAIT);
    if (count < 0) return errno == EAGAIN || errno == EINTR;
    const auto size = static_cast<std::size_t>(count);
    if (size < sizeof(Link_Request) || size > packet.size()) return false;
    Link_Request request;
    std::memcpy(&request, packet.data(), sizeof request);
    const std::string block_name(packet.data() + sizeof request, size - sizeof request);
    const Link_Reply reply{request.sequence, Reply_To(request, block_name, answer)};
    return send(client, &reply, sizeof reply, MSG_NOSIGNAL | MSG_DONTWAIT) >= 0;
}

void Take_Client(Server& server) {
    const int number = accept4(server.listener.Get(), nullptr, nullptr, SOCK_CLOEXEC);
    if (number < 0) return;
    server.clients.emplace_back(number);
    if (!platform::posix::Peer_Is_This_User(number)) server.clients.pop_back();
}

/// What the server waits for: the ends, the clients, and new clients unless there are too many.
std::vector<pollfd> Waiting(const Server& server, std::span<const int> ends) {
    std::vector<pollfd> waiting;
    for (const int end : ends)
        waiting.push_back({end, POLLIN, 0});
    for (const Descriptor& client : server.clients)
        waiting.push_back({client.Get(), POLLIN, 0});
    if (server.clients.size() < Most_Clients) {
        waiting.push_back({server.listener.Get(), POLLIN, 0});
    }
    return waiting;
}

}  // namespace

Server::Server(int socket, std::string path_) : listener(socket), path(std::move(path_)) {}

void Serve(Server& server, std::span<const int> ends, const Answer& answer) {
    for (;;) {
        std::vector<pollfd> waiting = Waiting(server, ends);
        if (poll(waiting.data(), waiting.size(), -1) < 0 && errno != EINTR) return;
        auto next = waiting.begin();
        for (; next != waiting.begin() + std::ssize(ends); ++next) {
            if (next->revents != 0) return;
        }
        const bool new_client =
            waiting.back().fd == server.listener.Get() && waiting.back().revents != 0;
        for (auto client = server.clients.begin(); client != server.clients.end(); ++next) {
            const bool stays = next->revents == 0 || Take_Message(client->Get(), answer);
            client = stays ? std::next(client) : server.clients.erase(client);
        }
        if (new_client) Take_Client(server);
    }
}

}  // namespace simulator
