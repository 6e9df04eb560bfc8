#include "platform/desktop/program_icon.h"

#include <QPainter>
#include <QPixmap>

namespace platform::desktop {

namespace {

QPixmap Icon_Of(int size) {
    QPixmap pixmap(size, size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    // Drawn in a square from -16 to 16.
    painter.translate(size / 2.0, size / 2.0);
    painter.scale(size / 32.0, size / 32.0);
    painter.setPen(QPen(QColor(0, 128, 0), 2));
    painter.setBrush(QColor(250, 250, 245));
    painter.drawEllipse(QPointF(0, 0), 14.5, 14.5);
    painter.rotate(40);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(70, 75, 80));
    painter.drawRect(QRectF(-4, -12, 8, 24));
    painter.setPen(QPen(Qt::white, 1.5, Qt::CustomDashLine, Qt::FlatCap));
    for (int y = -10; y < 10; y += 6)
        painter.drawLine(QPointF(0, y), QPointF(0, y + 3));
    return pixmap;
}

}  // namespace

QIcon Program_Icon() {
    QIcon icon;
    for (const int size : {16, 24, 32, 48, 64})
        icon.addPixmap(Icon_Of(size));
    return icon;
}

}  // namespace platform::desktop
