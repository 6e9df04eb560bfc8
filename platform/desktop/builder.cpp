#include "platform/desktop/builder.h"

#include <algorithm>
#include <string_view>

#include "platform/desktop/control_widgets.h"
#include "platform/desktop/menus.h"
#include "platform/desktop/timer_rows.h"
#include "platform/desktop/window_widget.h"

namespace platform::desktop {

namespace {

/// The widget that holds the row's: its frame, or the client area.
QWidget* Holder(Window_Widget& window, const Control& row) {
    for (const Live_Control& control : window.controls) {
        if (control.row->kind == Control_Kind::Frame && control.widget != nullptr &&
            std::string_view(control.row->name) == row.in) {
            return control.widget;
        }
    }
    return window.canvas;
}

/// The Tab key goes through the numbered rows first, then through the others by the table.
void Set_Tab_Order(const Window_Widget& window) {
    std::vector<const Live_Control*> order;
    for (const Live_Control& control : window.controls) {
        if (control.widget != nullptr && control.widget->focusPolicy() != Qt::NoFocus) {
            order.push_back(&control);
        }
    }
    std::stable_sort(order.begin(), order.end(), [](const Live_Control* a, const Live_Control* b) {
        // As an unsigned number -1 comes behind all others.
        return static_cast<unsigned>(a->row->tab_index) < static_cast<unsigned>(b->row->tab_index);
    });
    for (std::size_t i = 1; i < order.size(); ++i) {
        QWidget::setTabOrder(order[i - 1]->widget, order[i]->widget);
    }
    if (!order.empty()) order.front()->widget->setFocus();
}

}  // namespace

void Build_Controls(Window_Widget& window) {
    for (const Control& row : window.table.controls) {
        Live_Control control;
        control.window = &window;
        control.row = &row;
        window.controls.push_back(control);
    }
    Build_Menus(window);
    for (Live_Control& control : window.controls) {
        if (control.row->kind == Control_Kind::Timer) Build_Timer(control);
        if (control.row->kind == Control_Kind::Frame)
            Build_Widget(control, Holder(window, *control.row));
    }
    for (Live_Control& control : window.controls) {
        const Control_Kind kind = control.row->kind;
        if (kind != Control_Kind::Menu && kind != Control_Kind::Timer &&
            kind != Control_Kind::Frame) {
            Build_Widget(control, Holder(window, *control.row));
        }
    }
    Set_Tab_Order(window);
}

}  // namespace platform::desktop
