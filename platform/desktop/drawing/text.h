#pragma once

#include <QFont>
#include <QString>
#include <QWidget>
#include <optional>
#include <string>
#include <string_view>

#include "platform/window.h"

/// Text between the program's Windows-1252 and the toolkit's Unicode, and its fonts. The measures
/// in the windows' tables are made for a narrow sans serif of 8.25 points; the nearest installed
/// one takes its place.
namespace platform::desktop {

QString To_Qt(std::string_view text);

/// Nothing if a character has no place in Windows-1252.
std::optional<std::string> From_Qt(const QString& text);

/// The same with "?" for every such character.
std::string From_Qt_Lossy(const QString& text);

/// A caption for buttons, menus and frames, where the toolkit takes "&" for a key's mark.
QString Caption_To_Qt(std::string_view caption);

/// The default font of all controls and of drawn text, sized in logical pixels.
QFont Default_Font();

/// The font that a table row asks for; an unknown name gets the default family.
QFont Control_Font(const Font& font);

/// Condenses the widget's font just so far that the text fits into that width on one line.
void Condense_To_Fit(QWidget& widget, const QString& text, int width);

}  // namespace platform::desktop
