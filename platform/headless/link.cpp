#include "platform/link.h"

#include <vector>

#include "platform/headless/program.h"
#include "platform/simulator/simulator.h"

// Both ends of the link in one process. There is one block, so its name and the atom say nothing.
namespace platform {

namespace {

using simulator::stand_in;

constexpr Window_Handle Simulator_Window = 1;
constexpr Message_Id Link_Message = 0xC000;
constexpr Atom Link_Atom = 0xC000;
constexpr Mapping_Handle Link_Mapping = 1;

bool has_block = false;
std::vector<std::uint8_t> block;
std::uint32_t last_error = 0;

}  // namespace

void headless::Reset_Link() {
    has_block = false;
    simulator::stand_in = {};
}

Window_Handle FindWindowExA(const char* window_class) {
    return stand_in.window_class == window_class ? Simulator_Window : 0;
}

// No other program registers any, so one id does.
Message_Id RegisterWindowMessageA(const char*) {
    return Link_Message;
}

Atom GlobalAddAtomA(const char*) {
    return Link_Atom;
}

void GlobalDeleteAtom(Atom) {}

Mapping_Handle CreateFileMappingA(std::uint32_t size, const char*) {
    last_error = has_block ? Error_Already_Exists : 0;
    if (has_block) return 0;
    has_block = true;
    block.assign(size, 0);
    return Link_Mapping;
}

void CloseHandle(Mapping_Handle) {
    has_block = false;
}

std::uint8_t* MapViewOfFile(Mapping_Handle) {
    return block.data();
}

void UnmapViewOfFile(std::uint8_t*) {}

bool SendMessageTimeoutA(Window_Handle, Message_Id, std::int32_t, std::uint32_t,
                         std::uint32_t& reply) {
    last_error = stand_in.window_class.empty() ? Error_Invalid_Window : 0;
    if (last_error != 0) return false;
    reply = has_block ? simulator::Answer_Batch(block) : 0;
    return true;
}

std::uint32_t GetLastError() {
    return last_error;
}

// It is part of the block's name, which no other process sees.
std::uint32_t GetCurrentProcessId() {
    return 1;
}

void Sleep(std::uint32_t milliseconds) {
    headless::Pass_Time(milliseconds);
}

}  // namespace platform
