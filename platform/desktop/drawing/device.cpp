#include "platform/desktop/drawing/device.h"

namespace platform::desktop {

QColor To_Qt(Colour colour) {
    return {colour.red, colour.green, colour.blue};
}

bool Open_Painter(Device_Context* device) {
    if (device == nullptr || device->target == nullptr) return false;
    device->has_changed = true;
    if (device->painter.isActive()) return true;
    if (!device->painter.begin(device->target)) return false;
    device->painter.setFont(device->font);
    return true;
}

void Close_Painter(Device_Context& device) {
    if (device.painter.isActive()) device.painter.end();
}

}  // namespace platform::desktop

namespace platform {

void Set_Pen_Colour(Device_Context* device, Colour colour) {
    if (device != nullptr) device->pen_colour = colour;
}

void Set_Pen_Width(Device_Context* device, int width) {
    if (device != nullptr) device->pen_width = width;
}

void Set_Pen_Style(Device_Context* device, Pen_Style style) {
    if (device != nullptr) device->pen_style = style;
}

void Set_Fill_Colour(Device_Context* device, Colour colour) {
    if (device != nullptr) device->fill_colour = colour;
}

void Set_Fill_Style(Device_Context* device, Fill_Style style) {
    if (device != nullptr) device->fill_style = style;
}

void MoveToEx(Device_Context* device, int x, int y) {
    if (device == nullptr) return;
    // A move to where the pen stands is no break: the dashes run on.
    if (device->position != QPointF(x, y)) device->dash_way = 0;
    device->position = QPointF(x, y);
}

}  // namespace platform
