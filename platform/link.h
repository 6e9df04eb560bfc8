#pragma once

#include <cstdint>

/// The operations behind the link to the simulator: a named block of shared memory, and a message
/// to a window of another program that makes that program work on the block. Each is its native
/// namesake without the arguments that never change. The program has one link at a time: a back-end
/// may hold no more than one window, atom and block, and forget a window when it looks for another.
namespace platform {

using Window_Handle = std::uint32_t;
using Mapping_Handle = std::uint32_t;
using Message_Id = std::uint32_t;
using Atom = std::uint16_t;

/// The handle of another program's window of that class; 0 if there is none.
Window_Handle FindWindowExA(const char* window_class);

/// The id that all programs share for messages of that name; 0 on failure.
Message_Id RegisterWindowMessageA(const char* name);

/// A short number that stands for a text in all programs; 0 on failure.
Atom GlobalAddAtomA(const char* text);
void GlobalDeleteAtom(Atom atom);

/// Makes a block of that many bytes, all 0, which the receiver of a message finds by its name; 0 on
/// failure. If a block of that name stands already, `GetLastError` answers `Error_Already_Exists`:
/// that one is not to be used, and if there is a handle nevertheless, it is to be closed.
Mapping_Handle CreateFileMappingA(std::uint32_t size, const char* name);
void CloseHandle(Mapping_Handle mapping);

/// The block's bytes, to read and write until they are unmapped, which comes ahead of the closing;
/// null on failure. No other process can take them away, though the receiver of a message may write
/// to them at any time.
std::uint8_t* MapViewOfFile(Mapping_Handle mapping);
void UnmapViewOfFile(std::uint8_t* view);

/// Sends a message to another program's window and waits for what it replies, at most `time_out`
/// milliseconds. This program does nothing else meanwhile. `parameter` is the first of the
/// message's two, the second is 0. False on failure, with `GetLastError` at 0 if the time ran out.
bool SendMessageTimeoutA(Window_Handle window, Message_Id message, std::int32_t parameter,
                         std::uint32_t time_out, std::uint32_t& reply);

/// Why the last of the operations above failed.
std::uint32_t GetLastError();

inline constexpr std::uint32_t Error_Already_Exists = 183;
inline constexpr std::uint32_t Error_Invalid_Window = 1400;

std::uint32_t GetCurrentProcessId();

/// Waits in place; no timer ticks and no event arrives meanwhile.
void Sleep(std::uint32_t milliseconds);

}  // namespace platform
