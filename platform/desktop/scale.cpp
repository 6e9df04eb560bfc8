#include "platform/desktop/scale.h"

#include <QGuiApplication>
#include <QScreen>
#include <cmath>

namespace platform::desktop {

namespace {
constexpr double Usual_Dpi = 96.0;
}  // namespace

double Logical_Dpi() {
    const QScreen* screen = QGuiApplication::primaryScreen();
    return screen != nullptr ? screen->logicalDotsPerInchX() : Usual_Dpi;
}

double Device_Ratio() {
    const QScreen* screen = QGuiApplication::primaryScreen();
    return screen != nullptr ? screen->devicePixelRatio() : 1.0;
}

int To_Logical(int twips) {
    return static_cast<int>(std::lround(twips * Logical_Dpi() / Twips_Per_Inch));
}

QRect To_Logical(const Box& box) {
    const QPoint top_left(To_Logical(box.left), To_Logical(box.top));
    const QPoint bottom_right(To_Logical(box.left + box.width), To_Logical(box.top + box.height));
    return {top_left, QSize(bottom_right.x() - top_left.x(), bottom_right.y() - top_left.y())};
}

}  // namespace platform::desktop

namespace platform {

double Twips_To_Pixels_X(double twips) {
    return twips * desktop::Logical_Dpi() * desktop::Device_Ratio() / desktop::Twips_Per_Inch;
}

double Twips_To_Pixels_Y(double twips) {
    return Twips_To_Pixels_X(twips);
}

}  // namespace platform
