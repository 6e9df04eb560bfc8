#pragma once

#include <QRgb>
#include <cstddef>
#include <optional>

#include "platform/desktop/dashes.h"
#include "platform/desktop/device.h"

/// Dashed lines of a narrow pen, put straight into an image. The toolkit takes more time to
/// start a dash than to paint it, and a chart has some hundred thousand of them.
namespace platform::desktop {

struct Pixel_Pen {
    unsigned char* pixels = nullptr;
    std::ptrdiff_t bytes_in_row = 0;
    int columns = 0;
    int rows = 0;
    double width = 1;
    QRgb colour = 0;
    Dash_Pattern pattern;
    std::optional<bool> was_steep;  ///< of the figure's last piece; nothing ahead of the first
};

/// Nothing if the device's target is no image or its pen is wide for such dashes. Good for one
/// figure, with the painter open: until it is closed the image keeps its place in memory.
std::optional<Pixel_Pen> Take_Pixel_Pen(const Device_Context& device, const Dash_Pattern& pattern);

/// Paints the dashes of the piece between two points, the first of which ended the figure's last
/// piece. They lie within ten thousand pixels of the image; the image cuts the piece off.
void Draw_Dashes(Pixel_Pen& pen, const Way_Point& from, const Way_Point& to);

}  // namespace platform::desktop
