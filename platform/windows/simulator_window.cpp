#include <array>
#include <cstring>
#include <string_view>

#include "platform/simulator/server.h"
#include "platform/windows/native.h"

// The window as the real simulator's add-on has it: a message brings an atom, the atom is the name
// of a block, and the block holds the requests.
namespace platform::simulator {

namespace {

constexpr const char* Message_Name = "FSASMLIB:IPC";
constexpr std::string_view Block_Name_Start = "FSASMLIB:IPC:";
constexpr std::size_t Block_Size = 0x8000;

HWND server_window = nullptr;
HANDLE followed = nullptr;
UINT link_message = 0;
const Answer* answer = nullptr;  ///< null while nothing is answered

/// A client's block, mapped; null if there is none of that name and size.
std::uint8_t* Map_Block(ATOM atom) {
    std::array<char, 256> name{};
    GlobalGetAtomNameA(atom, name.data(), static_cast<int>(name.size()));
    if (!std::string_view(name.data()).starts_with(Block_Name_Start)) return nullptr;
    const HANDLE mapping = OpenFileMappingA(FILE_MAP_WRITE, FALSE, name.data());
    if (mapping == nullptr) return nullptr;
    void* view = MapViewOfFile(mapping, FILE_MAP_WRITE, 0, 0, Block_Size);
    ::CloseHandle(mapping);
    return static_cast<std::uint8_t*>(view);
}

/// Works on a copy, for the client may change its block meanwhile.
std::uint32_t Answer_Message(ATOM atom) {
    std::uint8_t* const view = Map_Block(atom);
    if (view == nullptr) return 0;
    std::array<std::uint8_t, Block_Size> block;
    std::memcpy(block.data(), view, block.size());
    const std::uint32_t reply = (*answer)(block);
    if (reply == 1) std::memcpy(view, block.data(), block.size());
    UnmapViewOfFile(view);
    return reply;
}

LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM first, LPARAM second) {
    if (message == link_message && answer != nullptr) {
        return static_cast<LRESULT>(Answer_Message(static_cast<ATOM>(first)));
    }
    return DefWindowProcA(window, message, first, second);
}

}  // namespace

std::string Open_Window(const char* window_class) {
    if (FindWindowExA(nullptr, nullptr, window_class, nullptr) != nullptr) {
        return std::string("another simulator has a window of the class ") + window_class;
    }
    link_message = RegisterWindowMessageA(Message_Name);
    WNDCLASSA description{};
    description.lpfnWndProc = Procedure;
    description.hInstance = GetModuleHandleA(nullptr);
    description.lpszClassName = window_class;
    RegisterClassA(&description);
    // Never shown, but among the windows of the desktop, where clients look for it.
    server_window = CreateWindowExA(0, window_class, "", WS_POPUP, 0, 0, 0, 0, nullptr, nullptr,
                                    description.hInstance, nullptr);
    return server_window != nullptr ? std::string() : "no window can be made";
}

void Close_Window() {
    DestroyWindow(server_window);
    server_window = nullptr;
}

bool Follow(int process) {
    followed = OpenProcess(SYNCHRONIZE, FALSE, static_cast<DWORD>(process));
    return followed != nullptr;
}

void Serve(const Answer& answer_) {
    answer = &answer_;
    const DWORD count = followed != nullptr ? 1 : 0;
    // Messages that are sent, and not posted, reach the window while it looks for posted ones.
    while (MsgWaitForMultipleObjects(count, &followed, FALSE, INFINITE, QS_ALLINPUT) ==
           WAIT_OBJECT_0 + count) {
        MSG message;
        while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE))
            DispatchMessageA(&message);
    }
    answer = nullptr;
}

bool Wait(int milliseconds) {
    const auto time = static_cast<DWORD>(milliseconds);
    if (followed != nullptr) return WaitForSingleObject(followed, time) == WAIT_TIMEOUT;
    ::Sleep(time);
    return true;
}

}  // namespace platform::simulator
