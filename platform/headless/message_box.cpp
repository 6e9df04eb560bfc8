#include "platform/headless/message_box.h"

#include <utility>

namespace platform {

namespace {

std::vector<headless::Shown_Message> shown;

}  // namespace

std::vector<headless::Shown_Message> headless::Take_Messages() {
    return std::exchange(shown, {});
}

// The user presses the button at once, so that no time passes and nothing can fall due.
void Message_Box(std::string_view text, Icon icon, std::string_view title) {
    shown.push_back({icon, std::string(title), std::string(text)});
}

}  // namespace platform
