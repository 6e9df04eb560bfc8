#pragma once

#include <cstdint>
#include <span>

namespace platform::desktop {

/// The virtual-key codes of a key; 0 stands for none.
struct Key_Codes {
    int own = 0;
    int common = 0;  ///< of a key of a pair, the code of both: 16 shift, 17 control, 18 alt

    friend bool operator==(const Key_Codes&, const Key_Codes&) = default;
};

/// The codes of a key by the keysyms of its levels and groups, as the X server numbers them.
///
/// The first letter, digit or named key among them counts, and only without any the first
/// punctuation: the key of a digit may give it with Shift alone, and a keyboard of another script
/// has Latin letters in its second group. A key of the numeric keypad has one code, whatever Num
/// Lock says. No codes for a key that has none of these.
Key_Codes Codes_Of(std::span<const std::uint32_t> keysyms);

/// The code of a key by its place, for those that give umlauts, or no Latin letters at all: the
/// code that the key has on an American keyboard. `keycode` is that of an X server on Linux.
Key_Codes Codes_Of_Place(std::uint32_t keycode);

}  // namespace platform::desktop
