#pragma once

#include <QMarginsF>
#include <QPageLayout>
#include <QSizeF>
#include <optional>

/// The sheet of paper that a page is printed on.
namespace platform::desktop {

/// Dots to the inch where nothing better is known; finer ones only make the work of a print longer.
inline constexpr int Usual_Resolution = 600;

struct Sheet {
    QPageLayout layout;  ///< with the margins that cannot be printed
    int resolution = Usual_Resolution;
};

/// A sheet of these measures in millimetres, at the usual resolution. Nothing if it cannot be one
/// of paper: no side may be below 1 cm or above 5 m, and something has to be left between margins.
std::optional<Sheet> Make_Sheet(QSizeF size, QMarginsF margins);

/// The sheet that is usual where the user lives, A4 or Letter, with small margins.
Sheet Usual_Sheet();

}  // namespace platform::desktop
