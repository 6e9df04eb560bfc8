#include "platform/message_box.h"

#include <QApplication>
#include <QGridLayout>
#include <QMessageBox>
#include <QSpacerItem>

#include "platform/desktop/handlers.h"
#include "platform/desktop/drawing/text.h"
#include "platform/desktop/window_widget.h"
#include "platform/desktop/windows.h"

namespace platform {

namespace {

QMessageBox::Icon To_Qt(Icon icon) {
    switch (icon) {
        case Icon::Information:
            return QMessageBox::Information;
        case Icon::Exclamation:
            return QMessageBox::Warning;
        default:
            return QMessageBox::Critical;
    }
}

/// The window that the box belongs to: the active one, else the one shown last.
QWidget* Owner() {
    QWidget* owner = nullptr;
    for (desktop::Window_Widget* widget : desktop::Loaded_Windows()) {
        if (!widget->isVisible() || widget->isMinimized()) continue;
        if (widget->isActiveWindow()) return widget;
        owner = widget;
    }
    return owner;
}

/// A short text would make a box in which the window manager cuts the title.
void Make_Room_For_Title(QMessageBox& box) {
    constexpr int Icon_And_Buttons = 150;  // beside the title, in logical pixels
    auto* grid = qobject_cast<QGridLayout*>(box.layout());
    if (grid == nullptr) return;
    const int width = box.fontMetrics().horizontalAdvance(box.windowTitle()) + Icon_And_Buttons;
    grid->addItem(new QSpacerItem(width, 0), grid->rowCount(), 0, 1, grid->columnCount());
}

}  // namespace

void Message_Box(std::string_view text, Icon icon, std::string_view title) {
    const desktop::Box_Scope scope;
    desktop::Show_Drawings();
    QString lines = desktop::To_Qt(text);
    lines.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    QMessageBox box(To_Qt(icon), desktop::To_Qt(title), lines, QMessageBox::Ok, Owner());
    box.setTextFormat(Qt::PlainText);
    Make_Room_For_Title(box);
    box.setWindowModality(Qt::ApplicationModal);
    if (desktop::Any_Topmost()) box.setWindowFlag(Qt::WindowStaysOnTopHint);
    box.exec();
}

}  // namespace platform
