#pragma once

#include <optional>
#include <string>
#include <string_view>

/// Windows-1252, the single-byte code page of all text inside the program. Its five unassigned
/// codes (129, 141, 143, 144, 157) stand for the control characters of the same number, so that
/// every byte has a character and comes back unchanged.
namespace platform {

/// Windows-1252 to UTF-8.
std::string To_Utf8(std::string_view text);

/// UTF-8 to Windows-1252; nothing if a character has no place there or the UTF-8 is malformed.
std::optional<std::string> From_Utf8(std::string_view utf8);

/// The same with "?" for every character that has no place, and for every malformed byte.
std::string From_Utf8_Lossy(std::string_view utf8);

/// Letters of all of Windows-1252 to their other case where the code page has it.
std::string Lower_Case(std::string_view text);
std::string Upper_Case(std::string_view text);

}  // namespace platform
