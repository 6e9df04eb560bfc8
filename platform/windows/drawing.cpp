#include "platform/drawing.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "platform/common/ellipse.h"
#include "platform/windows/device.h"
#include "platform/windows/live.h"
#include "platform/windows/text.h"

namespace platform {

namespace {

using common::Ellipse_Shape;
using common::Turn;

/// A dash and the gap behind it, in 32nds of an inch; short enough to show on short lines too.
constexpr DWORD Dash = 2;
constexpr DWORD Gap = 1;

/// A limit far above any use.
constexpr int Widest_Pen = 256;

/// Farther out the system's own arithmetic fails; nothing of such a figure can be told from
/// nothing at all.
constexpr int Farthest = 1 << 26;

/// The system counts the lengths of this pen by painted pixels, in steps of three.
constexpr int Thin_Step = 3;

bool Is_Thin(const Device_Context& device) {
    return device.pen_width <= 1 && !device.is_page;
}

/// Only a pen that is not thin and solid needs an object of its own.
void Set_Pen(Device_Context& device) {
    const COLORREF colour = windows::Native_Colour(device.pen_colour);
    const auto width = static_cast<DWORD>(std::clamp(device.pen_width, 1, Widest_Pen));
    windows::Release_Pen(device);
    if (device.pen_style == Pen_Style::Solid && width == 1) {
        SetDCPenColor(device.dc, colour);
        return;
    }
    const LOGBRUSH brush{BS_SOLID, colour, 0};
    if (device.pen_style == Pen_Style::Solid) {
        device.pen = ExtCreatePen(PS_GEOMETRIC | PS_SOLID | PS_ENDCAP_ROUND | PS_JOIN_ROUND, width,
                                  &brush, 0, nullptr);
    } else {
        // The thin one is the faster by far, and its dashes run on from line to line.
        const bool is_thin = Is_Thin(device);
        const DWORD dots = is_thin ? 1U : static_cast<DWORD>(device.dots_per_inch / 32);
        const DWORD lengths[] = {Dash * dots, Gap * dots};
        const DWORD style =
            is_thin ? PS_COSMETIC | PS_USERSTYLE : PS_GEOMETRIC | PS_USERSTYLE | PS_ENDCAP_FLAT;
        device.pen = ExtCreatePen(style, width, &brush, 2, lengths);
    }
    SelectObject(device.dc, device.pen);
}

/// The native context with the device's state, ready to draw; null if nothing can be drawn.
HDC Ready(Device_Context* device) {
    if (device == nullptr || device->dc == nullptr) return nullptr;
    device->has_changed = true;
    if (device->state_is_set) return device->dc;
    Set_Pen(*device);
    const bool is_hollow = device->fill_style == Fill_Style::Hollow;
    SelectObject(device->dc, GetStockObject(is_hollow ? NULL_BRUSH : DC_BRUSH));
    SetDCBrushColor(device->dc, windows::Native_Colour(device->fill_colour));
    SetTextColor(device->dc, windows::Native_Colour(device->pen_colour));
    ::MoveToEx(device->dc, device->position.x, device->position.y, nullptr);
    device->state_is_set = true;
    return device->dc;
}

template <typename Value>
void Set(Device_Context* device, Value Device_Context::*item, Value value) {
    if (device == nullptr || device->*item == value) return;
    device->*item = value;
    device->state_is_set = false;
}

bool Is_Far(int place) {
    return place < -Farthest || place > Farthest;
}

/// The corners in order; nothing if the figure lies too far out.
struct Corners {
    int left, top, right, bottom;
    bool are_near;
};

Corners Sorted(int left, int top, int right, int bottom) {
    const auto [first_x, last_x] = std::minmax(left, right);
    const auto [first_y, last_y] = std::minmax(top, bottom);
    const bool is_far = Is_Far(left) || Is_Far(top) || Is_Far(right) || Is_Far(bottom);
    return {first_x, first_y, last_x, last_y, !is_far};
}

/// Whether the outline of an ellipse, or its inside too, comes into sight. The system walks along
/// the whole of it, however long it is.
bool Is_In_Sight(HDC dc, const Corners& box, bool is_solid) {
    RECT seen;
    GetClipBox(dc, &seen);
    InflateRect(&seen, Widest_Pen, Widest_Pen);
    const double x = (box.left + box.right) / 2.0, y = (box.top + box.bottom) / 2.0;
    const double wide = std::max(box.right - x, 1.0), high = std::max(box.bottom - y, 1.0);
    // The nearest and the farthest of what is seen from the middle, in radii.
    const double near_x = (std::clamp<double>(x, seen.left, seen.right) - x) / wide;
    const double near_y = (std::clamp<double>(y, seen.top, seen.bottom) - y) / high;
    const double far_x = std::max(x - seen.left, seen.right - x) / wide;
    const double far_y = std::max(y - seen.top, seen.bottom - y) / high;
    return near_x * near_x + near_y * near_y <= 1 &&
           (is_solid || far_x * far_x + far_y * far_y >= 1);
}

/// The end of a line, drawn towards the other one until it is near enough.
POINT Near_End(POINT end, POINT other) {
    const double x = end.x, y = end.y, dx = other.x - x, dy = other.y - y;
    double part = 0;  // of the line that is left out
    if (Is_Far(end.x)) part = (std::clamp<double>(x, -Farthest, Farthest) - x) / dx;
    if (Is_Far(end.y)) {
        part = std::max(part, (std::clamp<double>(y, -Farthest, Farthest) - y) / dy);
    }
    return {static_cast<LONG>(x + part * dx), static_cast<LONG>(y + part * dy)};
}

void Far_Line(HDC dc, POINT from, POINT to) {
    const POINT start = Near_End(from, to);
    const POINT end = Near_End(to, from);
    if (Is_Far(start.x) || Is_Far(start.y) || Is_Far(end.x) || Is_Far(end.y)) return;
    ::MoveToEx(dc, start.x, start.y, nullptr);
    ::LineTo(dc, end.x, end.y);
    ::MoveToEx(dc, to.x, to.y, nullptr);
}

/// Whether two points lie on the same radial.
bool Same_Radial(double x1, double y1, double x2, double y2) {
    return x1 * y2 == y1 * x2 && x1 * x2 + y1 * y2 >= 0;
}

POINT Pixel_At(const Ellipse_Shape& shape, double angle) {
    return {std::lround(shape.x - 0.5 + (shape.radius_x - 0.5) * std::cos(angle)),
            std::lround(shape.y - 0.5 - (shape.radius_y - 0.5) * std::sin(angle))};
}

/// A part of the outline too short to be bent.
void Chord(HDC dc, const Ellipse_Shape& shape, double from, double to) {
    const POINT start = Pixel_At(shape, from), end = Pixel_At(shape, to);
    ::MoveToEx(dc, start.x, start.y, nullptr);
    ::LineTo(dc, end.x, end.y);
}

/// The system counts the dashes of each arc from its start. They are those of the whole ellipse
/// here, so that outlines that share an arc do not fill each other's gaps: the arc begins with the
/// next dash, behind what is left of the one before.
void Dashed_Arc(HDC dc, const Corners& box, const Ellipse_Shape& shape, double from, double to) {
    if (to > Turn) {
        Dashed_Arc(dc, box, shape, 0, to - Turn);
        to = Turn;
    }
    constexpr double Dash_Pixels = Dash * Thin_Step, Gap_Pixels = Gap * Thin_Step;
    constexpr double Period = Dash_Pixels + Gap_Pixels;
    const double left = Period - std::fmod(shape.Painted_Way_To(from), Period);
    const double per_pixel = 1 / std::max(shape.radius_x * std::abs(std::sin(from)),
                                          shape.radius_y * std::abs(std::cos(from)));
    const double dash_end = from + (left - Gap_Pixels) * per_pixel;
    double next = from + left * per_pixel;
    if (next + Dash_Pixels * per_pixel > to) {
        if (to - from < Turn / 2) return Chord(dc, shape, from, to);
        next = from;
    } else if (dash_end > from) {
        Chord(dc, shape, from, dash_end);
    }
    const POINT start = Pixel_At(shape, next), end = Pixel_At(shape, to);
    ::Arc(dc, box.left, box.top, box.right, box.bottom, start.x, start.y, end.x, end.y);
}

}  // namespace

COLORREF windows::Native_Colour(Colour colour) {
    return RGB(colour.red, colour.green, colour.blue);
}

void windows::Release_Pen(Device_Context& device) {
    SelectObject(device.dc, GetStockObject(DC_PEN));
    if (device.pen != nullptr) DeleteObject(device.pen);
    device.pen = nullptr;
    device.state_is_set = false;
}

Device_Context* Window_Device(const Window& window) {
    windows::Live_Window* live = windows::Find_Window(window);
    return live != nullptr ? &live->device : nullptr;
}

void Set_Pen_Colour(Device_Context* device, Colour colour) {
    Set(device, &Device_Context::pen_colour, colour);
}

void Set_Pen_Width(Device_Context* device, int width) {
    Set(device, &Device_Context::pen_width, width);
}

void Set_Pen_Style(Device_Context* device, Pen_Style style) {
    Set(device, &Device_Context::pen_style, style);
}

void Set_Fill_Colour(Device_Context* device, Colour colour) {
    Set(device, &Device_Context::fill_colour, colour);
}

void Set_Fill_Style(Device_Context* device, Fill_Style style) {
    Set(device, &Device_Context::fill_style, style);
}

// A move to where the pen stands is no break: the dashes run on.
void MoveToEx(Device_Context* device, int x, int y) {
    if (device == nullptr || (device->position.x == x && device->position.y == y)) return;
    device->position = {x, y};
    if (device->dc != nullptr) ::MoveToEx(device->dc, x, y, nullptr);
}

void LineTo(Device_Context* device, int x, int y) {
    if (device == nullptr) return;
    const POINT from = device->position;
    if (const HDC dc = Ready(device)) {
        if (Is_Far(x) || Is_Far(y) || Is_Far(from.x) || Is_Far(from.y)) {
            Far_Line(dc, from, {x, y});
        } else {
            ::LineTo(dc, x, y);
        }
    }
    device->position = {x, y};
}

void Ellipse(Device_Context* device, int left, int top, int right, int bottom) {
    const Corners box = Sorted(left, top, right, bottom);
    const HDC dc = Ready(device);
    if (dc == nullptr || !box.are_near) return;
    const bool is_hollow = device->fill_style == Fill_Style::Hollow;
    if (!Is_In_Sight(dc, box, !is_hollow)) return;
    if (is_hollow && device->pen_style == Pen_Style::Dashed && Is_Thin(*device)) {
        const int middle = (top + bottom) / 2;
        return Arc(device, left, top, right, bottom, box.right, middle, box.right, middle);
    }
    ::Ellipse(dc, box.left, box.top, box.right, box.bottom);
}

void Rectangle(Device_Context* device, int left, int top, int right, int bottom) {
    const Corners box = Sorted(left, top, right, bottom);
    const HDC dc = Ready(device);
    if (dc != nullptr && box.are_near) ::Rectangle(dc, box.left, box.top, box.right, box.bottom);
}

void Arc(Device_Context* device, int left, int top, int right, int bottom, int x1, int y1, int x2,
         int y2) {
    const Corners box = Sorted(left, top, right, bottom);
    const HDC dc = Ready(device);
    if (dc == nullptr || !box.are_near || !Is_In_Sight(dc, box, false)) return;
    const double x = (box.left + box.right) / 2.0, y = (box.top + box.bottom) / 2.0;
    // The system takes equal points for a whole ellipse, and other points of one radial for
    // nothing.
    if (Same_Radial(x1 - x, y1 - y, x2 - x, y2 - y)) {
        x2 = x1;
        y2 = y1;
    }
    const Ellipse_Shape shape{x, y, box.right - x, box.bottom - y};
    const bool is_dashed = device->pen_style == Pen_Style::Dashed && Is_Thin(*device);
    if (!is_dashed || shape.radius_x == 0 || shape.radius_y == 0) {
        ::Arc(dc, box.left, box.top, box.right, box.bottom, x1, y1, x2, y2);
        return;
    }
    const double from = shape.Angle_Of(x1, y1), to = shape.Angle_Of(x2, y2);
    Dashed_Arc(dc, box, shape, from, to > from ? to : to + Turn);
    ::MoveToEx(dc, device->position.x, device->position.y, nullptr);
}

void TextOutA(Device_Context* device, int x, int y, std::string_view text) {
    const HDC dc = Ready(device);
    if (dc == nullptr || Is_Far(x) || Is_Far(y)) return;
    std::wstring wide = windows::To_Wide(text);
    for (wchar_t& character : wide) {
        if (character < L' ') character = L' ';
    }
    ::TextOutW(dc, x, y, wide.data(), static_cast<int>(wide.size()));
}

}  // namespace platform
