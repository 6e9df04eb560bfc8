#include "platform/controls.h"

#include <QAbstractButton>
#include <QProgressBar>
#include <algorithm>

#include "platform/desktop/captions.h"
#include "platform/desktop/handlers.h"
#include "platform/desktop/live_control.h"
#include "platform/desktop/window_widget.h"
#include "platform/desktop/windows.h"

namespace platform {

namespace {

using desktop::Find_Live;
using desktop::Live_Control;

/// The button of a check box or option button; else null.
QAbstractButton* Find_Choice(Control_Ref control) {
    const Live_Control* live = Find_Live(control);
    if (live == nullptr) return nullptr;
    const Control_Kind kind = live->row->kind;
    const bool is_choice = kind == Control_Kind::Check || kind == Control_Kind::Option;
    return is_choice ? static_cast<QAbstractButton*>(live->widget) : nullptr;
}

Live_Control* Find_Progress(Control_Ref control) {
    Live_Control* live = Find_Live(control);
    return live != nullptr && live->row->kind == Control_Kind::Progress ? live : nullptr;
}

}  // namespace

void Set_Caption(Control_Ref control, std::string_view caption) {
    if (Live_Control* live = Find_Live(control)) desktop::Show_Caption(*live, caption);
}

void Set_Enabled(Control_Ref control, bool enabled) {
    const Live_Control* live = Find_Live(control);
    if (live == nullptr) return;
    if (live->action != nullptr) live->action->setEnabled(enabled);
    if (live->widget == nullptr) return;
    QWidget*& loser = live->window->lost_focus;
    if (!enabled && loser == nullptr && live->widget == live->window->focusWidget()) {
        loser = live->widget;
    }
    live->widget->setEnabled(enabled);
    if (enabled && loser == live->widget) {
        loser->setFocus();
        loser = nullptr;
    }
}

void Repaint(Control_Ref control) {
    const Live_Control* live = Find_Live(control);
    if (live != nullptr && live->widget != nullptr) live->widget->repaint();
}

void Set_Checked(Control_Ref control, bool checked) {
    QAbstractButton* button = Find_Choice(control);
    if (button == nullptr || button->isChecked() == checked) return;
    const bool is_option = button->autoExclusive();
    // An exclusive button can only be cleared by another's choice, unless it is not exclusive.
    if (is_option && !checked) button->setAutoExclusive(false);
    button->setChecked(checked);
    button->setAutoExclusive(is_option);
    if (checked || !is_option) desktop::Call(control.window->controls[control.index].handler);
}

bool Is_Checked(Control_Ref control) {
    const QAbstractButton* button = Find_Choice(control);
    return button != nullptr && button->isChecked();
}

void Set_Transparent(Control_Ref control, bool transparent) {
    const Live_Control* live = Find_Live(control);
    if (live == nullptr || live->row->kind != Control_Kind::Label) return;
    live->widget->setAutoFillBackground(!transparent);
    live->widget->update();
}

void Set_Progress(Control_Ref control, const Progress& progress) {
    Live_Control* live = Find_Progress(control);
    if (live == nullptr) return;
    Progress& shown = live->progress;
    shown.minimum = progress.minimum;
    shown.maximum = std::max(progress.minimum, progress.maximum);
    shown.value = std::clamp(progress.value, shown.minimum, shown.maximum);
    auto* bar = static_cast<QProgressBar*>(live->widget);
    // The toolkit takes an empty range for work without a known end.
    const bool is_empty = shown.minimum == shown.maximum;
    bar->setRange(is_empty ? 0 : shown.minimum, is_empty ? 1 : shown.maximum);
    bar->setValue(is_empty ? 0 : shown.value);
}

Progress Progress_Of(Control_Ref control) {
    const Live_Control* live = Find_Progress(control);
    return live != nullptr ? live->progress : Progress{0, 0, 0};
}

}  // namespace platform
