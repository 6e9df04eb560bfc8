// The figures, in the device's pen and fill. The box of a figure is the rectangle round it; its
// right and bottom edges are the first pixels outside.

#include <QPaintEngine>
#include <algorithm>
#include <cmath>

#include "platform/desktop/drawing/clip.h"
#include "platform/desktop/drawing/device.h"
#include "platform/desktop/drawing/text.h"

namespace platform {

using desktop::Measure;

namespace {

using namespace desktop;

/// Dash and gap in pixels at the dash scale of 1; short enough to show on short lines too.
constexpr double Dash = 5;
constexpr double Gap = 4;

/// As much of a dash, in pixels, passes the middle of a pixel whichever way it goes.
constexpr double Shown_At_Least = 1.5;

/// Radials closer than this, in radians, are the same.
constexpr double Same_Radial = 1e-12;

/// Up to this many pixels round the picture the toolkit's own figures and texts are sound.
constexpr double Safe_Margin = 4096;

/// Whole pixels of the target, 1 at least, which keeps lines crisp on screens of any scale.
double Pen_Pixels(const Device_Context& device) {
    return std::max(1.0, std::round(device.pen_width * device.pen_scale));
}

/// The middle of a pixel, or its corner, whichever makes a straight line of the pen's width crisp.
double Pixel_Middle(const Device_Context& device) {
    return std::fmod(Pen_Pixels(device), 2) / 2;
}

QRectF Widened(const QRectF& area, double margin) {
    return area.adjusted(-margin, -margin, margin, margin);
}

/// What lies outside is not seen whatever the pen.
QRectF Stroke_Area(const Device_Context& device) {
    return Widened(device.area, 2 + Pen_Pixels(device));
}

Measure Measure_Of(const Device_Context& device) {
    const bool is_image = device.painter.paintEngine()->type() == QPaintEngine::Raster;
    return is_image && Pen_Pixels(device) == 1 ? Measure::Painted_Pixels : Measure::True_Length;
}

/// Gives the painter the pen for a figure in that style whose dashes have run for that way.
void Set_Pen(Device_Context& device, Pen_Style style, double way = 0) {
    QPen pen(To_Qt(device.pen_colour), Pen_Pixels(device), Qt::SolidLine, Qt::SquareCap,
             Qt::MiterJoin);
    if (style == Pen_Style::Dashed) {
        const double scale = device.dash_scale / pen.widthF();
        pen.setCapStyle(Qt::FlatCap);  // it would be that of each dash
        pen.setDashPattern({Dash * scale, Gap * scale});
        pen.setDashOffset(std::fmod(way, (Dash + Gap) * device.dash_scale) / pen.widthF());
    }
    device.painter.setPen(pen);
}

/// Whether any of the dashes between two ways falls into the figure. At no length may it vanish.
bool Shows_Dash(const Device_Context& device, double from, double to) {
    const double period = (Dash + Gap) * device.dash_scale;
    const double place = std::fmod(from, period);
    const double end = place + to - from;
    return std::max(std::min(end, Dash * device.dash_scale) - place, end - period) >=
           Shown_At_Least;
}

/// The part of an ellipse's outline from an angle to one up to two turns ahead. Its dashes are
/// counted from a fixed place of the ellipse, so that outlines that share an arc share its dashes.
void Stroke_Curve(Device_Context& device, const Ellipse_Shape& shape, Range range) {
    if (range.to > Turn) {
        Stroke_Curve(device, shape, {range.from, Turn});
        Stroke_Curve(device, shape, {0, range.to - Turn});
        return;
    }
    const Measure measure = Measure_Of(device);
    const bool is_dashed =
        device.pen_style == Pen_Style::Dashed &&
        Shows_Dash(device, Way_To(measure, shape, range.from), Way_To(measure, shape, range.to));
    for (const Range& part : Visible_Ranges(shape, range, Stroke_Area(device))) {
        Set_Pen(device, is_dashed ? Pen_Style::Dashed : Pen_Style::Solid,
                Way_To(measure, shape, part.from));
        device.painter.drawPolyline(Points_Of(shape, part));
    }
}

QRectF Sorted_Box(int left, int top, int right, int bottom) {
    return {QPointF(std::min(left, right), std::min(top, bottom)),
            QPointF(std::max(left, right), std::max(top, bottom))};
}

/// The ellipse that runs through the middles of the pixels along the box's edges.
Ellipse_Shape Shape_In(const Device_Context& device, const QRectF& box) {
    const double middle = Pixel_Middle(device);
    const QRectF edge = box.adjusted(middle, middle, middle - 1, middle - 1);
    return {edge.center().x(), edge.center().y(), edge.width() / 2, edge.height() / 2};
}

void Fill_Ellipse(Device_Context& device, const Ellipse_Shape& shape, bool is_near) {
    const QColor colour = To_Qt(device.fill_colour);
    if (is_near) {
        device.painter.setPen(Qt::NoPen);
        device.painter.setBrush(colour);
        device.painter.drawEllipse(QPointF(shape.x, shape.y), shape.radius_x, shape.radius_y);
        return;
    }
    // Row by row.
    const QRectF area = device.area;
    for (double y = area.top(); y < area.bottom(); ++y) {
        const double sine = (y + 0.5 - shape.y) / shape.radius_y;
        if (!(std::abs(sine) < 1)) continue;
        const double half = shape.radius_x * std::sqrt((1 - sine) * (1 + sine));
        const double left = std::max(shape.x - half, area.left());
        const double right = std::min(shape.x + half, area.right());
        if (left < right) device.painter.fillRect(QRectF(left, y, right - left, 1), colour);
    }
}

}  // namespace

void LineTo(Device_Context* device, int x, int y) {
    if (device == nullptr) return;
    const QLineF whole(device->position, QPointF(x, y));
    device->position = whole.p2();
    if (!Open_Painter(device)) return;
    const Measure measure = Measure_Of(*device);
    const double way = device->dash_way;
    device->dash_way += Length(measure, whole.p2() - whole.p1());
    const double middle = Pixel_Middle(*device);
    const QLineF line = whole.translated(middle, middle);
    const auto visible = Clip_Line(line, Stroke_Area(*device));
    if (!visible) return;
    const bool is_dot = visible->p1() == visible->p2();
    Set_Pen(*device, is_dot ? Pen_Style::Solid : device->pen_style,
            way + Length(measure, visible->p1() - line.p1()));
    device->painter.drawLine(*visible);
}

void Ellipse(Device_Context* device, int left, int top, int right, int bottom) {
    const QRectF box = Sorted_Box(left, top, right, bottom);
    if (box.isEmpty() || !Open_Painter(device)) return;
    const Ellipse_Shape shape = Shape_In(*device, box);
    if (device->fill_style == Fill_Style::Solid) {
        Fill_Ellipse(*device, shape, Widened(device->area, Safe_Margin).contains(box));
    }
    Stroke_Curve(*device, shape, {0, Turn});
}

void Rectangle(Device_Context* device, int left, int top, int right, int bottom) {
    const QRectF box = Sorted_Box(left, top, right, bottom);
    if (box.isEmpty() || !Open_Painter(device)) return;
    const QRectF near = box & Stroke_Area(*device);
    if (near.isEmpty()) return;
    QPainter& painter = device->painter;
    Set_Pen(*device, device->pen_style);
    const bool is_filled = device->fill_style == Fill_Style::Solid;
    painter.setBrush(is_filled ? QBrush(To_Qt(device->fill_colour)) : QBrush(Qt::NoBrush));
    // A viewer of a page loses a hairline on the edge of the clipped area at some resolutions.
    painter.setClipping(!device->area.contains(box));
    const double middle = Pixel_Middle(*device);
    painter.drawRect(near.adjusted(middle, middle, middle - 1, middle - 1));
    painter.setClipping(true);
}

void Arc(Device_Context* device, int left, int top, int right, int bottom, int x1, int y1, int x2,
         int y2) {
    const QRectF box = Sorted_Box(left, top, right, bottom);
    if (box.isEmpty() || !Open_Painter(device)) return;
    const Ellipse_Shape shape = Shape_In(*device, box);
    if (shape.radius_x == 0 || shape.radius_y == 0) return;
    // From the box's own centre, whatever the pen.
    const Ellipse_Shape radials{box.center().x(), box.center().y(), shape.radius_x, shape.radius_y};
    const double from = radials.Angle_Of(x1, y1);
    double to = radials.Angle_Of(x2, y2);
    if (to < from) to += Turn;
    if (to - from < Same_Radial || to - from > Turn - Same_Radial) to = from + Turn;
    Stroke_Curve(*device, shape, {from, to});
}

void TextOutA(Device_Context* device, int x, int y, std::string_view text) {
    if (text.empty() || !Open_Painter(device)) return;
    if (!Widened(device->area, Safe_Margin).contains(x, y)) return;
    QString characters = To_Qt(text);
    for (QChar& character : characters) {
        if (character.unicode() < 32) character = QLatin1Char(' ');
    }
    QPainter& painter = device->painter;
    painter.setPen(To_Qt(device->pen_colour));
    painter.drawText(QPointF(x, y + painter.fontMetrics().ascent()), characters);
}

}  // namespace platform
