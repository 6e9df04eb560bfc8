#pragma once

#include <cstdint>

/// The global keyboard: its keys are seen whichever program has the focus.
namespace platform {

/// The virtual-key codes.
inline constexpr int First_Key_Code = 0;
inline constexpr int Last_Key_Code = 255;

/// The state of a key by its virtual-key code: `Key_Down` is set while the key is down,
/// `Key_Was_Pressed` if it went down since the last call for that code. Keeping a key down is one
/// press, however long. 0 for any other code.
///
/// The two keys of a pair have codes of their own and one for both (16 for shift, beside 160 on
/// the left and 161 on the right), each with a state of its own.
std::uint16_t GetAsyncKeyState(int code);

inline constexpr std::uint16_t Key_Down = 0x8000;
inline constexpr std::uint16_t Key_Was_Pressed = 0x0001;

}  // namespace platform
