#include "platform/desktop/text_boxes.h"

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSignalBlocker>

#include "platform/desktop/code_page_validator.h"
#include "platform/desktop/entry_combo.h"
#include "platform/desktop/events.h"
#include "platform/desktop/handlers.h"
#include "platform/desktop/live_control.h"
#include "platform/desktop/drawing/text.h"
#include "platform/desktop/windows.h"

namespace platform {

namespace desktop {

namespace {

/// Takes over what the user has typed. Lines are parted by a carriage return and a line feed inside
/// the program.
void Take_Typed(Live_Control& control, QString typed) {
    typed.replace(QLatin1Char('\n'), QLatin1String("\r\n"));
    std::string text = From_Qt_Lossy(typed);
    if (text == control.text) return;
    control.text = std::move(text);
    Fire(control);
}

QWidget* New_Line(Live_Control& control, QWidget* holder) {
    auto* line = new QLineEdit(holder);
    line->setReadOnly(control.row->read_only);
    if (control.row->centred) line->setAlignment(Qt::AlignCenter);
    line->setValidator(new Code_Page_Validator(line));
    QObject::connect(line, &QLineEdit::textEdited, holder,
                     [&control](const QString& typed) { Take_Typed(control, typed); });
    return line;
}

QWidget* New_Lines(Live_Control& control, QWidget* holder) {
    auto* lines = new QPlainTextEdit(holder);
    lines->setReadOnly(control.row->read_only);
    lines->setTabChangesFocus(true);
    lines->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    QObject::connect(lines, &QPlainTextEdit::textChanged, holder,
                     [&control, lines] { Take_Typed(control, lines->toPlainText()); });
    return lines;
}

void Show_Text(const Live_Control& control) {
    const QSignalBlocker blocker(control.widget);
    const QString shown = To_Qt(control.text);
    if (auto* line = qobject_cast<QLineEdit*>(control.widget)) {
        line->setText(shown);
        line->setCursorPosition(0);
    } else if (auto* lines = qobject_cast<QPlainTextEdit*>(control.widget)) {
        lines->setPlainText(shown);
    }
}

}  // namespace

QWidget* New_Text_Box(Live_Control& control, QWidget* holder) {
    const bool multi_line = control.row->multi_line;
    control.widget = multi_line ? New_Lines(control, holder) : New_Line(control, holder);
    control.text = control.row->caption;
    Show_Text(control);
    return control.widget;
}

}  // namespace desktop

void Set_Text(Control_Ref control, std::string_view text) {
    desktop::Live_Control* live = desktop::Find_Live(control);
    if (live == nullptr) return;
    if (live->row->kind == Control_Kind::Combo) {
        static_cast<desktop::Entry_Combo*>(live->widget)->Set_Free_Text(desktop::To_Qt(text));
    } else if (live->row->kind == Control_Kind::Text && live->text != text) {
        live->text = text;
        desktop::Show_Text(*live);
        desktop::Call(live->row->handler);
    }
}

std::string Text_Of(Control_Ref control) {
    const desktop::Live_Control* live = desktop::Find_Live(control);
    if (live == nullptr) return {};
    if (live->row->kind != Control_Kind::Combo) return live->text;
    return desktop::From_Qt_Lossy(static_cast<desktop::Entry_Combo*>(live->widget)->currentText());
}

}  // namespace platform
