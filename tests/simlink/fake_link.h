#pragma once

#include <array>
#include <cstring>
#include <functional>
#include <span>
#include <string>

#include "platform/link.h"
#include "platform/simulator/simulator.h"

using Block = std::span<std::uint8_t>;

/// For one file of a program: the link operations of a platform that lives inside the test: each
/// can be made to fail, a wait only moves a number, and the server is a function over the block, at
/// first that of the stand-in.
struct Fake_Link {
    const char* window_class = "UIPCMAIN";  ///< of the one window that stands
    std::uint16_t message = 0xC0DE, atom = 0xC001;
    platform::Mapping_Handle mapping = 77;
    bool view_fails = false;
    int failing_sends = 0;  ///< so many sends fail before the first that succeeds
    std::uint32_t error = 0, reply = 1;
    std::function<void(Block)> server = platform::simulator::Answer_Batch;

    std::uint32_t clock = 0;
    int sends = 0;
    std::string calls;  ///< what was made and released, a word each
    std::array<std::uint8_t, 0x8000> block = {};
};
inline Fake_Link fake;

namespace platform {

Window_Handle FindWindowExA(const char* window_class) {
    return std::strcmp(fake.window_class, window_class) == 0 ? 5 : 0;
}
Message_Id RegisterWindowMessageA(const char* name) {
    fake.calls += std::string(name) + " ";
    return fake.message;
}
Atom GlobalAddAtomA(const char* text) {
    fake.calls += std::string("atom:") + text + " ";
    return fake.atom;
}
void GlobalDeleteAtom(Atom atom) {
    fake.calls += atom == fake.atom ? "-atom " : "-stranger ";
}
Mapping_Handle CreateFileMappingA(std::uint32_t size, const char* name) {
    fake.calls += std::string("block:") + name + " ";
    return size == fake.block.size() ? fake.mapping : 0;
}
void CloseHandle(Mapping_Handle mapping) {
    fake.calls += mapping == fake.mapping ? "-block " : "-stranger ";
}
std::uint8_t* MapViewOfFile(Mapping_Handle) {
    return fake.view_fails ? nullptr : fake.block.data();
}
void UnmapViewOfFile(std::uint8_t* view) {
    fake.calls += view == fake.block.data() ? "-view " : "-stranger ";
}
bool SendMessageTimeoutA(Window_Handle window, Message_Id message, std::int32_t parameter,
                         std::uint32_t time_out, std::uint32_t& reply) {
    ++fake.sends;
    if (fake.failing_sends-- > 0) return false;
    // The atom 0xC001 with its sign.
    if (window != 5 || message != 0xC0DE || parameter != -0x3FFF || time_out != 2000) return false;
    fake.server(fake.block);
    reply = fake.reply;
    return true;
}
std::uint32_t GetLastError() {
    return fake.error;
}
std::uint32_t GetCurrentProcessId() {
    return 0xABCDEF01;
}
void Sleep(std::uint32_t milliseconds) {
    fake.clock += milliseconds;
}

}  // namespace platform

inline void Put(Block block, int at, std::uint32_t value) {
    std::memcpy(block.data() + at, &value, sizeof value);
}
