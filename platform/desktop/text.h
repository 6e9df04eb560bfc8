#pragma once

#include <QString>
#include <optional>
#include <string>
#include <string_view>

/// Text between the program's Windows-1252 and the toolkit's Unicode.
namespace platform::desktop {

QString To_Qt(std::string_view text);

/// Nothing if a character has no place in Windows-1252.
std::optional<std::string> From_Qt(const QString& text);

/// The same with "?" for every such character.
std::string From_Qt_Lossy(const QString& text);

/// A caption for buttons, menus and frames, where the toolkit takes "&" for a key's mark.
QString Caption_To_Qt(std::string_view caption);

}  // namespace platform::desktop
