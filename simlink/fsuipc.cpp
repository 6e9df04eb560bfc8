#include "simlink/fsuipc.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdio>
#include <cstring>

#include "platform/link.h"

namespace skerrand {

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

constexpr std::uint32_t Send_Time_Out = 2000;  // ms
constexpr std::uint32_t Retry_Wait = 100;      // ms
constexpr int Most_Retries = 10;
constexpr std::uint32_t Reply_Done = 1;

constexpr std::uint16_t client_version = 0;

// The shared block: requests with their data, one behind the other without gaps, and an end mark
// where the next request would stand. Batches fill it up to `Batch_Limit`.
constexpr std::uint32_t Block_Size = 0x8000;
constexpr std::uint32_t Batch_Limit = 0x7F00;
constexpr std::size_t End_Mark_Size = 4;

enum Request_Id : std::uint16_t { Id_End = 0, Id_Read = 1, Id_Write = 2 };

/// Head of a request, in front of `byte_count` bytes: of a read those that the server fills in, of
/// a write the data. A write has no place of an answer, so its head is shorter.
struct Request_Head {
    std::uint32_t request_id = 0;  ///< the upper half is the server's on the way back
    std::uint32_t fs_offset = 0;
    std::uint32_t byte_count = 0;
    /// The client's own, which the server hands back: the answer's place, counted from 1; 0 if the
    /// answer goes nowhere.
    std::uint32_t client_address = 0;
};
constexpr std::size_t Read_Head_Size = 16;
constexpr std::size_t Write_Head_Size = 12;

static_assert(sizeof(Request_Head) == Read_Head_Size);
static_assert(std::endian::native == std::endian::little,
              "heads and answers are moved as they are");

/// The one link.
struct Link_State {
    platform::Window_Handle link_window = 0;  ///< the server's
    platform::Message_Id link_message = 0;
    std::int32_t link_atom = 0;  ///< sign-extended, as the server expects it
    platform::Mapping_Handle link_mapping = 0;
    std::uint8_t* link_view = nullptr;  ///< start of the block; null while closed
    std::uint8_t* link_next = nullptr;  ///< where the next request goes
};
Link_State link_state;

std::int32_t fsuipc_version = 0;
std::uint32_t fs_version = 0;

/// Where the answer of a read goes, and how much of it was asked for. An address does not fit the
/// 32 bits that a request has for it, so the addresses stay here and the request holds the place in
/// this table. Reads without data are the shortest requests.
struct Answer_Place {
    void* variable = nullptr;
    std::uint32_t byte_count = 0;
};
std::array<Answer_Place, (Batch_Limit - End_Mark_Size) / Read_Head_Size> answer_places;
std::size_t answer_count = 0;

bool Fail(Link_Result code, std::int32_t& result) {
    result = code;
    return false;
}

/// Drops what is queued.
void Empty_Batch() {
    link_state.link_next = link_state.link_view;
    answer_count = 0;
}

/// Adds a head to the batch if it fits with its data and the end mark.
bool Queue_Head(const Request_Head& head, std::size_t head_size, std::int32_t& result) {
    if (link_state.link_view == nullptr) return Fail(Link_Not_Open, result);
    const auto used = static_cast<std::uint64_t>(link_state.link_next - link_state.link_view);
    if (used + End_Mark_Size + head_size + head.byte_count > Batch_Limit) {
        return Fail(Link_Batch_Full, result);
    }
    std::memcpy(link_state.link_next, &head, head_size);
    link_state.link_next += head_size;
    result = Link_Ok;
    return true;
}

Link_Result Send_Batch() {
    std::uint32_t reply = 0;
    for (int retry = 0;
         !platform::SendMessageTimeoutA(link_state.link_window, link_state.link_message,
                                        link_state.link_atom, Send_Time_Out, reply);
         ++retry) {
        if (retry == Most_Retries) {
            return platform::GetLastError() == 0 ? Link_Timed_Out : Link_Send_Failed;
        }
        platform::Sleep(Retry_Wait);
    }
    return reply == Reply_Done ? Link_Ok : Link_Refused;
}

/// Copies the answers of a block that the server has handed back. Nothing is taken on trust: no
/// byte outside the block is read, and a place gets at most what was asked for it. False at a
/// request of an unknown kind or one that leaves the block; what stands ahead of it is copied.
bool Take_Answers(const std::uint8_t* block, std::size_t count) {
    for (std::size_t at = 0;;) {
        std::uint16_t id = Id_End;
        if (Block_Size - at < sizeof id) return false;
        std::memcpy(&id, block + at, sizeof id);
        if (id == Id_End) return true;
        if (id != Id_Read && id != Id_Write) return false;

        Request_Head head;
        const std::size_t head_size = id == Id_Read ? Read_Head_Size : Write_Head_Size;
        if (Block_Size - at < head_size) return false;
        std::memcpy(&head, block + at, head_size);
        at += head_size;
        if (head.byte_count > Block_Size - at) return false;
        if (head.client_address != 0 && head.client_address <= count) {
            const auto [variable, asked] = answer_places[head.client_address - 1];
            std::memcpy(variable, block + at, std::min(head.byte_count, asked));
        }
        at += head.byte_count;
    }
}

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

/// Reads both version words and writes the client's, until the server has something to say. The
/// block is empty at each pass, so that all three requests fit.
bool Exchange_Versions(std::int32_t& result) {
    for (int pass = 0; pass < Most_Passes && (fsuipc_version == 0 || fs_version == 0); ++pass) {
        if (!Queue_Read(Fsuipc_Version_Offset, sizeof fsuipc_version, &fsuipc_version, result) ||
            !Queue_Read(Fs_Version_Offset, sizeof fs_version, &fs_version, result) ||
            !Queue_Write(Client_Version_Offset, sizeof client_version, &client_version, result) ||
            !Process_Queue(result)) {
            return false;
        }
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
    fsuipc_version = 0;
    fs_version = 0;
    if (link_state.link_view != nullptr) return Fail(Link_Already_Open, result);

    const bool fallback = Find_Server();
    if (link_state.link_window == 0) return Fail(Link_No_Server, result);

    link_state.link_message = platform::RegisterWindowMessageA(Message_Name);
    if (link_state.link_message == 0) return Fail(Link_No_Message, result);

    result = Make_Block();
    if (result == Link_Ok && Exchange_Versions(result)) {
        result = Judge_Versions(required_fs, fallback);
        if (result == Link_Ok) return true;
    }
    Close_Link();
    return false;
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

bool Queue_Read(std::uint32_t fs_offset, std::uint32_t byte_count, void* client_address,
                std::int32_t& result) {
    const auto place = client_address == nullptr ? 0 : static_cast<std::uint32_t>(answer_count + 1);
    if (!Queue_Head({Id_Read, fs_offset, byte_count, place}, Read_Head_Size, result)) return false;
    if (place != 0) answer_places[answer_count++] = {client_address, byte_count};
    std::memset(link_state.link_next, 0, byte_count);
    link_state.link_next += byte_count;
    return true;
}

bool Queue_Write(std::uint32_t fs_offset, std::uint32_t byte_count, const void* source_address,
                 std::int32_t& result) {
    if (!Queue_Head({Id_Write, fs_offset, byte_count}, Write_Head_Size, result)) return false;
    if (byte_count != 0) std::memcpy(link_state.link_next, source_address, byte_count);
    link_state.link_next += byte_count;
    return true;
}

bool Process_Queue(std::int32_t& result) {
    if (link_state.link_view == nullptr) return Fail(Link_Not_Open, result);
    if (link_state.link_next == link_state.link_view) return Fail(Link_Nothing_Queued, result);

    std::memset(link_state.link_next, 0, End_Mark_Size);
    const std::size_t count = answer_count;
    Empty_Batch();
    const Link_Result sent = Send_Batch();
    if (sent != Link_Ok) return Fail(sent, result);
    if (!Take_Answers(link_state.link_view, count)) return false;
    result = Link_Ok;
    return true;
}

}  // namespace skerrand
