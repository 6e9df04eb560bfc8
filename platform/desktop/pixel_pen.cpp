#include "platform/desktop/pixel_pen.h"

#include <QImage>
#include <algorithm>
#include <cmath>
#include <cstdint>

namespace platform::desktop {

namespace {

/// Places across a piece are kept in whole parts of a pixel, so many to one.
constexpr int Part_Bits = 32;
constexpr double Parts = 1LL << Part_Bits;

/// The ends of a dash lie along the rows or columns, which shows on a wider pen; part of a dash.
constexpr double Widest = 0.25;

struct Axis {
    std::ptrdiff_t bytes = 0;  ///< from a pixel to the next
    int size = 0;
};

/// Pixels along the axis that a piece follows more than the other.
struct Pixels {
    int first = 0;
    int direction = 1;
    int count = 0;
};

/// Where a pen is, pixel after pixel: across the axis, and in the period of the dashes.
struct Course {
    std::int64_t across = 0;  ///< the first of its pixels there
    std::int64_t across_step = 0;
    int across_count = 1;
    double place = 0;
    double place_step = 0;
};

/// The pixels whose middles a piece passes; a middle at its end belongs to the next piece.
Pixels Passed(double from, double to, bool has_turned) {
    Pixels pixels;
    int end = 0;
    if (to >= from) {
        pixels.first = static_cast<int>(std::ceil(from - 0.5));
        end = static_cast<int>(std::ceil(to - 0.5));
    } else {
        pixels.direction = -1;
        pixels.first = static_cast<int>(std::floor(from - 0.5));
        end = static_cast<int>(std::floor(to - 0.5));
    }
    // Where the last piece followed the other axis, neither may pass this pixel's middle.
    if (has_turned) pixels.first = static_cast<int>(std::floor(from));
    pixels.count = (end - pixels.first) * pixels.direction;
    return pixels;
}

void Cut(Pixels& pixels, int size) {
    const bool rises = pixels.direction > 0;
    const int outside = std::max(0, rises ? -pixels.first : pixels.first - (size - 1));
    pixels.first += outside * pixels.direction;
    pixels.count -= outside;
    pixels.count = std::min(pixels.count, rises ? size - pixels.first : pixels.first + 1);
}

/// Paints the pen's pixels across the axis.
void Put(const Pixel_Pen& pen, unsigned char* row, Axis across, const Course& course) {
    const auto at = static_cast<int>(course.across >> Part_Bits);
    const int end = std::min(at + course.across_count, across.size);
    for (int i = std::max(at, 0); i < end; ++i)
        *reinterpret_cast<QRgb*>(row + i * across.bytes) = pen.colour;
}

void Paint(const Pixel_Pen& pen, const Pixels& pixels, Axis along, Axis across, Course course) {
    unsigned char* row = pen.pixels + pixels.first * along.bytes;
    for (int i = 0; i < pixels.count; ++i) {
        if (course.place < pen.pattern.dash) Put(pen, row, across, course);
        row += along.bytes * pixels.direction;
        course.across += course.across_step;
        course.place += course.place_step;
        if (course.place >= pen.pattern.period) course.place -= pen.pattern.period;
    }
}

}  // namespace

std::optional<Pixel_Pen> Take_Pixel_Pen(const Device_Context& device, const Dash_Pattern& pattern) {
    if (device.target->devType() != QInternal::Image ||
        Pen_Pixels(device) > Widest * pattern.dash) {
        return std::nullopt;
    }
    auto* const image = static_cast<QImage*>(device.target);
    if (image->format() != QImage::Format_RGB32) return std::nullopt;
    Pixel_Pen pen;
    pen.pixels = image->bits();
    pen.bytes_in_row = image->bytesPerLine();
    pen.columns = image->width();
    pen.rows = image->height();
    pen.width = Pen_Pixels(device);
    pen.colour = qRgb(device.pen_colour.red, device.pen_colour.green, device.pen_colour.blue);
    pen.pattern = pattern;
    return pen;
}

void Draw_Dashes(Pixel_Pen& pen, const Way_Point& from, const Way_Point& to) {
    const QPointF step = to.at - from.at;
    const bool steep = std::abs(step.y()) > std::abs(step.x());
    const double length = std::abs(steep ? step.y() : step.x());
    if (!(length > 0)) return;
    const bool has_turned = pen.was_steep.value_or(steep) != steep;
    pen.was_steep = steep;

    const Axis x{sizeof(QRgb), pen.columns};
    const Axis y{pen.bytes_in_row, pen.rows};
    const double start = steep ? from.at.y() : from.at.x();
    Pixels pixels = Passed(start, steep ? to.at.y() : to.at.x(), has_turned);
    Cut(pixels, steep ? y.size : x.size);
    if (pixels.count <= 0) return;

    const double passed = (pixels.first + 0.5 - start) * pixels.direction;
    const double slope = (steep ? step.x() : step.y()) / length;
    const double across = (steep ? from.at.x() : from.at.y()) + passed * slope;
    Course course;
    course.across_count =
        std::max(1, static_cast<int>(std::lround(pen.width * std::hypot(1, slope))));
    const double first = across - 0.5 * (course.across_count - 1);
    course.across = static_cast<std::int64_t>(std::floor(first * Parts));
    course.across_step = static_cast<std::int64_t>(slope * Parts);
    course.place_step = (to.way - from.way) / length;
    course.place = Place_In_Period(pen.pattern, from.way + passed * course.place_step);
    Paint(pen, pixels, steep ? y : x, steep ? x : y, course);
}

}  // namespace platform::desktop
