#include "platform/desktop/strokes.h"

#include <QPolygonF>
#include <algorithm>
#include <cmath>
#include <optional>
#include <span>

#include "platform/desktop/curve.h"
#include "platform/desktop/dashes.h"
#include "platform/desktop/pixel_pen.h"

namespace platform::desktop {

namespace {

/// As much of a dash, in pixels, passes the middle of a pixel whichever way it goes.
constexpr double Shown_At_Least = 1.5;

QRectF Stroke_Area(const Device_Context& device) {
    const double margin = 2 + Pen_Pixels(device);
    return device.area.adjusted(-margin, -margin, margin, margin);
}

/// Both ends belong to a line, so a solid one is half a pixel longer at each.
QLineF With_Ends(const QLineF& line, double pen_width) {
    const double length = line.length();
    if (length == 0)
        return {line.x1() - pen_width / 2, line.y1(), line.x1() + pen_width / 2, line.y1()};
    const QPointF end = (line.p2() - line.p1()) * (pen_width / 2 / length);
    return {line.p1() - end, line.p2() + end};
}

/// The dashes of a polyline.
void Draw_Dashed(const Device_Context& device, QPainter& painter, const Dash_Pattern& pattern,
                 std::span<const Way_Point> points) {
    if (std::optional<Pixel_Pen> pen = Take_Pixel_Pen(device, pattern)) {
        for (std::size_t i = 1; i < points.size(); ++i)
            Draw_Dashes(*pen, points[i - 1], points[i]);
        return;
    }
    Dash_Lines dashes;
    for (std::size_t i = 1; i < points.size(); ++i)
        Add_Dashes(pattern, points[i - 1], points[i], dashes);
    painter.drawLines(dashes.constData(), static_cast<int>(dashes.size()));
}

/// An arc of which too little would lie outside of a gap becomes a dash as a whole: at no length
/// may it vanish.
Dash_Pattern Dashes_For(const Dash_Pattern& pattern, const Outline& outline, Range range) {
    const double start = Way_To(outline, range.from);
    const double place = Place_In_Period(pattern, start);
    const double end = place + Way_To(outline, range.to) - start;
    const double shown = std::max(std::min(end, pattern.dash) - place, end - pattern.period);
    return shown < Shown_At_Least ? Dash_Pattern{pattern.period, pattern.period} : pattern;
}

void Draw_Solid(QPainter& painter, std::span<const Way_Point> points) {
    QPolygonF polyline;
    polyline.reserve(static_cast<int>(points.size()));
    for (const Way_Point& point : points)
        polyline.append(point.at);
    painter.drawPolyline(polyline);
}

}  // namespace

double Pixel_Middle(const Device_Context& device) {
    return std::lround(Pen_Pixels(device)) % 2 != 0 ? 0.5 : 0.0;
}

void Stroke_Line(Device_Context& device, QPainter& painter, const QLineF& line, double& way) {
    const std::optional<QLineF> visible = Clip_Line(line, Stroke_Area(device));
    if (visible && device.pen_style == Pen_Style::Dashed) {
        const double start = way + QLineF(line.p1(), visible->p1()).length();
        const bool is_dot = visible->p1() == visible->p2();
        const QLineF stroke = is_dot ? With_Ends(*visible, Pen_Pixels(device)) : *visible;
        const Way_Point ends[] = {{stroke.p1(), start}, {stroke.p2(), start + stroke.length()}};
        Draw_Dashed(device, painter, Dashes_Of(device), ends);
    } else if (visible) {
        painter.drawLine(With_Ends(*visible, painter.pen().widthF()));
    }
    way += line.length();
}

void Stroke_Curve(Device_Context& device, QPainter& painter, const Ellipse_Shape& shape,
                  Range range) {
    const Visible_Parts parts = Visible_Ranges(shape, range, Stroke_Area(device));
    if (parts.isEmpty()) return;
    Dash_Pattern pattern = Dashes_Of(device);
    const Outline outline = Outline_Of(shape, pattern.period);
    pattern = Dashes_For(pattern, outline, range);
    for (const Range& part : parts) {
        const Curve_Points points = Points_Of(shape, outline, part);
        const std::span<const Way_Point> all(points.constData(),
                                             static_cast<std::size_t>(points.size()));
        if (device.pen_style == Pen_Style::Solid) {
            Draw_Solid(painter, all);
        } else {
            Draw_Dashed(device, painter, pattern, all);
        }
    }
}

}  // namespace platform::desktop
