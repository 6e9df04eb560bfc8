#pragma once

#include <QAction>
#include <QTimer>
#include <QWidget>
#include <string>
#include <vector>

#include "platform/controls.h"

namespace platform::desktop {

class Window_Widget;

/// One row of a loaded window's table: what the toolkit has for it and what the program has set.
/// Its address holds for as long as the window's widget exists.
struct Live_Control {
    Window_Widget* window = nullptr;
    const Control* row = nullptr;

    QWidget* widget = nullptr;  ///< null for a menu row and a timer
    QAction* action = nullptr;  ///< of a menu row
    QTimer* timer = nullptr;    ///< of a timer

    std::string text;                  ///< text box: as last set or typed
    std::vector<std::string> entries;  ///< combo and list: as shown
    Progress progress;
    int interval = 0;      ///< timer, in milliseconds
    bool running = false;  ///< timer: enabled, also with an interval of 0
};

}  // namespace platform::desktop
