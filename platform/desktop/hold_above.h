#pragma once

class QWindow;

namespace platform::desktop {

/// Asks the window manager again to keep a window above all others, in case another program or the
/// user has undone it. Neither raises the window nor gives it the focus.
void Hold_Above(const QWindow& window);

}  // namespace platform::desktop
