#include "platform/desktop/events.h"

#include "platform/desktop/handlers.h"
#include "platform/desktop/live_control.h"
#include "platform/desktop/window_widget.h"
#include "platform/desktop/windows.h"

namespace platform::desktop {

void Fire(Live_Control& control) {
    // An unloaded window's widget lives on until the event loop has deleted it.
    if (Find_Window(control.window->table) != control.window) return;
    On_Event([&control] { Call(control.row->handler); });
}

}  // namespace platform::desktop
