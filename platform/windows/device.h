#pragma once

#include "platform/drawing.h"
#include "platform/windows/native.h"

namespace platform {

/// A drawing target with its drawing state: the bitmap behind a window's client area, or a page.
struct Device_Context {
    HDC dc = nullptr;      ///< null: calls change the state and draw nothing
    bool is_page = false;  ///< dashes have lengths of the paper
    int dots_per_inch = 96;
    bool has_changed = false;  ///< the picture is not what the screen shows

    Colour pen_colour = Colour_Black;
    int pen_width = 1;
    Pen_Style pen_style = Pen_Style::Solid;
    Colour fill_colour = Colour_Black;
    Fill_Style fill_style = Fill_Style::Hollow;
    POINT position = {};
    bool state_is_set = false;  ///< whether the native context has the state above
    HPEN pen = nullptr;         ///< a pen of its own that is selected there
};

}  // namespace platform

namespace platform::windows {

COLORREF Native_Colour(Colour colour);

/// Has to come before the native context goes.
void Release_Pen(Device_Context& device);

}  // namespace platform::windows
