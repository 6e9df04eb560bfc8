#include "platform/desktop/menus.h"

#include <QMenu>
#include <QMenuBar>
#include <string_view>

#include "platform/desktop/events.h"
#include "platform/desktop/drawing/text.h"
#include "platform/desktop/window_widget.h"

namespace platform::desktop {

namespace {

bool Has_Entries(const Window_Widget& window, const Control& menu) {
    for (const Live_Control& control : window.controls) {
        if (control.row->kind == Control_Kind::Menu &&
            std::string_view(control.row->in) == menu.name) {
            return true;
        }
    }
    return false;
}

/// Adds the rows that stand in `title` to the menu or menu bar, and theirs in turn.
template <typename Menu>
void Add_Entries_Of(Window_Widget& window, std::string_view title, Menu& menu) {
    for (Live_Control& control : window.controls) {
        const Control& row = *control.row;
        if (row.kind != Control_Kind::Menu || title != row.in || control.action != nullptr)
            continue;
        const QString caption = Caption_To_Qt(row.caption);
        if (Has_Entries(window, row)) {
            QMenu* entries = menu.addMenu(caption);
            control.action = entries->menuAction();
            Add_Entries_Of(window, row.name, *entries);
        } else {
            control.action = menu.addAction(caption);
            QObject::connect(control.action, &QAction::triggered, &window,
                             [&control] { Fire(control); });
        }
        control.action->setEnabled(row.enabled);
    }
}

}  // namespace

void Build_Menus(Window_Widget& window) {
    bool has_menus = false;
    for (const Live_Control& control : window.controls) {
        has_menus = has_menus || control.row->kind == Control_Kind::Menu;
    }
    if (!has_menus) return;
    window.menu_bar = new QMenuBar(&window);
    // The bar stays in the window also where the desktop would take it to the screen's edge: the
    // chart's measures count it in.
    window.menu_bar->setNativeMenuBar(false);
    Add_Entries_Of(window, "", *window.menu_bar);
}

}  // namespace platform::desktop
