#pragma once

#include <QFont>
#include <QPaintDevice>
#include <QPainter>
#include <QPointF>
#include <QRectF>
#include <QStaticText>
#include <functional>
#include <string>
#include <unordered_map>

#include "platform/drawing.h"

namespace platform {

/// A drawing target with its drawing state: the image behind a window's client area, or a page.
struct Device_Context {
    QPaintDevice* target = nullptr;  ///< null: calls change the state and draw nothing
    QRectF area;                     ///< what of it can be seen, in its pixels
    double pen_scale = 1;            ///< pixels to a step of the pen's width
    double dash_scale = 1;           ///< the same for the lengths of dashes and their gaps
    QFont font;                      ///< sized in the target's pixels
    std::function<void()> changed;   ///< called at each change of the picture

    Colour pen_colour = Colour_Black;
    int pen_width = 1;
    Pen_Style pen_style = Pen_Style::Solid;
    Colour fill_colour = Colour_Black;
    Fill_Style fill_style = Fill_Style::Hollow;
    QPointF position;     ///< whole numbers
    double dash_way = 0;  ///< length of the line so far, so that dashes run on from line to line

    QPainter painter;      ///< open from the first call that draws until `Close_Painter`
    bool pen_set = false;  ///< whether the painter has the state above
    std::unordered_map<std::string, QStaticText> texts;  ///< texts laid out once
};

}  // namespace platform

namespace platform::desktop {

/// The pen's width in pixels of the target; 1 at least.
double Pen_Pixels(const Device_Context& device);

/// The painter with the device's state, ready to draw; null if nothing can be drawn.
QPainter* Open_Painter(Device_Context* device);

/// Has to come before anything else reads, replaces or deletes the target.
void Close_Painter(Device_Context& device);

}  // namespace platform::desktop
