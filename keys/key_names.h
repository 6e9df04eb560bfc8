#pragma once

#include <cstdint>
#include <string>

namespace skerrand {

/// The text that shows a virtual-key code: its name in brackets, or for a code without a name the
/// Windows-1252 character of that code, so that letters and digits show as themselves. A code
/// outside 0 to 255, which no key has, shows as its number in brackets.
std::string Key_Name(std::int32_t code);

}  // namespace skerrand
