#include "platform/desktop/window_widget.h"

#include <QCloseEvent>
#include <QScreen>
#include <QWindow>

#include "platform/desktop/builder.h"
#include "platform/desktop/drawing/text.h"
#include "platform/desktop/handlers.h"
#include "platform/desktop/hold_above.h"
#include "platform/desktop/scale.h"
#include "platform/desktop/windows.h"

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

Window_Widget::Window_Widget(const Window& window) : table(window) {
    setWindowTitle(To_Qt(window.caption));
    setFont(Default_Font());
    canvas = new Canvas(window, this);
    Build_Controls(*this);
    Set_Frame();
    create();  // Only a native window knows of its frame.
    reported_size = Outer_Pixels();
}

void Window_Widget::Set_Frame() {
    setWindowFlags(Frame_Flags(table.frame));
    const QSize size(To_Logical(table.client_width),
                     To_Logical(table.client_height) + Menu_Height());
    if (table.frame == Frame_Style::Sizable) {
        resize(size);
    } else {
        setFixedSize(size);
    }
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

void Window_Widget::Dismiss() {
    if (is_unloading) return;
    is_unloading = true;
    Call(table.unload);
    Remove_Window(this);
    for (Live_Control& control : controls) {
        if (control.timer != nullptr) control.timer->stop();
    }
    hide();
    deleteLater();
}

void Window_Widget::Set_Topmost(bool topmost) {
    is_topmost = topmost;
    if (!was_shown) {
        setWindowFlag(Qt::WindowStaysOnTopHint, topmost);
        create();
        return;
    }
    // Setting the widget's own flag would take the window from the screen and show it again.
    windowHandle()->setFlag(Qt::WindowStaysOnTopHint, topmost);
    if (topmost) Hold_Above(*windowHandle());
}

void Window_Widget::Set_Input(bool enabled) {
    takes_input = enabled;
    canvas->setEnabled(enabled);
    if (menu_bar != nullptr) menu_bar->setEnabled(enabled);
}

void Window_Widget::Move_Outer(QPoint place) {
    const QPoint logical = (QPointF(place) / devicePixelRatioF()).toPoint();
    move(logical);
    // A widget that has never been moved takes itself for one at (0, 0) already, and would leave
    // the place to the window manager.
    if (windowHandle() != nullptr) windowHandle()->setFramePosition(logical);
}

void Window_Widget::Resize_Outer(QSize size) {
    const QSize inner =
        (QSizeF(size) / devicePixelRatioF()).toSize().shrunkBy(Frame_Margins()).expandedTo({1, 1});
    if (table.frame == Frame_Style::Sizable) {
        resize(inner);
    } else {
        setFixedSize(inner);
    }
    Report_Size();
}

QSize Window_Widget::Outer_Pixels() const {
    if (State() == Window_State::Minimised) return reported_size;
    return (QSizeF(size().grownBy(Frame_Margins())) * devicePixelRatioF()).toSize();
}

Window_State Window_Widget::State() const {
    return isMinimized() ? Window_State::Minimised : Window_State::Normal;
}

void Window_Widget::Minimise_Now() {
    if (!was_shown || State() == Window_State::Minimised) return;
    const Handler_Scope scope;
    reported_size = Outer_Pixels();
    reported_state = Window_State::Minimised;
    showMinimized();
    Call(table.resize);
}

void Window_Widget::Report_Size() {
    if (!was_shown || is_unloading || Is_Busy()) return;
    const Window_State state = State();
    const QSize size = Outer_Pixels();
    if (state == reported_state && size == reported_size) return;
    reported_state = state;
    reported_size = size;
    On_Event([this] { Call(table.resize); });
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
