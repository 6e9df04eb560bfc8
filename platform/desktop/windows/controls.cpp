#include "platform/controls.h"

#include <QAbstractButton>
#include <QProgressBar>
#include <algorithm>

#include "platform/desktop/drawing/text.h"
#include "platform/desktop/program.h"
#include "platform/desktop/windows/build.h"
#include "platform/desktop/windows/entry_boxes.h"
#include "platform/desktop/windows/folder_list.h"
#include "platform/desktop/windows/window_widget.h"
#include "platform/desktop/windows/windows.h"

namespace platform {

namespace {

using desktop::Entry_Combo;
using desktop::Entry_List;
using desktop::Find_Live;
using desktop::Folder_List;
using desktop::Live_Control;

/// The button of a check box or option button; else null.
QAbstractButton* Find_Choice(Control_Ref control) {
    const Live_Control* live = Find_Live(control, Control_Kind::Check);
    if (live == nullptr) live = Find_Live(control, Control_Kind::Option);
    return live != nullptr ? static_cast<QAbstractButton*>(live->widget) : nullptr;
}

/// A combo or list box, whose entries the program fills; else null.
Live_Control* Find_Fillable(Control_Ref control) {
    Live_Control* combo = Find_Live(control, Control_Kind::Combo);
    return combo != nullptr ? combo : Find_Live(control, Control_Kind::List);
}

Folder_List* Find_Folder_List(Control_Ref control) {
    const Live_Control* live = Find_Live(control, Control_Kind::Folder);
    return live != nullptr ? static_cast<Folder_List*>(live->widget) : nullptr;
}

void Show_Entries(const Live_Control& live) {
    QStringList shown;
    for (const std::string& entry : live.entries)
        shown.append(desktop::To_Qt(entry));
    if (live.row->kind == Control_Kind::Combo) {
        static_cast<Entry_Combo*>(live.widget)->Set_Entries(shown);
    } else {
        static_cast<Entry_List*>(live.widget)->Set_Entries(shown);
    }
}

/// All entries of a combo, list or folder list; a drive list has none.
std::vector<std::string> Entries_Of(Control_Ref control) {
    if (const Folder_List* list = Find_Folder_List(control)) return list->Subfolders();
    const Live_Control* live = Find_Fillable(control);
    return live != nullptr ? live->entries : std::vector<std::string>();
}

}  // namespace

void Set_Caption(Control_Ref control, std::string_view caption) {
    if (const Live_Control* live = Find_Live(control)) desktop::Show_Caption(*live, caption);
}

void Set_Text(Control_Ref control, std::string_view text) {
    if (const Live_Control* combo = Find_Live(control, Control_Kind::Combo)) {
        static_cast<Entry_Combo*>(combo->widget)->Set_Free_Text(desktop::To_Qt(text));
    }
    Live_Control* live = Find_Live(control, Control_Kind::Text);
    if (live == nullptr || live->text == text) return;
    live->text = text;
    desktop::Show_Text(*live);
    desktop::Call(live->row->handler);
}

std::string Text_Of(Control_Ref control) {
    const Live_Control* live = Find_Live(control);
    if (live == nullptr) return {};
    if (live->row->kind != Control_Kind::Combo) return live->text;
    return desktop::From_Qt_Lossy(static_cast<Entry_Combo*>(live->widget)->currentText());
}

void Set_Enabled(Control_Ref control, bool enabled) {
    const Live_Control* live = Find_Live(control);
    if (live == nullptr) return;
    if (live->action != nullptr) live->action->setEnabled(enabled);
    if (live->widget == nullptr) return;
    const Live_Control*& loser = live->window->lost_focus;
    const bool has_focus = live->window->focusWidget() == live->widget;
    if (!enabled && has_focus && loser == nullptr) loser = live;
    live->widget->setEnabled(enabled);
    if (enabled && loser == live) {
        live->widget->setFocus();
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
    const Live_Control* live = Find_Live(control, Control_Kind::Label);
    if (live == nullptr) return;
    live->widget->setAutoFillBackground(!transparent);
    live->widget->update();
}

void Clear_Entries(Control_Ref control) {
    Live_Control* live = Find_Fillable(control);
    if (live == nullptr) return;
    live->entries.clear();
    Show_Entries(*live);
}

void Add_Entries(Control_Ref control, std::span<const std::string> entries) {
    Live_Control* live = Find_Fillable(control);
    if (live == nullptr) return;
    live->entries.insert(live->entries.end(), entries.begin(), entries.end());
    if (live->row->sorted) std::ranges::sort(live->entries);
    Show_Entries(*live);
}

int Entry_Count(Control_Ref control) {
    return static_cast<int>(Entries_Of(control).size());
}

std::string Entry_Text(Control_Ref control, int index) {
    const std::vector<std::string> all = Entries_Of(control);
    return index >= 0 && index < std::ssize(all) ? all[static_cast<std::size_t>(index)]
                                                 : std::string();
}

int Selected_Index(Control_Ref control) {
    const Live_Control* live = Find_Fillable(control);
    if (live == nullptr) return -1;
    return live->row->kind == Control_Kind::Combo
               ? static_cast<const Entry_Combo*>(live->widget)->Picked()
               : static_cast<const Entry_List*>(live->widget)->Picked();
}

std::string Folder_Path(Control_Ref control) {
    const Folder_List* list = Find_Folder_List(control);
    return list != nullptr ? list->Path() : std::string();
}

void Set_Folder_Path(Control_Ref control, std::string_view path) {
    Folder_List* list = Find_Folder_List(control);
    if (list != nullptr && list->Go_To(path)) {
        desktop::Call(control.window->controls[control.index].handler);
    }
}

std::string Drive_Name(Control_Ref) {
    return {};
}

void Set_Progress(Control_Ref control, const Progress& progress) {
    Live_Control* live = Find_Live(control, Control_Kind::Progress);
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
    const Live_Control* live = Find_Live(control, Control_Kind::Progress);
    return live != nullptr ? live->progress : Progress{0, 0, 0};
}

}  // namespace platform
