#include <array>
#include <cstring>
#include <utility>

#include "simlink/fsuipc.h"
#include "simlink/link_block.h"
#include "simlink/link_state.h"

namespace skerrand {

namespace {

constexpr std::uint32_t Send_Time_Out = 2000;  // ms
constexpr std::uint32_t Retry_Wait = 100;      // ms
constexpr int Most_Retries = 10;
constexpr std::uint32_t Reply_Done = 1;

/// An address does not fit the 32 bits that a request has for it, so the addresses stay here and
/// the request holds the place in this table. Reads without data are the shortest requests.
std::array<Answer_Place, (Batch_Limit - sizeof(End_Mark)) / sizeof(Read_Request)> answer_places;
std::size_t answer_count = 0;

bool Fail(Link_Result code, std::int32_t& result) {
    result = code;
    return false;
}

/// Adds a head to the batch if it fits with its data and the end mark.
template <typename Head>
bool Queue_Head(const Head& head, std::int32_t& result) {
    if (link_state.link_view == nullptr) return Fail(Link_Not_Open, result);
    const auto used = static_cast<std::uint64_t>(link_state.link_next - link_state.link_view);
    if (used + sizeof(End_Mark) + sizeof head + head.byte_count > Batch_Limit) {
        return Fail(Link_Batch_Full, result);
    }
    std::memcpy(link_state.link_next, &head, sizeof head);
    link_state.link_next += sizeof head;
    result = Link_Ok;
    return true;
}

bool Send(std::uint32_t& reply) {
    return platform::SendMessageTimeoutA(link_state.link_window, link_state.link_message,
                                         link_state.link_atom, Send_Time_Out, reply);
}

Link_Result Send_Batch() {
    std::uint32_t reply = 0;
    bool sent = Send(reply);
    for (int retry = 0; !sent && retry < Most_Retries; ++retry) {
        platform::Sleep(Retry_Wait);
        sent = Send(reply);
    }
    if (!sent) return platform::GetLastError() == 0 ? Link_Timed_Out : Link_Send_Failed;
    return reply == Reply_Done ? Link_Ok : Link_Refused;
}

}  // namespace

void Empty_Batch() {
    link_state.link_next = link_state.link_view;
    answer_count = 0;
}

bool Queue_Read(std::uint32_t fs_offset, std::uint32_t byte_count, void* client_address,
                std::int32_t& result) {
    const auto place = client_address == nullptr ? 0 : static_cast<std::uint32_t>(answer_count + 1);
    const Read_Request head{
        .fs_offset = fs_offset, .byte_count = byte_count, .client_address = place};
    if (!Queue_Head(head, result)) return false;
    if (place != 0) answer_places[answer_count++] = {client_address, byte_count};
    std::memset(link_state.link_next, 0, byte_count);
    link_state.link_next += byte_count;
    return true;
}

bool Queue_Write(std::uint32_t fs_offset, std::uint32_t byte_count, const void* source_address,
                 std::int32_t& result) {
    const Write_Request head{.fs_offset = fs_offset, .byte_count = byte_count};
    if (!Queue_Head(head, result)) return false;
    if (byte_count != 0) std::memcpy(link_state.link_next, source_address, byte_count);
    link_state.link_next += byte_count;
    return true;
}

bool Process_Queue(std::int32_t& result) {
    if (link_state.link_view == nullptr) return Fail(Link_Not_Open, result);
    if (link_state.link_next == link_state.link_view) return Fail(Link_Nothing_Queued, result);

    std::memset(link_state.link_next, 0, sizeof(End_Mark));
    const std::size_t count = answer_count;
    Empty_Batch();
    const Link_Result sent = Send_Batch();
    if (sent != Link_Ok) return Fail(sent, result);
    if (!Take_Answers({link_state.link_view, Block_Size}, {answer_places.data(), count})) {
        return false;
    }
    result = Link_Ok;
    return true;
}

}  // namespace skerrand
