#include "platform/desktop/windows/window_widget.h"

#include <QCloseEvent>
#include <QScreen>
#include <QWindow>

#include "platform/desktop/drawing/text.h"
#include "platform/desktop/scale.h"

namespace platform::desktop {

namespace {

Qt::WindowFlags Frame_Flags(Frame_Style style) {
    constexpr Qt::WindowFlags Captioned = Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                                          Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint;
    switch (style) {
        case Frame_Style::Dialog:
            return Qt::Dialog | Captioned;
        case Frame_Style::Splash:
            return Qt::SplashScreen | Qt::FramelessWindowHint;
        default:
            return Qt::Window | Captioned | Qt::WindowMinimizeButtonHint;
    }
}

}  // namespace

Window_Widget::Window_Widget(const Window& window) : Live_Window(window) {
    Show_Caption();
    setFont(Default_Font());
    canvas = new Canvas(*this, this);
    Build_Controls(*this);
    setWindowFlags(Frame_Flags(window.frame));
    Set_Size({To_Logical(window.client_width), To_Logical(window.client_height) + Menu_Height()});
    create();  // Only a native window knows of its frame.
    reported_size = Frame_Pixels();
}

void Window_Widget::Present() {
    if (was_shown) {
        show();
        raise();
        return;
    }
    was_shown = true;
    if (table.frame == Frame_Style::Splash) {
        move(screen()->availableGeometry().center() - rect().center());
    }
    canvas->Open();
    show();
}

void Window_Widget::Retire() {
    hide();
    deleteLater();
}

void Window_Widget::Show_Caption() {
    setWindowTitle(To_Qt(caption));
}

void Window_Widget::Show_Input() {
    canvas->setEnabled(takes_input);
    if (menu_bar != nullptr) menu_bar->setEnabled(takes_input);
}

void Window_Widget::Place(int x, int y, int cx, int cy, unsigned flags) {
    Set_Topmost();
    if ((flags & SWP_NOMOVE) == 0) Move_Outer(QPoint(x, y));
    if ((flags & SWP_NOSIZE) != 0) return;
    const QSize outer = (QSizeF(cx, cy) / devicePixelRatioF()).toSize();
    Set_Size(outer.shrunkBy(Frame_Margins()).expandedTo({1, 1}));
    Report_Size();
}

void Window_Widget::Set_Topmost() {
    if (!was_shown) {
        setWindowFlag(Qt::WindowStaysOnTopHint, is_topmost);
        create();
        return;
    }
    // Setting the widget's own flag would take the window from the screen and show it again.
    windowHandle()->setFlag(Qt::WindowStaysOnTopHint, is_topmost);
}

void Window_Widget::Move_Outer(QPoint place) {
    const QPoint logical = (QPointF(place) / devicePixelRatioF()).toPoint();
    move(logical);
    // A widget that has never been moved takes itself for one at (0, 0) already, and would leave
    // the place to the window manager.
    windowHandle()->setFramePosition(logical);
}

void Window_Widget::Set_Size(QSize inner) {
    if (table.frame == Frame_Style::Sizable) {
        resize(inner);
    } else {
        setFixedSize(inner);
    }
}

Pixels Window_Widget::Frame_Pixels() const {
    const QSize outer = (QSizeF(size().grownBy(Frame_Margins())) * devicePixelRatioF()).toSize();
    return {outer.width(), outer.height()};
}

Window_State Window_Widget::State() const {
    return isMinimized() ? Window_State::Minimised : Window_State::Normal;
}

bool Window_Widget::event(QEvent* event) {
    const bool taken = QWidget::event(event);
    switch (event->type()) {
        case QEvent::Show:
        case QEvent::Move:
        case QEvent::Resize:
        case QEvent::WindowStateChange:
        case QEvent::WindowActivate:
        // The window manager's frame comes without an event of its own; the first picture follows.
        case QEvent::Paint:
        case QEvent::UpdateRequest:
            Report_Size();
            break;
        default:
            break;
    }
    return taken;
}

void Window_Widget::closeEvent(QCloseEvent* event) {
    event->ignore();
    if (takes_input) On_Event([this] { Dismiss(); });
}

void Window_Widget::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) Take_Escape(*this);
}

void Window_Widget::resizeEvent(QResizeEvent*) {
    const int menu_height = Menu_Height();
    if (menu_bar != nullptr) menu_bar->setGeometry(0, 0, width(), menu_height);
    canvas->setGeometry(0, menu_height, width(), height() - menu_height);
}

int Window_Widget::Menu_Height() const {
    return menu_bar != nullptr ? menu_bar->sizeHint().height() : 0;
}

QMargins Window_Widget::Frame_Margins() const {
    return windowHandle() != nullptr ? windowHandle()->frameMargins() : QMargins();
}

}  // namespace platform::desktop

platform::common::Live_Window* platform::common::Make_Window(const Window& table) {
    return new desktop::Window_Widget(table);
}
