#include "platform/desktop/drawing/text.h"

#include <QFontDatabase>
#include <QFontMetrics>
#include <array>
#include <cmath>

#include "platform/code_page.h"
#include "platform/desktop/scale.h"

namespace platform::desktop {

namespace {

constexpr double Default_Points = 8.25;

/// Narrowest stretch, in per cent, that is still read with ease.
constexpr int Least_Stretch = 80;

int Pixel_Size(double points) {
    return static_cast<int>(std::lround(points * Logical_Dpi() / Points_Per_Inch));
}

/// Width of the small letters in sizes of the font that the measures were made for; a wider face is
/// made smaller.
constexpr double Widest_Alphabet = 13.4;

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

QString To_Qt(std::string_view text) {
    return QString::fromStdString(To_Utf8(text));
}

std::optional<std::string> From_Qt(const QString& text) {
    return From_Utf8(text.toStdString());
}

std::string From_Qt_Lossy(const QString& text) {
    return From_Utf8_Lossy(text.toStdString());
}

QString Caption_To_Qt(std::string_view caption) {
    return To_Qt(caption).replace(QLatin1Char('&'), QLatin1String("&&"));
}

QFont Default_Font() {
    static const QString family = Default_Family();
    const QString alphabet = QStringLiteral("abcdefghijklmnopqrstuvwxyz");
    QFont font(family);
    font.setStyleHint(QFont::SansSerif);
    int size = Pixel_Size(Default_Points);
    const double widest = Widest_Alphabet * size;
    do {
        font.setPixelSize(size--);
    } while (QFontMetrics(font).horizontalAdvance(alphabet) > widest && size > 1);
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
        // A letter may reach a little past its advance.
        const QFontMetrics metrics(font);
        if (metrics.horizontalAdvance(text) < width &&
            metrics.boundingRect(text).width() <= width) {
            break;
        }
    }
    if (font != widget.font()) widget.setFont(font);
}

}  // namespace platform::desktop
