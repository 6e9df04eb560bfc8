#include "simlink/link_block.h"

#include <algorithm>
#include <cstring>

namespace skerrand {

namespace {

using Bytes_Left = std::span<const std::uint8_t>;

template <typename Value>
bool Peek(Bytes_Left rest, Value& value) {
    if (rest.size() < sizeof value) return false;
    std::memcpy(&value, rest.data(), sizeof value);
    return true;
}

/// Steps over a head and its data, and gives both; false if they are not all there.
template <typename Head>
bool Take_Request(Bytes_Left& rest, Head& head, Bytes_Left& data) {
    if (!Peek(rest, head) || head.byte_count > rest.size() - sizeof head) return false;
    data = rest.subspan(sizeof head, head.byte_count);
    rest = rest.subspan(sizeof head + head.byte_count);
    return true;
}

void Copy_Answer(std::uint32_t client_address, Bytes_Left answer,
                 std::span<const Answer_Place> places) {
    if (client_address == 0 || client_address > places.size()) return;
    const Answer_Place& place = places[client_address - 1];
    std::memcpy(place.variable, answer.data(),
                std::min<std::size_t>(answer.size(), place.byte_count));
}

}  // namespace

bool Take_Answers(Bytes_Left block, std::span<const Answer_Place> places) {
    Bytes_Left data;
    for (Bytes_Left rest = block;;) {
        std::uint16_t id = 0;  // the upper half of the field is the server's
        if (!Peek(rest, id)) return false;
        if (id == Id_End) return true;
        if (id == Id_Read) {
            Read_Request head;
            if (!Take_Request(rest, head, data)) return false;
            Copy_Answer(head.client_address, data, places);
        } else if (id == Id_Write) {
            Write_Request head;
            if (!Take_Request(rest, head, data)) return false;
        } else {
            return false;
        }
    }
}

}  // namespace skerrand
