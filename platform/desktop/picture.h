#pragma once

#include <QWidget>

namespace platform::desktop {

/// The program's picture: an airport chart with two runways, in 320 by 240 units.
class Picture final : public QWidget {
  public:
    using QWidget::QWidget;

  protected:
    void paintEvent(QPaintEvent* event) override;
};

}  // namespace platform::desktop
