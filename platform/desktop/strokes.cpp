#include "platform/desktop/strokes.h"

#include <QPolygonF>
#include <QVarLengthArray>
#include <algorithm>
#include <cmath>

namespace platform::desktop {

namespace {

/// Dash and gap in pixels at the pen scale of 1; short enough to show on short lines too.
constexpr double Dash = 5;
constexpr double Gap = 4;

/// How far a polyline may stray from its curve, in pixels.
constexpr double Chord_Error = 0.2;

QRectF Stroke_Area(const Device_Context& device) {
    const double margin = 2 + Pen_Pixels(device);
    return device.area.adjusted(-margin, -margin, margin, margin);
}

using Dashes = QVarLengthArray<QLineF, 512>;

/// Adds the dashes of a line that starts `way` pixels into the pattern.
void Add_Dashes(const Device_Context& device, const QLineF& line, double way, Dashes& dashes) {
    const double length = line.length();
    if (length <= 0) return;
    const double dash = Dash * device.pen_scale;
    const double period = dash + Gap * device.pen_scale;
    const QPointF step(line.dx() / length, line.dy() / length);
    for (double at = -std::fmod(way, period); at < length; at += period) {
        const double from = std::max(at, 0.0);
        const double to = std::min(at + dash, length);
        if (from < to) dashes.append(QLineF(line.p1() + step * from, line.p1() + step * to));
    }
}

void Draw_Dashes(QPainter& painter, const Dashes& dashes) {
    painter.drawLines(dashes.constData(), static_cast<int>(dashes.size()));
}

/// Both ends belong to a line, so a solid one is half a pixel longer at each.
QLineF With_Ends(const QLineF& line, double pen_width) {
    const double length = line.length();
    if (length == 0)
        return {line.x1() - pen_width / 2, line.y1(), line.x1() + pen_width / 2, line.y1()};
    const QPointF end = (line.p2() - line.p1()) * (pen_width / 2 / length);
    return {line.p1() - end, line.p2() + end};
}

}  // namespace

double Pixel_Middle(const Device_Context& device) {
    return std::lround(Pen_Pixels(device)) % 2 != 0 ? 0.5 : 0.0;
}

void Stroke_Line(Device_Context& device, QPainter& painter, const QLineF& line, double& way) {
    const std::optional<QLineF> visible = Clip_Line(line, Stroke_Area(device));
    if (visible && device.pen_style == Pen_Style::Dashed && visible->length() > 0) {
        const double skipped = QLineF(line.p1(), visible->p1()).length();
        Dashes dashes;
        Add_Dashes(device, *visible, way + skipped, dashes);
        Draw_Dashes(painter, dashes);
    } else if (visible) {
        painter.drawLine(With_Ends(*visible, painter.pen().widthF()));
    }
    way += line.length();
}

void Stroke_Curve(Device_Context& device, QPainter& painter, const Ellipse_Shape& shape,
                  Range range) {
    const double radius = std::max({shape.radius_x, shape.radius_y, 1.0});
    const double step = std::sqrt(8 * Chord_Error / radius);
    for (const Range& part : Visible_Ranges(shape, range, Stroke_Area(device))) {
        const int pieces = std::max(1, static_cast<int>(std::ceil((part.to - part.from) / step)));
        QPolygonF points;
        points.reserve(pieces + 1);
        for (int i = 0; i <= pieces; ++i) {
            points.append(shape.At(part.from + (part.to - part.from) * i / pieces));
        }
        if (device.pen_style == Pen_Style::Solid) {
            painter.drawPolyline(points);
            continue;
        }
        // One call for the whole curve: the toolkit's work for a call outweighs that for a dash.
        Dashes dashes;
        double way = 0;
        for (int i = 0; i < pieces; ++i) {
            const QLineF piece(points[i], points[i + 1]);
            Add_Dashes(device, piece, way, dashes);
            way += piece.length();
        }
        Draw_Dashes(painter, dashes);
    }
}

}  // namespace platform::desktop
