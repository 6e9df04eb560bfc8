#include "platform/simulator/simulator.h"

#include <algorithm>

namespace platform::simulator {

Simulator stand_in;

namespace {

using Block = std::span<std::uint8_t>;

constexpr std::size_t Fsuipc_Version_Offset = 0x3304;
constexpr std::size_t Fs_Version_Offset = 0x3308;
constexpr std::uint32_t Fsuipc_Version = 0x31230002;
constexpr std::uint32_t Fs_Version = 0xFADE0006;  // FS2002

/// The client's version goes here. It lies inside the simulator's own, which it must not spoil.
constexpr std::size_t Client_Version_Offset = 0x330A;
constexpr std::size_t Client_Version_Size = 2;

constexpr std::size_t Read_Head = 16;
constexpr std::size_t Write_Head = 12;

constexpr std::uint32_t Reply_Done = 1;
constexpr std::uint32_t Reply_Broken = 0;

std::uint32_t Get_Long(Block bytes, std::size_t offset) {
    std::uint32_t value = 0;
    for (std::size_t i = 0; i < 4; ++i)
        value |= std::uint32_t{bytes[offset + i]} << 8 * i;
    return value;
}

void Answer_Read(std::size_t offset, Block answer) {
    for (std::size_t i = 0; i < answer.size(); ++i)
        answer[i] = offset + i < State_Area_Size ? stand_in.state_area[offset + i] : 0;
}

void Take_Write(std::size_t offset, Block data) {
    for (std::size_t i = 0; i < data.size() && offset + i < State_Area_Size; ++i) {
        const bool is_client_version = offset + i - Client_Version_Offset < Client_Version_Size;
        if (!is_client_version) stand_in.state_area[offset + i] = data[i];
    }
}

/// Works on the request in front and steps over it; false if it is broken.
bool Take_Request(Block& rest) {
    const std::uint32_t id = Get_Long(rest, 0);
    const std::size_t head = id == 1 ? Read_Head : Write_Head;
    if (id > 2 || rest.size() < head) return false;
    const std::size_t offset = Get_Long(rest, 4);
    const std::size_t count = Get_Long(rest, 8);
    if (count > rest.size() - head) return false;
    const Block data = rest.subspan(head, count);
    if (id == 1) {
        Answer_Read(offset, data);
    } else {
        Take_Write(offset, data);
    }
    rest = rest.subspan(head + count);
    return true;
}

}  // namespace

void Start(std::string_view window_class) {
    stand_in.window_class = window_class;
    stand_in.state_area.fill(0);
    stand_in.reply = Reply_Done;
    stand_in.ones_first = 0;
    Put(Fsuipc_Version_Offset, Fsuipc_Version, 4);
    Put(Fs_Version_Offset, Fs_Version, 4);
}

void Put(std::size_t offset, std::int64_t value, std::size_t width) {
    for (std::size_t i = 0; i < width; ++i)
        stand_in.state_area[offset + i] = static_cast<std::uint8_t>(value >> 8 * i);
}

std::uint32_t Answer_Batch(Block block) {
    if (stand_in.ones_first > 0) {
        --stand_in.ones_first;
    } else if (stand_in.reply != Reply_Done) {
        return stand_in.reply;
    }
    for (Block rest = block; rest.size() >= 4;) {
        if (Get_Long(rest, 0) == 0) {
            ++stand_in.answered;
            return Reply_Done;
        }
        if (!Take_Request(rest)) break;
    }
    return Reply_Broken;
}

}  // namespace platform::simulator
