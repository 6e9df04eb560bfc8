#include "platform/drawing.h"

#include "platform/headless/device.h"
#include "platform/headless/form.h"

namespace platform {

namespace {

using headless::Call_Kind;

/// Drawing is a large part of what the program does, so a call costs no more than a record: texts
/// and numbers are put into words when somebody asks for the picture.
template <typename... Numbers>
void Record(Device_Context& device, Call_Kind kind, Numbers... numbers) {
    headless::Picture& picture = device.picture;
    if (device.state_is_new) picture.states.push_back(device.state);
    device.state_is_new = false;
    headless::Drawing_Call& call = picture.calls.emplace_back();
    call.kind = kind;
    call.state = static_cast<std::uint32_t>(picture.states.size() - 1);
    auto place = call.numbers.begin();
    ((*place++ = numbers), ...);
}

template <typename Value>
void Set(Device_Context& device, Value& item, Value value) {
    device.state_is_new = device.state_is_new || item != value;
    item = value;
}

}  // namespace

void headless::Wipe(Device_Context& device) {
    device.picture.calls.clear();
    device.picture.states.clear();
    device.picture.texts.clear();
    device.state_is_new = true;
}

Device_Context* Window_Device(const Window& window) {
    headless::Form* form = headless::Find_Form(window);
    return form == nullptr ? nullptr : &form->device;
}

void Set_Pen_Colour(Device_Context* device, Colour colour) {
    if (device != nullptr) Set(*device, device->state.pen_colour, colour);
}

void Set_Pen_Width(Device_Context* device, int width) {
    if (device != nullptr) Set(*device, device->state.pen_width, width);
}

void Set_Pen_Style(Device_Context* device, Pen_Style style) {
    if (device != nullptr) Set(*device, device->state.pen_style, style);
}

void Set_Fill_Colour(Device_Context* device, Colour colour) {
    if (device != nullptr) Set(*device, device->state.fill_colour, colour);
}

void Set_Fill_Style(Device_Context* device, Fill_Style style) {
    if (device != nullptr) Set(*device, device->state.fill_style, style);
}

void MoveToEx(Device_Context* device, int x, int y) {
    if (device == nullptr) return;
    device->x = x;
    device->y = y;
}

void LineTo(Device_Context* device, int x, int y) {
    if (device == nullptr) return;
    Record(*device, Call_Kind::Line, device->x, device->y, x, y);
    MoveToEx(device, x, y);
}

void Ellipse(Device_Context* device, int left, int top, int right, int bottom) {
    if (device != nullptr) Record(*device, Call_Kind::Ellipse, left, top, right, bottom);
}

void Rectangle(Device_Context* device, int left, int top, int right, int bottom) {
    if (device != nullptr) Record(*device, Call_Kind::Rectangle, left, top, right, bottom);
}

void Arc(Device_Context* device, int left, int top, int right, int bottom, int x1, int y1, int x2,
         int y2) {
    if (device == nullptr) return;
    Record(*device, Call_Kind::Arc, left, top, right, bottom, x1, y1, x2, y2);
}

void TextOutA(Device_Context* device, int x, int y, std::string_view text) {
    if (device == nullptr) return;
    const auto place = static_cast<int>(device->picture.texts.size());
    device->picture.texts.append(text);
    Record(*device, Call_Kind::Text, x, y, place, static_cast<int>(text.size()));
}

}  // namespace platform
