#include "platform/desktop/device.h"

#include <algorithm>

namespace platform::desktop {

namespace {

void Set_Pen(Device_Context& device) {
    const Colour colour = device.pen_colour;
    QPen pen(QColor(colour.red, colour.green, colour.blue));
    pen.setWidthF(std::max(1, device.pen_width) * device.pen_scale);
    pen.setCapStyle(Qt::FlatCap);
    pen.setJoinStyle(Qt::MiterJoin);
    device.painter.setPen(pen);
    device.pen_set = true;
}

}  // namespace

QPainter* Open_Painter(Device_Context* device) {
    if (device == nullptr || device->target == nullptr) return nullptr;
    if (!device->painter.isActive()) {
        if (!device->painter.begin(device->target)) return nullptr;
        device->painter.setFont(device->font);
        device->pen_set = false;
    }
    if (!device->pen_set) Set_Pen(*device);
    if (device->changed) device->changed();
    return &device->painter;
}

void Close_Painter(Device_Context& device) {
    if (device.painter.isActive()) device.painter.end();
}

}  // namespace platform::desktop
