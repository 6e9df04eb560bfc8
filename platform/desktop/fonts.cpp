#include "platform/desktop/fonts.h"

#include <QFontDatabase>
#include <QFontMetrics>
#include <array>
#include <cmath>

#include "platform/desktop/scale.h"
#include "platform/desktop/text.h"

namespace platform::desktop {

namespace {

constexpr double Points_To_Inch = 72.0;
constexpr double Default_Points = 8.25;

/// Narrowest stretch, in per cent, that is still read with ease.
constexpr int Least_Stretch = 80;

int Pixel_Size(double points) {
    return static_cast<int>(std::lround(points * Logical_Dpi() / Points_To_Inch));
}

/// Faces as narrow as the one that the measures were made for, best first.
QString Default_Family() {
    constexpr std::array Families{
        "MS Sans Serif", "Microsoft Sans Serif", "Liberation Sans", "Arimo",
        "Arial",         "Nimbus Sans",          "Helvetica",       "DejaVu Sans Condensed"};
    for (const char* family : Families) {
        if (QFontDatabase::hasFamily(QLatin1String(family))) return QLatin1String(family);
    }
    return QFontDatabase::systemFont(QFontDatabase::GeneralFont).family();
}

}  // namespace

QFont Default_Font() {
    static const QString family = Default_Family();
    QFont font(family);
    font.setStyleHint(QFont::SansSerif);
    font.setPixelSize(Pixel_Size(Default_Points));
    return font;
}

QFont Control_Font(const Font& font) {
    QFont result = Default_Font();
    const QString name = To_Qt(font.name);
    if (!name.isEmpty() && QFontDatabase::hasFamily(name)) result.setFamily(name);
    if (font.size > 0) result.setPixelSize(Pixel_Size(font.size));
    result.setBold(font.bold);
    return result;
}

void Condense_To_Fit(QWidget& widget, const QString& text, int width) {
    QFont font = widget.font();
    for (int stretch = 100; stretch >= Least_Stretch; --stretch) {
        font.setStretch(stretch);
        if (QFontMetrics(font).horizontalAdvance(text) <= width) break;
    }
    if (font != widget.font()) widget.setFont(font);
}

}  // namespace platform::desktop
