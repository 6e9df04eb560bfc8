#include "platform/headless/simulator.h"

#include <algorithm>
#include <array>
#include <string>

namespace platform::headless {

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

std::array<std::uint8_t, State_Area_Size> state_area;
std::string simulator_class;  // empty if no simulator stands
std::uint32_t last_reply = Reply_Done;
std::int64_t ones_left = 0;
std::int64_t answered = 0;

void Put_Long(std::size_t offset, std::uint32_t value) {
    for (std::size_t i = 0; i < 4; ++i) {
        state_area[offset + i] = static_cast<std::uint8_t>(value >> 8 * i);
    }
}

std::uint32_t Get_Long(Block bytes, std::size_t offset) {
    std::uint32_t value = 0;
    for (std::size_t i = 0; i < 4; ++i)
        value |= std::uint32_t{bytes[offset + i]} << 8 * i;
    return value;
}

void Answer_Read(std::size_t offset, Block answer) {
    std::fill(answer.begin(), answer.end(), std::uint8_t{0});
    if (offset >= State_Area_Size) return;
    const std::size_t count = std::min(answer.size(), State_Area_Size - offset);
    std::copy_n(state_area.data() + offset, count, answer.data());
}

void Take_Write(std::size_t offset, Block data) {
    for (std::size_t i = 0; i < data.size() && offset + i < State_Area_Size; ++i) {
        const std::size_t at = offset + i;
        const bool is_client_version =
            at >= Client_Version_Offset && at < Client_Version_Offset + Client_Version_Size;
        if (!is_client_version) state_area[at] = data[i];
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

std::uint32_t Next_Reply() {
    if (ones_left == 0) return last_reply;
    --ones_left;
    return Reply_Done;
}

}  // namespace

void Reset_Simulator() {
    Stop_Simulator();
    state_area.fill(0);
    Set_Reply(Reply_Done, 0);
    answered = 0;
}

void Start_Simulator(std::string_view window_class) {
    simulator_class = window_class;
    state_area.fill(0);
    Put_Long(Fsuipc_Version_Offset, Fsuipc_Version);
    Put_Long(Fs_Version_Offset, Fs_Version);
    Set_Reply(Reply_Done, 0);
}

void Stop_Simulator() {
    simulator_class.clear();
}

bool Simulator_Stands() {
    return !simulator_class.empty();
}

bool Has_Window(std::string_view window_class) {
    return Simulator_Stands() && simulator_class == window_class;
}

std::span<std::uint8_t> State_Area() {
    return state_area;
}

void Set_Reply(std::uint32_t reply, std::int64_t ones_before) {
    last_reply = reply;
    ones_left = ones_before;
}

std::uint32_t Answer_Batch(Block block) {
    const std::uint32_t reply = Next_Reply();
    if (reply != Reply_Done) return reply;
    for (Block rest = block; rest.size() >= 4;) {
        if (Get_Long(rest, 0) == 0) {
            ++answered;
            return Reply_Done;
        }
        if (!Take_Request(rest)) break;
    }
    return Reply_Broken;
}

std::int64_t Answered_Batches() {
    return answered;
}

}  // namespace platform::headless
