#pragma once

#include <cstdint>
#include <string>

/// The global keys: their names, and the chart's poll of them.
namespace skerrand {

/// The text that shows a virtual-key code: its name in brackets, or for a code without a name the
/// Windows-1252 character of that code, so that letters and digits show as themselves. A code
/// outside 0 to 255, which no key has, shows as its number in brackets.
std::string Key_Name(std::int32_t code);

/// Whether a key has gone down since the last question for it and is still down. A key that is held
/// counts once; one that was let go between two questions does not count.
bool Is_New_Press(std::int32_t code);

/// The chart's key poll: carries out the events of all keys newly pressed, in the order of their
/// codes. Of two events on one key only the first of departure, destination, zoom in, zoom out and
/// pause is carried out.
void KeyPress_Checker_Timer();

}  // namespace skerrand
