#include "platform/desktop/sheet.h"

#include <QPageSize>
#include <algorithm>
#include <cstdint>
#include <langinfo.h>

namespace platform::desktop {

namespace {

/// Least and greatest length of a side, and the margin of the usual sheet; millimetres.
constexpr double Shortest = 10;
constexpr double Longest = 5000;
constexpr double Small_Margin = 5;

bool Is_Paper(QSizeF size, QMarginsF margins) {
    const auto [least, greatest] = std::minmax({size.width(), size.height()});
    const double least_margin =
        std::min({margins.left(), margins.top(), margins.right(), margins.bottom()});
    return least >= Shortest && greatest <= Longest && least_margin >= 0 &&
           margins.left() + margins.right() < size.width() &&
           margins.top() + margins.bottom() < size.height();
}

Sheet Sheet_Of(const QPageSize& size, QMarginsF margins) {
    return {QPageLayout(size, QPageLayout::Portrait, margins, QPageLayout::Millimeter)};
}

/// Millimetres across the paper of the user's locale. The C library gives the number itself in the
/// place of a text's address.
int Paper_Width() {
    return static_cast<int>(reinterpret_cast<std::intptr_t>(nl_langinfo(_NL_PAPER_WIDTH)));
}

}  // namespace

std::optional<Sheet> Make_Sheet(QSizeF size, QMarginsF margins) {
    if (!Is_Paper(size, margins)) return std::nullopt;
    return Sheet_Of(QPageSize(size, QPageSize::Millimeter), margins);
}

Sheet Usual_Sheet() {
    constexpr int Letter_Width = 216;
    const bool letter = Paper_Width() == Letter_Width;
    return Sheet_Of(QPageSize(letter ? QPageSize::Letter : QPageSize::A4),
                    {Small_Margin, Small_Margin, Small_Margin, Small_Margin});
}

}  // namespace platform::desktop
