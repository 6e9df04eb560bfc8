#pragma once

#include <memory>

#include "platform/windows/live.h"

/// The native window of a table: its frame, its size, and what the system tells it.
namespace platform::windows {

/// A window with its controls, not yet shown.
std::unique_ptr<Live_Window> Make_Window(const Window& table);

/// Shows the window; the first time with a wiped client area.
void Present(Live_Window& window);

/// Calls the unload handler and retires the window with its timers.
void Dismiss(Live_Window& window);

/// Minimises, and calls the resize handler before it returns.
void Minimise_Now(Live_Window& window);

/// Of the frame, in pixels; of a minimised window that of its normal state.
SIZE Outer_Pixels(const Live_Window& window);

/// Calls the resize handler if size or state are not what was reported last. While a handler runs
/// nothing happens: the end of the handler asks again.
void Report_Size(Live_Window& window);

}  // namespace platform::windows
