#include "platform/link.h"

#include <string>
#include <vector>

#include "platform/headless/program.h"
#include "platform/simulator/simulator.h"

// Both ends of the link in one process: the simulator finds the block by the atom, as it would from
// outside.
namespace platform {

namespace {

using simulator::stand_in;

constexpr Window_Handle Simulator_Window = 1;
constexpr Message_Id Link_Message = 0xC000;
constexpr Atom Link_Atom = 0xC000;
constexpr Mapping_Handle Link_Mapping = 1;

std::string atom;        // its text
std::string block_name;  // empty if there is no block
std::vector<std::uint8_t> block;
std::uint32_t last_error = 0;

}  // namespace

void headless::Reset_Link() {
    atom.clear();
    block_name.clear();
    simulator::stand_in = {};
}

Window_Handle FindWindowExA(const char* window_class) {
    return stand_in.window_class == window_class ? Simulator_Window : 0;
}

// No other program registers any, so one id does.
Message_Id RegisterWindowMessageA(const char*) {
    return Link_Message;
}

Atom GlobalAddAtomA(const char* text) {
    atom = text;
    return Link_Atom;
}

void GlobalDeleteAtom(Atom) {
    atom.clear();
}

Mapping_Handle CreateFileMappingA(std::uint32_t size, const char* name) {
    last_error = block_name.empty() ? 0 : Error_Already_Exists;
    if (last_error != 0) return 0;
    block_name = name;
    block.assign(size, 0);
    return Link_Mapping;
}

void CloseHandle(Mapping_Handle) {
    block_name.clear();
}

std::uint8_t* MapViewOfFile(Mapping_Handle) {
    return block.data();
}

void UnmapViewOfFile(std::uint8_t*) {}

bool SendMessageTimeoutA(Window_Handle, Message_Id, std::int32_t parameter, std::uint32_t,
                         std::uint32_t& reply) {
    last_error = stand_in.window_class.empty() ? Error_Invalid_Window : 0;
    if (last_error != 0) return false;
    const bool names_block = static_cast<Atom>(parameter) == Link_Atom && atom == block_name;
    reply = names_block && !block_name.empty() ? simulator::Answer_Batch(block) : 0;
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
