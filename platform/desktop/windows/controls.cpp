#include <QAbstractButton>
#include <QFontMetrics>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QStyleOption>

#include "platform/desktop/drawing/text.h"
#include "platform/desktop/windows/entry_boxes.h"
#include "platform/desktop/windows/folder_list.h"
#include "platform/desktop/windows/window_widget.h"

namespace platform::desktop {

namespace {

/// How wide a button's caption may be.
int Caption_Room(const QAbstractButton& button, Control_Kind kind) {
    QStyleOptionButton option;
    option.initFrom(&button);
    const auto part = kind == Control_Kind::Check    ? QStyle::SE_CheckBoxContents
                      : kind == Control_Kind::Option ? QStyle::SE_RadioButtonContents
                                                     : QStyle::SE_PushButtonContents;
    return button.style()->subElementRect(part, &option, &button).width();
}

/// A label breaks its caption into lines where it is high enough for two.
void Show_In_Label(QLabel& label, const QString& caption) {
    const bool has_lines = label.height() >= 2 * QFontMetrics(label.font()).lineSpacing();
    label.setWordWrap(has_lines);
    if (!has_lines) Condense_To_Fit(label, caption, label.width());
    label.setText(caption);
}

}  // namespace

Window_Widget& Live_Control::Holder() const {
    return *static_cast<Window_Widget*>(window);
}

void Live_Control::Show_Caption() {
    if (action != nullptr) {
        action->setText(Caption_To_Qt(caption));
    } else if (row->kind == Control_Kind::Label) {
        Show_In_Label(static_cast<QLabel&>(*widget), To_Qt(caption));
    } else if (auto* frame = qobject_cast<QGroupBox*>(widget)) {
        frame->setTitle(Caption_To_Qt(caption));
    } else if (auto* button = qobject_cast<QAbstractButton*>(widget)) {
        Condense_To_Fit(*button, To_Qt(caption), Caption_Room(*button, row->kind));
        button->setText(Caption_To_Qt(caption));
    }
}

void Live_Control::Show_Text() {
    if (auto* line = qobject_cast<QLineEdit*>(widget)) {
        line->setText(To_Qt(text));
        line->setCursorPosition(0);
    } else if (auto* lines = qobject_cast<QPlainTextEdit*>(widget)) {
        lines->setPlainText(To_Qt(text));
    } else if (row->kind == Control_Kind::Combo) {
        static_cast<Entry_Combo*>(widget)->Show_Text();
    }
}

void Live_Control::Show_Enabled() {
    if (action != nullptr) action->setEnabled(enabled);
    if (widget == nullptr) return;
    const Live_Control*& loser = Holder().lost_focus;
    if (!enabled && loser == nullptr && Holder().focusWidget() == widget) loser = this;
    widget->setEnabled(enabled);
    if (!enabled || loser != this) return;
    widget->setFocus();
    loser = nullptr;
}

void Live_Control::Show_Checked() {
    auto* button = static_cast<QAbstractButton*>(widget);
    const bool is_option = button->autoExclusive();
    // An exclusive button can only be cleared by another's choice, unless it is not exclusive.
    if (!checked) button->setAutoExclusive(false);
    button->setChecked(checked);
    button->setAutoExclusive(is_option);
}

void Live_Control::Show_Transparent() {
    widget->setAutoFillBackground(!transparent);
    widget->update();
}

void Live_Control::Show_Entries() {
    QStringList shown;
    for (const std::string& entry : entries)
        shown.append(To_Qt(entry));
    if (row->kind == Control_Kind::Combo) {
        static_cast<Entry_Combo*>(widget)->Set_Entries(shown);
    } else {
        static_cast<Entry_List*>(widget)->Set_Entries(shown);
    }
}

void Live_Control::Show_Progress() {
    auto* bar = static_cast<QProgressBar*>(widget);
    // The toolkit takes an empty range for work without a known end.
    const bool is_empty = progress.minimum == progress.maximum;
    bar->setRange(is_empty ? 0 : progress.minimum, is_empty ? 1 : progress.maximum);
    bar->setValue(is_empty ? 0 : progress.value);
}

void Live_Control::Repaint() {
    if (widget != nullptr) widget->repaint();
}

void Live_Control::Fit_Timer() {
    if (running && interval > 0) {
        timer->start(Real_Interval());
    } else {
        timer->stop();
    }
}

void Live_Control::Note_Folder() {
    const auto* list = static_cast<Folder_List*>(widget);
    folder = list->Path();
    entries = list->Subfolders();
}

bool Live_Control::Go_To(std::string_view path) {
    if (!static_cast<Folder_List*>(widget)->Go_To(path)) return false;
    Note_Folder();
    return true;
}

}  // namespace platform::desktop
