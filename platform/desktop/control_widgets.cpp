#include "platform/desktop/control_widgets.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>

#include "platform/desktop/captions.h"
#include "platform/desktop/entry_combo.h"
#include "platform/desktop/entry_list.h"
#include "platform/desktop/events.h"
#include "platform/desktop/folder_list.h"
#include "platform/desktop/fonts.h"
#include "platform/desktop/live_control.h"
#include "platform/desktop/picture.h"
#include "platform/desktop/scale.h"
#include "platform/desktop/text.h"
#include "platform/desktop/text_boxes.h"
#include "platform/desktop/window_widget.h"

namespace platform::desktop {

namespace {

QWidget* New_Label(const Control& row, QWidget* holder) {
    auto* label = new QLabel(holder);
    label->setTextFormat(Qt::PlainText);
    label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    label->setAutoFillBackground(!row.transparent);
    QPalette palette = label->palette();
    palette.setColor(QPalette::WindowText,
                     QColor(row.colour.red, row.colour.green, row.colour.blue));
    label->setPalette(palette);
    return label;
}

QWidget* New_Button(Live_Control& control, QWidget* holder) {
    auto* button = new QPushButton(holder);
    button->setAutoDefault(true);  // The Enter key presses the button that has the focus.
    QObject::connect(button, &QPushButton::clicked, holder, [&control] { Fire(control); });
    return button;
}

QWidget* New_Check(Live_Control& control, QWidget* holder) {
    auto* box = new QCheckBox(holder);
    QObject::connect(box, &QCheckBox::clicked, holder, [&control] { Fire(control); });
    return box;
}

QWidget* New_Option(Live_Control& control, QWidget* holder) {
    auto* button = new QRadioButton(holder);
    // The Tab key goes to the selected one alone.
    QObject::connect(button, &QRadioButton::toggled, holder, [button](bool checked) {
        button->setFocusPolicy(checked ? Qt::StrongFocus : Qt::ClickFocus);
    });
    QObject::connect(button, &QRadioButton::clicked, holder, [&control] { Fire(control); });
    return button;
}

QWidget* New_Combo(Live_Control& control, QWidget* holder) {
    auto* combo = new Entry_Combo(holder);
    combo->setEditText(To_Qt(control.row->caption));
    return combo;
}

QWidget* New_List(Live_Control& control, QWidget* holder) {
    auto* list = new Entry_List(holder);
    list->double_clicked = [&control] { Fire(control); };
    return list;
}

QWidget* New_Progress(QWidget* holder) {
    auto* bar = new QProgressBar(holder);
    bar->setTextVisible(false);
    return bar;
}

/// There are no drives here: the list stands empty.
QWidget* New_Drive(QWidget* holder) {
    return new QComboBox(holder);
}

QWidget* New_Folder(Live_Control& control, QWidget* holder) {
    auto* list = new Folder_List(holder);
    list->moved = [&control] { Fire(control); };
    return list;
}

QWidget* New_Widget(Live_Control& control, QWidget* holder) {
    switch (control.row->kind) {
        case Control_Kind::Frame:
            return new QGroupBox(holder);
        case Control_Kind::Label:
            return New_Label(*control.row, holder);
        case Control_Kind::Button:
            return New_Button(control, holder);
        case Control_Kind::Text:
            return New_Text_Box(control, holder);
        case Control_Kind::Combo:
            return New_Combo(control, holder);
        case Control_Kind::List:
            return New_List(control, holder);
        case Control_Kind::Check:
            return New_Check(control, holder);
        case Control_Kind::Option:
            return New_Option(control, holder);
        case Control_Kind::Progress:
            return New_Progress(holder);
        case Control_Kind::Drive:
            return New_Drive(holder);
        case Control_Kind::Folder:
            return New_Folder(control, holder);
        default:
            return new Picture(holder);
    }
}

}  // namespace

void Build_Widget(Live_Control& control, QWidget* holder) {
    const Control& row = *control.row;
    control.widget = New_Widget(control, holder);
    control.widget->setFont(Control_Font(row.font));
    control.widget->setGeometry(To_Logical(row.at));
    control.widget->setEnabled(row.enabled && row.kind != Control_Kind::Drive);
    if (control.window->table.takes_keys) control.widget->setFocusPolicy(Qt::NoFocus);
    // A press on a control is none on the client area behind it.
    control.widget->setAttribute(Qt::WA_NoMousePropagation);
    Show_Caption(control, row.caption);
}

}  // namespace platform::desktop
