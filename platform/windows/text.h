#pragma once

#include <optional>
#include <string>
#include <string_view>

/// Between the program's texts, which are Windows-1252 whatever the system's code page is, and the
/// system's, which are UTF-16.
namespace platform::windows {

std::wstring To_Wide(std::string_view text);

/// Nothing if a character has no place in the code page.
std::optional<std::string> From_Wide(std::wstring_view wide);

/// The same with "?" for such characters.
std::string From_Wide_Lossy(std::wstring_view wide);

/// The text in UTF-8. Half of a pair that stands alone becomes a character that Windows-1252 does
/// not have.
std::string Utf8_Of(std::wstring_view wide);

}  // namespace platform::windows
