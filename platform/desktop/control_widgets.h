#pragma once

#include <QWidget>

namespace platform::desktop {

struct Live_Control;

/// Makes the toolkit's widget for a table row that is neither menu nor timer: connected to the
/// row's handler, with its place, font, colours and first texts.
void Build_Widget(Live_Control& control, QWidget* holder);

}  // namespace platform::desktop
