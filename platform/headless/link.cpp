#include "platform/headless/link.h"

#include <algorithm>
#include <span>
#include <string>
#include <unistd.h>
#include <vector>

#include "platform/headless/simulator.h"
#include "platform/headless/timers.h"

// Atoms and blocks as the native platform has them, with both ends of the link in one process: the
// simulator finds the block by the atom, as it would from outside.
namespace platform {

namespace {

constexpr Window_Handle Simulator_Window = 1;
constexpr Message_Id Link_Message = 0xC000;

constexpr std::size_t First_Atom = 0xC000;
constexpr std::size_t Most_Atoms = 0x4000;

constexpr std::uint32_t Error_Invalid_Handle = 6;
constexpr std::uint32_t Error_Not_Enough_Memory = 8;

/// Memory with a name; it lives as long as it has a handle or a view.
struct Block {
    Mapping_Handle handle = 0;
    std::string name;
    std::vector<std::uint8_t> bytes;
    int handles = 0;
    int views = 0;
};

std::vector<std::string> atoms;  // by their numbers from First_Atom on; deleted ones are empty
std::vector<Block> blocks;
Mapping_Handle last_handle = 0;
std::uint32_t last_error = 0;

template <typename Condition>
Block* Find_Block(Condition condition) {
    const auto found = std::find_if(blocks.begin(), blocks.end(), condition);
    if (found != blocks.end()) return &*found;
    last_error = Error_Invalid_Handle;
    return nullptr;
}

Block* Block_Named(const std::string& name) {
    return Find_Block([&](const Block& block) { return block.name == name; });
}

Block* Block_Of(Mapping_Handle handle) {
    return Find_Block([=](const Block& block) { return block.handle == handle && handle != 0; });
}

void Drop_Unused() {
    std::erase_if(blocks,
                  [](const Block& block) { return block.handles <= 0 && block.views <= 0; });
}

/// The simulator's side of a message: from the atom to the name, from the name to the block.
std::uint32_t Deliver(Message_Id message, std::int32_t parameter) {
    const std::size_t atom = static_cast<Atom>(parameter);
    if (message != Link_Message || atom < First_Atom || atom - First_Atom >= atoms.size()) return 0;
    Block* block = Block_Named(atoms[atom - First_Atom]);
    return block == nullptr ? 0 : headless::Answer_Batch(block->bytes);
}

}  // namespace

void headless::Reset_Link() {
    atoms.clear();
    blocks.clear();
    last_error = 0;
}

Window_Handle FindWindowExA(const char* window_class) {
    return headless::Has_Window(window_class) ? Simulator_Window : 0;
}

// No other program registers any, so one id does.
Message_Id RegisterWindowMessageA(const char*) {
    return Link_Message;
}

Atom GlobalAddAtomA(const char* text) {
    const auto free_place = std::find(atoms.begin(), atoms.end(), std::string());
    const auto index = static_cast<std::size_t>(free_place - atoms.begin());
    if (index >= Most_Atoms) {
        last_error = Error_Not_Enough_Memory;
        return 0;
    }
    if (index == atoms.size()) atoms.emplace_back();
    atoms[index] = text;
    return static_cast<Atom>(First_Atom + index);
}

void GlobalDeleteAtom(Atom atom) {
    if (atom < First_Atom || atom - First_Atom >= atoms.size()) return;
    atoms[atom - First_Atom].clear();
}

Mapping_Handle CreateFileMappingA(std::uint32_t size, const char* name) {
    Block* block = Block_Named(name);
    last_error = block == nullptr ? 0 : Error_Already_Exists;
    if (block == nullptr) {
        blocks.push_back({++last_handle, name, std::vector<std::uint8_t>(size), 0, 0});
        block = &blocks.back();
    }
    ++block->handles;
    return block->handle;
}

void CloseHandle(Mapping_Handle mapping) {
    if (Block* block = Block_Of(mapping)) --block->handles;
    Drop_Unused();
}

std::uint8_t* MapViewOfFile(Mapping_Handle mapping) {
    Block* block = Block_Of(mapping);
    if (block == nullptr) return nullptr;
    ++block->views;
    return block->bytes.data();
}

void UnmapViewOfFile(std::uint8_t* view) {
    if (Block* block = Find_Block([=](const Block& each) { return each.bytes.data() == view; })) {
        --block->views;
    }
    Drop_Unused();
}

bool SendMessageTimeoutA(Window_Handle window, Message_Id message, std::int32_t parameter,
                         std::uint32_t, std::uint32_t& reply) {
    if (window != Simulator_Window || !headless::Simulator_Stands()) {
        last_error = Error_Invalid_Window;
        return false;
    }
    reply = Deliver(message, parameter);
    return true;
}

std::uint32_t GetLastError() {
    return last_error;
}

std::uint32_t GetCurrentProcessId() {
    return static_cast<std::uint32_t>(getpid());
}

void Sleep(std::uint32_t milliseconds) {
    headless::Pass_Time(milliseconds);
}

}  // namespace platform
