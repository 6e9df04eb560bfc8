#pragma once

#include <string>
#include <vector>

#include "platform/message_box.h"

namespace platform::headless {

/// A message that was shown and answered.
struct Shown_Message {
    Icon icon;
    std::string title;
    std::string text;
};

/// The messages since the last call, oldest first.
std::vector<Shown_Message> Take_Messages();

}  // namespace platform::headless
