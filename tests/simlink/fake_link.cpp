#include "tests/simlink/fake_link.h"

Fake_Link fake;

namespace platform {

namespace {

constexpr Mapping_Handle The_Mapping = 77;
std::uint32_t block_size = 0;

}  // namespace

Window_Handle FindWindowExA(const char* window_class) {
    return fake.window_class == window_class ? 5 : 0;
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
    fake.error = fake.mapping_exists ? Error_Already_Exists : 0;
    block_size = size;
    return fake.mapping_fails ? 0 : The_Mapping;
}

void CloseHandle(Mapping_Handle mapping) {
    fake.calls += mapping == The_Mapping ? "-block " : "-stranger ";
}

std::uint8_t* MapViewOfFile(Mapping_Handle) {
    if (fake.view_fails) return nullptr;
    fake.block = std::make_unique<std::uint8_t[]>(block_size);
    return fake.block.get();
}

void UnmapViewOfFile(std::uint8_t* view) {
    fake.calls += view == fake.block.get() ? "-view " : "-stranger ";
    fake.block.reset();
}

bool SendMessageTimeoutA(Window_Handle window, Message_Id message, std::int32_t parameter,
                         std::uint32_t time_out, std::uint32_t& reply) {
    ++fake.sends;
    if (fake.failing_sends > 0) {
        --fake.failing_sends;
        return false;
    }
    fake.parameter = parameter;
    if (window != 5 || message != fake.message || time_out != 2000) return false;
    fake.server({fake.block.get(), block_size});
    reply = fake.reply;
    return true;
}

std::uint32_t GetLastError() {
    return fake.error;
}

std::uint32_t GetCurrentProcessId() {
    return fake.process_id;
}

void Sleep(std::uint32_t milliseconds) {
    fake.clock += milliseconds;
}

}  // namespace platform
