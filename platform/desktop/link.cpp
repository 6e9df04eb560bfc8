#include "platform/desktop/link.h"

#include <algorithm>
#include <chrono>
#include <string_view>
#include <thread>
#include <unistd.h>
#include <vector>

#include "platform/posix/link_endpoint.h"

namespace platform {

namespace {

constexpr std::size_t First_Atom = 0xC000;
constexpr std::size_t Most_Atoms = 0x4000;

std::uint32_t last_error = 0;

/// By their numbers from `First_Atom` on; deleted ones are empty. Other programs do not see this
/// table: a message takes the text along.
std::vector<std::string> atoms;

}  // namespace

void desktop::Set_Last_Error(std::uint32_t error) {
    last_error = error;
}

std::string desktop::Atom_Text(std::int32_t parameter) {
    const std::size_t atom = static_cast<Atom>(parameter);
    if (atom < First_Atom || atom - First_Atom >= atoms.size()) return {};
    return atoms[atom - First_Atom];
}

Message_Id RegisterWindowMessageA(const char* name) {
    return posix::Message_Number(name);
}

Atom GlobalAddAtomA(const char* text) {
    const std::string_view given = text;
    if (given.empty() || given.size() > posix::Longest_Atom) {
        last_error = desktop::Error_Invalid_Parameter;
        return 0;
    }
    const auto free_place = std::find(atoms.begin(), atoms.end(), std::string());
    const auto index = static_cast<std::size_t>(free_place - atoms.begin());
    if (index >= Most_Atoms) {
        last_error = desktop::Error_Not_Enough_Memory;
        return 0;
    }
    if (index == atoms.size()) atoms.emplace_back();
    atoms[index] = given;
    return static_cast<Atom>(First_Atom + index);
}

void GlobalDeleteAtom(Atom atom) {
    if (atom < First_Atom || atom - First_Atom >= atoms.size()) return;
    atoms[atom - First_Atom].clear();
}

std::uint32_t GetLastError() {
    return last_error;
}

std::uint32_t GetCurrentProcessId() {
    return static_cast<std::uint32_t>(getpid());
}

void Sleep(std::uint32_t milliseconds) {
    std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
}

}  // namespace platform
