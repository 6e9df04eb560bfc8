#pragma once

#include <QFont>
#include <QPaintDevice>
#include <QPainter>
#include <QPointF>
#include <QRectF>

#include "platform/drawing.h"

namespace platform {

/// A drawing target with its drawing state: the image behind a window's client area, or a page.
struct Device_Context {
    QPaintDevice* target = nullptr;  ///< null: calls change the state and draw nothing
    QRectF area;                     ///< what of it can be seen, in its pixels
    double pen_scale = 1;            ///< pixels to a step of the pen's width
    double dash_scale = 1;           ///< the same for the lengths of dashes and their gaps
    QFont font;                      ///< sized in the target's pixels
    bool has_changed = false;        ///< set by each call that draws

    Colour pen_colour = Colour_Black;
    int pen_width = 1;
    Pen_Style pen_style = Pen_Style::Solid;
    Colour fill_colour = Colour_Black;
    Fill_Style fill_style = Fill_Style::Hollow;
    QPointF position;     ///< whole numbers
    double dash_way = 0;  ///< length of the line so far, so that dashes run on from line to line

    QPainter painter;  ///< open from the first call that draws until `Close_Painter`
};

}  // namespace platform

namespace platform::desktop {

QColor To_Qt(Colour colour);

/// Makes the painter ready; false if nothing can be drawn.
bool Open_Painter(Device_Context* device);

/// Has to come before anything else reads, replaces or deletes the target.
void Close_Painter(Device_Context& device);

}  // namespace platform::desktop
