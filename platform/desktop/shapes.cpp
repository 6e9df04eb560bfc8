#include "platform/desktop/shapes.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "platform/desktop/strokes.h"
#include "platform/desktop/text.h"

namespace platform::desktop {

namespace {

constexpr double Turn = 2 * std::numbers::pi;

/// Radials closer than this, in radians, are the same.
constexpr double Same_Radial = 1e-12;

/// Up to this many pixels round the picture the toolkit's own figures are sound.
constexpr double Safe_Margin = 4096;

/// Texts laid out that are kept; airports have some hundreds.
constexpr std::size_t Kept_Texts = 4096;

QColor Fill(const Device_Context& device) {
    const Colour colour = device.fill_colour;
    return {colour.red, colour.green, colour.blue};
}

/// The ellipse that runs through the middles of the pixels along the box's edges.
Ellipse_Shape Shape_In(const Device_Context& device, const QRectF& box) {
    const double middle = Pixel_Middle(device);
    const double last_x = std::max(box.right() - 1, box.left());
    const double last_y = std::max(box.bottom() - 1, box.top());
    Ellipse_Shape shape;
    shape.centre = QPointF((box.left() + last_x) / 2 + middle, (box.top() + last_y) / 2 + middle);
    shape.radius_x = (last_x - box.left()) / 2;
    shape.radius_y = (last_y - box.top()) / 2;
    return shape;
}

/// Fills a huge ellipse row by row.
void Fill_Rows(const Device_Context& device, QPainter& painter, const Ellipse_Shape& shape) {
    const QRectF area = device.area;
    for (double y = area.top(); y < area.bottom(); ++y) {
        const double sine = (y + 0.5 - shape.centre.y()) / shape.radius_y;
        if (!(std::abs(sine) < 1)) continue;
        const double half = shape.radius_x * std::sqrt((1 - sine) * (1 + sine));
        const double left = std::max(shape.centre.x() - half, area.left());
        const double right = std::min(shape.centre.x() + half, area.right());
        if (left < right) painter.fillRect(QRectF(left, y, right - left, 1), Fill(device));
    }
}

}  // namespace

QRectF Sorted_Box(int left, int top, int right, int bottom) {
    return QRectF(QPointF(std::min(left, right), std::min(top, bottom)),
                  QPointF(std::max(left, right), std::max(top, bottom)));
}

void Draw_Ellipse(Device_Context& device, QPainter& painter, const QRectF& box) {
    if (box.width() <= 0 || box.height() <= 0) return;
    const Ellipse_Shape shape = Shape_In(device, box);
    const bool filled = device.fill_style == Fill_Style::Solid;
    const QRectF safe = device.area.adjusted(-Safe_Margin, -Safe_Margin, Safe_Margin, Safe_Margin);
    if (safe.contains(box) && device.pen_style == Pen_Style::Solid) {
        painter.setBrush(filled ? QBrush(Fill(device)) : QBrush(Qt::NoBrush));
        painter.drawEllipse(shape.centre, shape.radius_x, shape.radius_y);
        return;
    }
    if (filled) Fill_Rows(device, painter, shape);
    Stroke_Curve(device, painter, shape, {0, Turn});
}

void Draw_Rectangle(Device_Context& device, QPainter& painter, const QRectF& box) {
    if (box.width() <= 0 || box.height() <= 0) return;
    if (device.fill_style == Fill_Style::Solid) {
        const QRectF inside = box & device.area;
        if (!inside.isEmpty()) painter.fillRect(inside, Fill(device));
    }
    const double middle = Pixel_Middle(device);
    const QRectF edge = box.adjusted(middle, middle, middle - 1, middle - 1);
    const QPointF corners[] = {edge.topLeft(), edge.topRight(), edge.bottomRight(),
                               edge.bottomLeft(), edge.topLeft()};
    double way = 0;
    for (int i = 0; i < 4; ++i)
        Stroke_Line(device, painter, {corners[i], corners[i + 1]}, way);
}

void Draw_Arc(Device_Context& device, QPainter& painter, const QRectF& box, QPointF from,
              QPointF to) {
    const Ellipse_Shape shape = Shape_In(device, box);
    if (shape.radius_x <= 0 || shape.radius_y <= 0) return;
    const QPointF centre = box.center();
    // A radial at an angle of the circle meets the ellipse at the angle of the point that the same
    // squeeze of both axes would bring there.
    const auto angle = [&](QPointF point) {
        return std::atan2(-(point.y() - centre.y()) / shape.radius_y,
                          (point.x() - centre.x()) / shape.radius_x);
    };
    const double start = angle(from);
    double sweep = std::fmod(angle(to) - start + 2 * Turn, Turn);
    if (sweep < Same_Radial || sweep > Turn - Same_Radial) sweep = Turn;
    Stroke_Curve(device, painter, shape, {start, start + sweep});
}

void Draw_Text(Device_Context& device, QPainter& painter, QPointF at, std::string_view text) {
    // Far outside nothing of it can be seen, and the toolkit's own arithmetic fails.
    const QRectF near = device.area.adjusted(-Safe_Margin, -Safe_Margin, Safe_Margin, Safe_Margin);
    if (text.empty() || !near.contains(at)) return;
    if (device.texts.size() >= Kept_Texts) device.texts.clear();
    const auto [entry, is_new] = device.texts.try_emplace(std::string(text));
    QStaticText& laid_out = entry->second;
    if (is_new) {
        QString characters = To_Qt(text);
        for (QChar& character : characters) {
            if (character.unicode() < 32) character = QLatin1Char(' ');
        }
        laid_out.setTextFormat(Qt::PlainText);
        laid_out.setText(characters);
        laid_out.prepare(QTransform(), painter.font());
    }
    painter.drawStaticText(at, laid_out);
}

}  // namespace platform::desktop
