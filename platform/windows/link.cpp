#include "platform/link.h"

#include "platform/windows/native.h"

// Handles of windows and mappings have 32 bits that count, also in a program of 64.
namespace platform {

namespace {

std::uint32_t last_error = 0;

/// A native handle from a number of the layer, or the other way round.
HANDLE Native(std::uint32_t handle) {
    return reinterpret_cast<HANDLE>(static_cast<LONG_PTR>(static_cast<LONG>(handle)));
}

std::uint32_t Number(const void* handle) {
    return static_cast<std::uint32_t>(reinterpret_cast<ULONG_PTR>(handle));
}

template <typename Result>
Result Note_Error(Result result) {
    last_error = ::GetLastError();
    return result;
}

}  // namespace

Window_Handle FindWindowExA(const char* window_class) {
    return Number(Note_Error(::FindWindowExA(nullptr, nullptr, window_class, nullptr)));
}

Message_Id RegisterWindowMessageA(const char* name) {
    return Note_Error(::RegisterWindowMessageA(name));
}

Atom GlobalAddAtomA(const char* text) {
    return Note_Error(::GlobalAddAtomA(text));
}

void GlobalDeleteAtom(Atom atom) {
    ::GlobalDeleteAtom(atom);
}

Mapping_Handle CreateFileMappingA(std::uint32_t size, const char* name) {
    SetLastError(0);
    return Number(Note_Error(
        ::CreateFileMappingA(INVALID_HANDLE_VALUE, nullptr, PAGE_READWRITE, 0, size, name)));
}

void CloseHandle(Mapping_Handle mapping) {
    ::CloseHandle(Native(mapping));
}

std::uint8_t* MapViewOfFile(Mapping_Handle mapping) {
    return static_cast<std::uint8_t*>(
        Note_Error(::MapViewOfFile(Native(mapping), FILE_MAP_WRITE, 0, 0, 0)));
}

void UnmapViewOfFile(std::uint8_t* view) {
    ::UnmapViewOfFile(view);
}

bool SendMessageTimeoutA(Window_Handle window, Message_Id message, std::int32_t parameter,
                         std::uint32_t time_out, std::uint32_t& reply) {
    DWORD_PTR answer = 0;
    SetLastError(0);
    const LRESULT done =
        ::SendMessageTimeoutA(static_cast<HWND>(Native(window)), message,
                              static_cast<WPARAM>(parameter), 0, SMTO_BLOCK, time_out, &answer);
    last_error = ::GetLastError();
    if (last_error == ERROR_TIMEOUT) last_error = 0;
    reply = static_cast<std::uint32_t>(answer);
    return done != 0;
}

std::uint32_t GetLastError() {
    return last_error;
}

std::uint32_t GetCurrentProcessId() {
    return ::GetCurrentProcessId();
}

void Sleep(std::uint32_t milliseconds) {
    ::Sleep(milliseconds);
}

}  // namespace platform
