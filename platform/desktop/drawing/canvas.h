#pragma once

#include <QImage>
#include <QWidget>

#include "platform/common/live.h"
#include "platform/desktop/drawing/device.h"

namespace platform::desktop {

/// A window's client area: what is drawn on it stays in an image of its size in device pixels, from
/// which it is shown again whenever it is uncovered. The controls are its children.
class Canvas final : public QWidget {
  public:
    Canvas(common::Live_Window& window, QWidget* parent);
    ~Canvas() override;

    /// Makes the image, wiped; until then drawing is lost.
    void Open();

    /// Wipes the picture.
    void Wipe();

    /// Lets the toolkit show what has been drawn since the last time. Called when a handler has
    /// ended, so that the screen never shows half a picture.
    void Show_Drawing();

    Device_Context device;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

  private:
    QSize Device_Size() const;
    void Fit_Image();

    common::Live_Window& live;
    QImage image;
};

}  // namespace platform::desktop
