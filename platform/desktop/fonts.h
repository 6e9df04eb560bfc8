#pragma once

#include <QFont>
#include <QWidget>

#include "platform/window.h"

/// The fonts of windows. The measures in the windows' tables are made for a narrow sans serif of
/// 8.25 points; the nearest installed one takes its place.
namespace platform::desktop {

/// The default font of all controls and of drawn text, sized in logical pixels.
QFont Default_Font();

/// The font that a table row asks for; an unknown name gets the default family.
QFont Control_Font(const Font& font);

/// Condenses the widget's font just so far that the text fits into that width on one line.
void Condense_To_Fit(QWidget& widget, const QString& text, int width);

}  // namespace platform::desktop
