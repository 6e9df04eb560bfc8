#pragma once

#include <QWidget>

namespace platform::desktop {

struct Live_Control;

/// A text box of one line, or of several, by its table row, with its first text.
QWidget* New_Text_Box(Live_Control& control, QWidget* holder);

}  // namespace platform::desktop
