#include "platform/desktop/device.h"

#include <algorithm>

#include "platform/desktop/wide_registers.h"

namespace platform::desktop {

namespace {

void Set_Pen(Device_Context& device) {
    const Colour colour = device.pen_colour;
    QPen pen(QColor(colour.red, colour.green, colour.blue));
    pen.setWidthF(Pen_Pixels(device));
    pen.setCapStyle(Qt::FlatCap);
    pen.setJoinStyle(Qt::MiterJoin);
    device.painter.setPen(pen);
    device.pen_set = true;
}

}  // namespace

double Pen_Pixels(const Device_Context& device) {
    // A limit far above any use: what lies outside is cut off at the pen's width from the picture.
    constexpr int Widest = 256;
    return std::clamp(device.pen_width, 1, Widest) * device.pen_scale;
}

QPainter* Open_Painter(Device_Context* device) {
    if (device == nullptr || device->target == nullptr) return nullptr;
    if (!device->painter.isActive()) {
        if (!device->painter.begin(device->target)) return nullptr;
        device->painter.setFont(device->font);
        device->pen_set = false;
    }
    if (!device->pen_set) Set_Pen(*device);
    if (device->changed) device->changed();
    Release_Wide_Registers();
    return &device->painter;
}

void Close_Painter(Device_Context& device) {
    if (device.painter.isActive()) device.painter.end();
}

}  // namespace platform::desktop
