#include "platform/desktop/picture.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>

namespace platform::desktop {

namespace {

constexpr double Width = 320;
constexpr double Height = 240;

void Draw_Ground(QPainter& painter) {
    QLinearGradient paper(0, 0, 0, Height);
    paper.setColorAt(0, QColor(238, 243, 240));
    paper.setColorAt(1, QColor(205, 220, 210));
    painter.fillRect(QRectF(0, 0, Width, Height), paper);
    painter.setPen(QPen(QColor(180, 200, 192), 0.6));
    for (int x = 20; x < Width; x += 40)
        painter.drawLine(x, 0, x, static_cast<int>(Height));
    for (int y = 20; y < Height; y += 40)
        painter.drawLine(0, y, static_cast<int>(Width), y);
}

/// Rings of the airspace and a beam of the landing system.
void Draw_Airspace(QPainter& painter) {
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(QColor(0, 0, 192, 110), 1.2, Qt::DashLine));
    painter.drawEllipse(QPointF(165, 140), 118, 88);
    painter.setPen(QPen(QColor(192, 0, 192, 110), 1.2, Qt::DashLine));
    painter.drawEllipse(QPointF(165, 140), 70, 52);
}

void Draw_Runway(QPainter& painter, QPointF middle, double degrees, double length) {
    painter.save();
    painter.translate(middle);
    painter.rotate(degrees);
    painter.setPen(QPen(QColor(214, 190, 60), 1.2));
    painter.setBrush(QColor(255, 240, 150, 120));
    const QPointF beam[] = {{length / 2, 0}, {length / 2 + 90, -8}, {length / 2 + 90, 8}};
    painter.drawPolygon(beam, 3);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(72, 78, 84));
    painter.drawRect(QRectF(-length / 2, -7, length, 14));
    painter.setPen(QPen(Qt::white, 1.2));
    for (double x = -length / 2 + 22; x < length / 2 - 24; x += 13) {
        painter.drawLine(QPointF(x, 0), QPointF(x + 7, 0));
    }
    for (const double y : {-4.5, -1.5, 1.5, 4.5}) {
        painter.drawLine(QPointF(-length / 2 + 4, y), QPointF(-length / 2 + 14, y));
        painter.drawLine(QPointF(length / 2 - 14, y), QPointF(length / 2 - 4, y));
    }
    painter.restore();
}

void Draw_Taxiways(QPainter& painter) {
    QPainterPath way(QPointF(92, 196));
    way.lineTo(120, 214);
    way.lineTo(262, 132);
    way.lineTo(246, 104);
    way.moveTo(168, 186);
    way.lineTo(150, 156);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(QColor(172, 176, 176), 5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(way);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(128, 64, 64));
    for (int i = 0; i < 5; ++i)
        painter.drawEllipse(QPointF(186 + i * 13, 190 - i * 7.5), 3, 3);
}

void Draw_Compass(QPainter& painter, QPointF middle) {
    painter.save();
    painter.translate(middle);
    painter.setPen(QPen(QColor(60, 90, 80), 1));
    painter.setBrush(QColor(255, 255, 255, 170));
    painter.drawEllipse(QPointF(0, 0), 19, 19);
    for (int i = 0; i < 12; ++i) {
        painter.drawLine(QPointF(0, -19), QPointF(0, i % 3 == 0 ? -14 : -16.5));
        painter.rotate(30);
    }
    painter.setPen(Qt::NoPen);
    const QPointF north[] = {{0, -13}, {4, 0}, {-4, 0}};
    const QPointF south[] = {{0, 13}, {4, 0}, {-4, 0}};
    painter.setBrush(QColor(0, 140, 0));
    painter.drawPolygon(north, 3);
    painter.setBrush(QColor(150, 160, 156));
    painter.drawPolygon(south, 3);
    painter.restore();
}

}  // namespace

void Picture::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(width() / Width, height() / Height);
    Draw_Ground(painter);
    Draw_Airspace(painter);
    Draw_Taxiways(painter);
    Draw_Runway(painter, QPointF(170, 150), -30, 190);
    Draw_Runway(painter, QPointF(120, 140), 62, 120);
    Draw_Compass(painter, QPointF(290, 208));
    painter.setPen(QPen(QColor(90, 110, 100), 2));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(QRectF(1, 1, Width - 2, Height - 2));
}

}  // namespace platform::desktop
