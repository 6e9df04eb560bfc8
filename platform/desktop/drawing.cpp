#include "platform/drawing.h"

#include "platform/desktop/device.h"
#include "platform/desktop/shapes.h"
#include "platform/desktop/strokes.h"
#include "platform/desktop/windows/window_widget.h"
#include "platform/desktop/windows/windows.h"

namespace platform {

using desktop::Open_Painter;

Device_Context* Window_Device(const Window& window) {
    desktop::Window_Widget* widget = desktop::Find_Window(window);
    return widget != nullptr ? &widget->canvas->device : nullptr;
}

void Set_Pen_Colour(Device_Context* device, Colour colour) {
    if (device == nullptr || device->pen_colour == colour) return;
    device->pen_colour = colour;
    device->pen_set = false;
}

void Set_Pen_Width(Device_Context* device, int width) {
    if (device == nullptr || device->pen_width == width) return;
    device->pen_width = width;
    device->pen_set = false;
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

void LineTo(Device_Context* device, int x, int y) {
    if (device == nullptr) return;
    const QLineF line(device->position, QPointF(x, y));
    device->position = line.p2();
    QPainter* painter = Open_Painter(device);
    if (painter == nullptr) return;
    const double middle = desktop::Pixel_Middle(*device);
    desktop::Stroke_Line(*device, *painter, line.translated(middle, middle), device->dash_way);
}

void Ellipse(Device_Context* device, int left, int top, int right, int bottom) {
    if (QPainter* painter = Open_Painter(device)) {
        desktop::Draw_Ellipse(*device, *painter, desktop::Sorted_Box(left, top, right, bottom));
    }
}

void Rectangle(Device_Context* device, int left, int top, int right, int bottom) {
    if (QPainter* painter = Open_Painter(device)) {
        desktop::Draw_Rectangle(*device, *painter, desktop::Sorted_Box(left, top, right, bottom));
    }
}

void Arc(Device_Context* device, int left, int top, int right, int bottom, int x1, int y1, int x2,
         int y2) {
    if (QPainter* painter = Open_Painter(device)) {
        desktop::Draw_Arc(*device, *painter, desktop::Sorted_Box(left, top, right, bottom),
                          QPointF(x1, y1), QPointF(x2, y2));
    }
}

void TextOutA(Device_Context* device, int x, int y, std::string_view text) {
    if (QPainter* painter = Open_Painter(device)) {
        desktop::Draw_Text(*device, *painter, QPointF(x, y), text);
    }
}

}  // namespace platform
