#include "platform/desktop/drawing/canvas.h"

#include <QMouseEvent>
#include <QPainter>
#include <cmath>
#include <utility>

#include "platform/desktop/drawing/text.h"
#include "platform/desktop/windows/window_widget.h"

namespace platform::desktop {

Canvas::Canvas(common::Live_Window& window, QWidget* parent) : QWidget(parent), live(window) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    device.pen_colour = window.table.fore_colour;
}

Canvas::~Canvas() {
    Close_Painter(device);
}

void Canvas::Open() {
    image = QImage();
    Fit_Image();
}

void Canvas::Wipe() {
    if (image.isNull()) return;
    Close_Painter(device);
    image.fill(To_Qt(live.table.back_colour));
    device.has_changed = true;
}

void Canvas::Show_Drawing() {
    if (std::exchange(device.has_changed, false)) update();
}

QSize Canvas::Device_Size() const {
    return (QSizeF(size()) * devicePixelRatioF()).toSize().expandedTo({1, 1});
}

/// Gives the image the size of the client area: the picture stays, a new strip has the back colour.
void Canvas::Fit_Image() {
    const QSize wanted = Device_Size();
    if (image.size() == wanted) return;
    Close_Painter(device);
    QImage fitted(wanted, QImage::Format_RGB32);
    fitted.fill(To_Qt(live.table.back_colour));
    if (!image.isNull()) QPainter(&fitted).drawImage(0, 0, image);
    image = std::move(fitted);

    QFont font = Default_Font();
    font.setPixelSize(static_cast<int>(std::lround(font.pixelSize() * devicePixelRatioF())));
    device.font = font;
    device.pen_scale = devicePixelRatioF();
    device.dash_scale = device.pen_scale;
    device.area = image.rect();
    device.target = &image;
    update();
}

void Canvas::paintEvent(QPaintEvent*) {
    if (image.isNull()) return;
    Fit_Image();  // The window may have moved to a screen of another scale.
    Close_Painter(device);
    // A second header for the same pixels: telling the image itself its ratio would copy them.
    QImage picture(image.constBits(), image.width(), image.height(), image.bytesPerLine(),
                   image.format());
    picture.setDevicePixelRatio(devicePixelRatioF());
    QPainter(this).drawImage(0, 0, picture);
}

void Canvas::resizeEvent(QResizeEvent*) {
    if (!image.isNull()) Fit_Image();
}

void Canvas::mousePressEvent(QMouseEvent* event) {
    Mouse_Button button;
    switch (event->button()) {
        case Qt::LeftButton:
            button = Mouse_Button::Left;
            break;
        case Qt::RightButton:
            button = Mouse_Button::Right;
            break;
        case Qt::MiddleButton:
            button = Mouse_Button::Middle;
            break;
        default:
            return;
    }
    const QSize size = Device_Size();
    live.Take_Press(button, std::floor(event->position().x() * devicePixelRatioF()),
                    std::floor(event->position().y() * devicePixelRatioF()),
                    {size.width(), size.height()});
}

void Canvas::wheelEvent(QWheelEvent* event) {
    live.Take_Wheel(event->angleDelta().y());
}

}  // namespace platform::desktop

namespace platform {

Device_Context* Window_Device(const Window& window) {
    desktop::Window_Widget* widget = desktop::Find_Window(window);
    return widget != nullptr ? &widget->canvas->device : nullptr;
}

}  // namespace platform
