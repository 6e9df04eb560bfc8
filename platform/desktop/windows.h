#pragma once

#include <vector>

#include "platform/window.h"

/// The windows that are loaded now.
namespace platform::desktop {

class Window_Widget;
struct Live_Control;

/// In the order of their loading.
const std::vector<Window_Widget*>& Loaded_Windows();

/// Null if the window is not loaded.
Window_Widget* Find_Window(const Window& window);

/// Null if the control's window is not loaded, or if the table has no such row.
Live_Control* Find_Live(Control_Ref control);

void Add_Window(Window_Widget* widget);
void Remove_Window(const Window_Widget* widget);

/// Whether one of them is above all windows that are not topmost.
bool Any_Topmost();

/// After a handler: shows what it has drawn and reports sizes that have changed meanwhile.
void Settle_Windows();

/// Puts what has been drawn so far on its way to the screen.
void Show_Drawings();

/// Removes them all without a handler being called.
void Destroy_Windows();

}  // namespace platform::desktop
