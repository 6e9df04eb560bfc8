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

/// Null if the control's window is not loaded, if the table has no such row, or if it is of another
/// kind than the one asked for.
Live_Control* Find_Live(Control_Ref control);
Live_Control* Find_Live(Control_Ref control, Control_Kind kind);

void Remove_Window(const Window_Widget* widget);

/// After a handler: shows what it has drawn and reports sizes that have changed meanwhile.
void Settle_Windows();

/// Removes them all without a handler being called.
void Destroy_Windows();

}  // namespace platform::desktop
