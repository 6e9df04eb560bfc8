#pragma once

#include <string_view>

#include "platform/message_box.h"

namespace skerrand {

/// A message box under the program's own title.
inline void Show_Message(std::string_view text, platform::Icon icon) {
    platform::Message_Box(text, icon, platform::Message_Title);
}

}  // namespace skerrand
