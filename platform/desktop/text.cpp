#include "platform/desktop/text.h"

#include "platform/code_page.h"

namespace platform::desktop {

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

}  // namespace platform::desktop
