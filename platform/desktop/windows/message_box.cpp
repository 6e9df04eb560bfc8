#include "platform/message_box.h"

#include <QGridLayout>
#include <QMessageBox>
#include <QSpacerItem>

#include "platform/desktop/drawing/text.h"
#include "platform/desktop/program.h"
#include "platform/desktop/windows/window_widget.h"

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
    for (desktop::Live_Window* window : desktop::Loaded_Windows()) {
        auto* widget = static_cast<desktop::Window_Widget*>(window);
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
    if (desktop::Is_Leaving()) return;
    const desktop::Handler_Scope scope;
    bool any_topmost = false;
    for (desktop::Live_Window* window : desktop::Loaded_Windows()) {
        any_topmost = any_topmost || window->is_topmost;
        window->Show_Drawing();
    }
    QString lines = desktop::To_Qt(text);
    lines.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    // Of a path, as this system writes it: the program parts folders by both.
    lines.replace(QLatin1Char('\\'), QLatin1Char('/'));
    QMessageBox box(To_Qt(icon), desktop::To_Qt(title), lines, QMessageBox::Ok, Owner());
    box.setTextFormat(Qt::PlainText);
    Make_Room_For_Title(box);
    box.setWindowModality(Qt::ApplicationModal);
    box.setWindowFlag(Qt::WindowStaysOnTopHint, any_topmost);
    box.exec();
}

}  // namespace platform
