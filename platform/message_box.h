#pragma once

#include <cstdint>
#include <string_view>

namespace platform {

/// The program's own title.
inline constexpr std::string_view Message_Title = "Skerrand Message";

enum class Icon : std::uint8_t { Information, Exclamation, Critical };

/// Shows a message with one button and returns when the user has answered it. No timer ticks
/// meanwhile. It stands above all windows of the program, those that are topmost too. Lines of
/// `text` are parted by a carriage return and a line feed. Windows-1252.
void Message_Box(std::string_view text, Icon icon, std::string_view title = Message_Title);

}  // namespace platform
