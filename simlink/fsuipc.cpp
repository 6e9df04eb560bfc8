#include "simlink/fsuipc.h"

#include <array>
#include <cstdio>

#include "simlink/link_block.h"
#include "simlink/link_state.h"

namespace skerrand {

Link_State link_state;
std::int32_t fsuipc_version = 0;
std::uint32_t fs_version = 0;

namespace {

constexpr const char* Server_Class = "UIPCMAIN";
constexpr const char* Fallback_Class = "FS98MAIN";  // of the first servers of this kind
constexpr const char* Message_Name = "FSASMLIB:IPC";

/// The message's name, the process id in hexadecimal, a counter, and the NUL.
using Block_Name = std::array<char, 24>;

constexpr std::uint32_t Fsuipc_Version_Offset = 0x3304;
constexpr std::uint32_t Fs_Version_Offset = 0x3308;
constexpr std::uint32_t Client_Version_Offset = 0x330A;

constexpr std::int32_t Oldest_Fsuipc = 0x19980005;
constexpr std::uint32_t Fs_Version_Mark = 0xFADE;  // upper half of the simulator's version word

constexpr int Most_Passes = 5;
constexpr std::uint32_t Pass_Wait = 100;  // ms

constexpr std::uint16_t client_version = 0;

/// Finds the server's window; tells whether it was the fallback.
bool Find_Server() {
    link_state.link_window = platform::FindWindowExA(Server_Class);
    if (link_state.link_window != 0) return false;
    link_state.link_window = platform::FindWindowExA(Fallback_Class);
    return true;
}

/// Makes the shared block and the atom that tells the server its name.
Link_Result Make_Block() {
    Block_Name name;
    std::snprintf(name.data(), name.size(), "%s:%X:1", Message_Name,
                  unsigned{platform::GetCurrentProcessId()});

    link_state.link_atom = static_cast<std::int16_t>(platform::GlobalAddAtomA(name.data()));
    if (link_state.link_atom == 0) return Link_No_Atom;

    link_state.link_mapping = platform::CreateFileMappingA(Block_Size, name.data());
    if (link_state.link_mapping == 0 ||
        platform::GetLastError() == platform::Error_Already_Exists) {
        return Link_No_Mapping;
    }

    link_state.link_view = platform::MapViewOfFile(link_state.link_mapping);
    if (link_state.link_view == nullptr) return Link_No_View;
    Empty_Batch();
    return Link_Ok;
}

/// Reads both version words and writes the client's, until the server has something to say.
bool Exchange_Versions(std::int32_t& result) {
    for (int pass = 0; pass < Most_Passes && (fsuipc_version == 0 || fs_version == 0); ++pass) {
        if (!Queue_Read(Fsuipc_Version_Offset, sizeof fsuipc_version, &fsuipc_version, result) ||
            !Queue_Read(Fs_Version_Offset, sizeof fs_version, &fs_version, result)) {
            return false;
        }
        if (!Queue_Write(Client_Version_Offset, sizeof client_version, &client_version, result) &&
            pass == 0) {
            return false;
        }
        if (!Process_Queue(result)) return false;
        platform::Sleep(Pass_Wait);
    }
    return true;
}

Link_Result Judge_Versions(std::int32_t required_fs, bool fallback) {
    if (fsuipc_version < Oldest_Fsuipc || fs_version >> 16 != Fs_Version_Mark) {
        return fallback ? Link_Bad_Version_Fallback : Link_Bad_Version;
    }
    fs_version &= 0xFFFF;
    const bool fits = required_fs == 0 || fs_version == static_cast<std::uint32_t>(required_fs);
    return fits ? Link_Ok : Link_Wrong_Simulator;
}

}  // namespace

void Clear_Link() {
    link_state = {};
}

bool Open_Link(std::int32_t required_fs, std::int32_t& result) {
    const auto end = [&result](Link_Result code) {
        result = code;
        return code == Link_Ok;
    };
    const auto take_down = [&end](Link_Result code) {
        Close_Link();
        return end(code);
    };

    fsuipc_version = 0;
    fs_version = 0;
    if (link_state.link_view != nullptr) return end(Link_Already_Open);

    const bool fallback = Find_Server();
    if (link_state.link_window == 0) return end(Link_No_Server);

    link_state.link_message = platform::RegisterWindowMessageA(Message_Name);
    if (link_state.link_message == 0) return end(Link_No_Message);

    if (const Link_Result code = Make_Block(); code != Link_Ok) return take_down(code);

    if (!Exchange_Versions(result)) {
        Close_Link();
        return false;
    }
    const Link_Result code = Judge_Versions(required_fs, fallback);
    return code == Link_Ok ? end(code) : take_down(code);
}

void Close_Link() {
    link_state.link_window = 0;
    link_state.link_message = 0;
    link_state.link_next = nullptr;
    if (link_state.link_atom != 0) {
        platform::GlobalDeleteAtom(static_cast<platform::Atom>(link_state.link_atom));
        link_state.link_atom = 0;
    }
    if (link_state.link_view != nullptr) {
        platform::UnmapViewOfFile(link_state.link_view);
        link_state.link_view = nullptr;
    }
    if (link_state.link_mapping != 0) {
        platform::CloseHandle(link_state.link_mapping);
        link_state.link_mapping = 0;
    }
}

}  // namespace skerrand
