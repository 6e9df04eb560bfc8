#include <QApplication>
#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <algorithm>

#include "platform/desktop/drawing/text.h"
#include "platform/desktop/scale.h"
#include "platform/desktop/windows/entry_boxes.h"
#include "platform/desktop/windows/folder_list.h"
#include "platform/desktop/windows/window_widget.h"

namespace platform::desktop {

namespace {

bool Is_Menu(const Live_Control& control) {
    return control.row->kind == Control_Kind::Menu;
}

/// Adds the rows that stand in `title` to the menu or menu bar, and theirs in turn.
template <typename Menu>
void Add_Entries_Of(Window_Widget& window, std::string_view title, Menu& menu) {
    for (Live_Control& control : window.controls) {
        const Control& row = *control.row;
        if (!Is_Menu(control) || title != row.in || control.action != nullptr) continue;
        const QString caption = Caption_To_Qt(row.caption);
        if (std::ranges::any_of(window.controls, [&row](const Live_Control& each) {
                return Is_Menu(each) && std::string_view(each.row->in) == row.name;
            })) {
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

void Build_Menus(Window_Widget& window) {
    if (std::ranges::none_of(window.controls, Is_Menu)) return;
    window.menu_bar = new QMenuBar(&window);
    // The bar stays in the window also where the desktop would take it to the screen's edge: the
    // chart's measures count it in.
    window.menu_bar->setNativeMenuBar(false);
    Add_Entries_Of(window, "", *window.menu_bar);
}

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

QWidget* New_Button(QWidget* holder) {
    auto* button = new QPushButton(holder);
    button->setAutoDefault(true);  // The Enter key presses the button that has the focus.
    return button;
}

QWidget* New_Option(QWidget* holder) {
    auto* button = new QRadioButton(holder);
    // The Tab key goes to the selected one alone.
    QObject::connect(button, &QRadioButton::toggled, holder, [holder] {
        for (auto* each : holder->findChildren<QRadioButton*>(Qt::FindDirectChildrenOnly))
            each->setFocusPolicy(each->isChecked() ? Qt::StrongFocus : Qt::ClickFocus);
    });
    return button;
}

QWidget* New_Line(const Control& row, QWidget* holder) {
    auto* line = new QLineEdit(holder);
    line->setReadOnly(true);
    if (row.centred) line->setAlignment(Qt::AlignCenter);
    return line;
}

QWidget* New_Lines(QWidget* holder) {
    auto* lines = new QPlainTextEdit(holder);
    lines->setReadOnly(true);
    lines->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    return lines;
}

QWidget* New_Folder(Live_Control& control, QWidget* holder) {
    auto* list = new Folder_List(holder);
    list->moved = [&control] {
        control.Note_Folder();
        Fire(control);
    };
    return list;
}

QWidget* New_Picture(QWidget* holder) {
    auto* picture = new QLabel(holder);
    picture->setScaledContents(true);
    picture->setPixmap(QPixmap(QStringLiteral(":/picture.png")));
    return picture;
}

QWidget* New_Widget(Live_Control& control, QWidget* holder) {
    const Control& row = *control.row;
    switch (row.kind) {
        case Control_Kind::Frame:
            return new QGroupBox(holder);
        case Control_Kind::Label:
            return New_Label(row, holder);
        case Control_Kind::Button:
            return New_Button(holder);
        case Control_Kind::Text:
            return row.multi_line ? New_Lines(holder) : New_Line(row, holder);
        case Control_Kind::Combo:
            return new Entry_Combo(control, holder);
        case Control_Kind::List:
            return new Entry_List(control, holder);
        case Control_Kind::Check:
            return new QCheckBox(holder);
        case Control_Kind::Option:
            return New_Option(holder);
        case Control_Kind::Progress:
            return new QProgressBar(holder);
        case Control_Kind::Drive:
            return new QComboBox(holder);
        case Control_Kind::Folder:
            return New_Folder(control, holder);
        default:
            return New_Picture(holder);
    }
}

/// A list without the focus shows its selection in grey, or nobody would see where the focus is.
void Show_Focus(QWidget& list) {
    QObject::connect(qApp, &QApplication::focusChanged, &list, [&list] {
        QPalette palette = QApplication::palette();
        if (!list.hasFocus()) palette.setColor(QPalette::Highlight, Qt::darkGray);
        list.setPalette(palette);
    });
}

/// Names it for screen readers, and the part of it that has the focus in its stead.
void Name_Widget(const Live_Control& control) {
    const Window& table = control.window->table;
    const auto index = static_cast<std::size_t>(control.row - table.controls.data());
    const QString name = To_Qt(Spoken_Name(table, index));
    control.widget->setAccessibleName(name);
    if (QWidget* list = control.widget->focusProxy()) list->setAccessibleName(name);
    if (auto* line = control.widget->findChild<QLineEdit*>()) line->setAccessibleName(name);
}

/// Makes the widget, in its frame or on the client area, with its place, font and first texts.
void Build_Widget(Live_Control& control) {
    const Control& row = *control.row;
    QWidget* holder = control.Holder().canvas;
    for (const Live_Control& frame : control.Holder().controls) {
        if (frame.widget != nullptr && std::string_view(frame.row->name) == row.in)
            holder = frame.widget;
    }
    control.widget = New_Widget(control, holder);
    control.widget->setFont(Control_Font(row.font));
    control.widget->setGeometry(To_Logical(row.at));
    // There are no drives here: their list stands empty.
    control.widget->setEnabled(row.enabled && row.kind != Control_Kind::Drive);
    if (control.window->table.takes_keys) control.widget->setFocusPolicy(Qt::NoFocus);
    Name_Widget(control);
    if (row.kind == Control_Kind::List || row.kind == Control_Kind::Folder) {
        QWidget* list = control.widget->focusProxy();
        Show_Focus(list != nullptr ? *list : *control.widget);
    }
    // A press on a control is none on the client area behind it.
    control.widget->setAttribute(Qt::WA_NoMousePropagation);
    if (const auto* button = qobject_cast<QAbstractButton*>(control.widget)) {
        QObject::connect(button, &QAbstractButton::clicked, holder,
                         [&control] { Take_Click(control); });
    }
    if (row.kind == Control_Kind::Progress)
        static_cast<QProgressBar*>(control.widget)->setTextVisible(false);
    if (row.kind == Control_Kind::Folder) control.Note_Folder();
    control.Show_Caption();
    control.Show_Text();
}

void Set_Tab_Order(const Window_Widget& window) {
    QWidget* last = nullptr;
    for (const std::size_t index : Tab_Order(window.table)) {
        QWidget* widget = window.controls[index].widget;
        if (widget == nullptr || widget->focusPolicy() == Qt::NoFocus) continue;
        last != nullptr ? QWidget::setTabOrder(last, widget) : widget->setFocus();
        last = widget;
    }
}

}  // namespace

void Build_Controls(Window_Widget& window) {
    window.controls.reserve(window.table.controls.size());
    for (const Control& row : window.table.controls)
        window.rows.push_back(&window.controls.emplace_back(window, row));
    Build_Menus(window);
    for (Live_Control& control : window.controls) {
        if (control.row->kind == Control_Kind::Timer) {
            control.timer = new QTimer(&window);
            control.timer->setTimerType(Qt::PreciseTimer);
            QObject::connect(control.timer, &QTimer::timeout, &window,
                             [&control] { Fire(control); });
        } else if (!Is_Menu(control)) {
            Build_Widget(control);
        }
    }
    Set_Tab_Order(window);
}

}  // namespace platform::desktop
