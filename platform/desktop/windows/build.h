#pragma once

#include <string_view>

/// From the rows of a window's table to the toolkit's widgets.
namespace platform::desktop {

class Window_Widget;
struct Live_Control;

/// Builds the menus, controls and timers of the window's table; calls no handler of the program.
void Build_Controls(Window_Widget& window);

/// Shows the caption of a control that has one, in a font that lets it fit.
void Show_Caption(const Live_Control& control, std::string_view caption);

/// Shows a text box's text.
void Show_Text(const Live_Control& control);

}  // namespace platform::desktop
