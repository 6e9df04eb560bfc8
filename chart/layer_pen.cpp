#include "chart/layer_pen.h"

#include "chart/colours.h"
#include "platform/drawing.h"

namespace skerrand {

void Set_Pen(platform::Device_Context* device, int width) {
    platform::Set_Pen_Style(device, platform::Pen_Style::Solid);
    platform::Set_Pen_Width(device, width);
}

void Set_Solid(platform::Device_Context* device, platform::Colour colour) {
    platform::Set_Pen_Colour(device, colour);
    platform::Set_Fill_Colour(device, colour);
    platform::Set_Fill_Style(device, platform::Fill_Style::Solid);
}

void Set_Hollow(platform::Device_Context* device, platform::Colour pen) {
    platform::Set_Pen_Colour(device, pen);
    platform::Set_Fill_Colour(device, Black);
    platform::Set_Fill_Style(device, platform::Fill_Style::Hollow);
}

void Draw_Line(platform::Device_Context* device, Pixel_Point from, Pixel_Point to) {
    platform::MoveToEx(device, from.x, from.y);
    platform::LineTo(device, to.x, to.y);
}

void Draw_Label(platform::Device_Context* device, Pixel_Point at, std::string_view text) {
    platform::Set_Pen_Colour(device, Black);
    platform::TextOutA(device, at.x, at.y, text);
}

}  // namespace skerrand
