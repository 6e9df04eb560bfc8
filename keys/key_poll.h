#pragma once

#include <cstdint>

namespace skerrand {

/// Whether a key has gone down since the last question for it and is still down. A key that is held
/// counts once; one that was let go between two questions does not count.
bool Is_New_Press(std::int32_t code);

/// The chart's key poll: carries out the events of all keys newly pressed, in the order of their
/// codes. Of two events on one key only the first of departure, destination, zoom in, zoom out and
/// pause is carried out.
void KeyPress_Checker_Timer();

}  // namespace skerrand
