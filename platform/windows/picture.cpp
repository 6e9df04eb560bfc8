#include <cmath>
#include <numbers>
#include <span>
#include <vector>

#include "platform/windows/canvas.h"

namespace platform::windows {

namespace {

/// It is drawn this many times as large and then shrunk, which makes its edges smooth.
constexpr int Fineness = 4;
constexpr int Width = 320;
constexpr int Height = 240;

struct Spot {
    double x, y;
};

POINT Fine(Spot spot) {
    return {std::lround(spot.x * Fineness), std::lround(spot.y * Fineness)};
}

void Use_Pen(HDC dc, COLORREF colour, double width, DWORD style = PS_SOLID) {
    const LOGBRUSH brush{BS_SOLID, colour, 0};
    const DWORD dashes[] = {5 * Fineness, 3 * Fineness};
    const bool is_dashed = style == PS_USERSTYLE;
    DeleteObject(SelectObject(
        dc, ExtCreatePen(PS_GEOMETRIC | style | (is_dashed ? PS_ENDCAP_FLAT : PS_ENDCAP_ROUND),
                         static_cast<DWORD>(std::lround(width * Fineness)), &brush,
                         is_dashed ? 2 : 0, is_dashed ? dashes : nullptr)));
}

void No_Pen(HDC dc) {
    DeleteObject(SelectObject(dc, GetStockObject(NULL_PEN)));
}

void Use_Brush(HDC dc, COLORREF colour) {
    SelectObject(dc, GetStockObject(DC_BRUSH));
    SetDCBrushColor(dc, colour);
}

void No_Brush(HDC dc) {
    SelectObject(dc, GetStockObject(NULL_BRUSH));
}

void Draw_Line(HDC dc, Spot from, Spot to) {
    const POINT ends[] = {Fine(from), Fine(to)};
    Polyline(dc, ends, 2);
}

void Draw_Polygon(HDC dc, std::span<const Spot> corners) {
    std::vector<POINT> fine;
    for (const Spot corner : corners)
        fine.push_back(Fine(corner));
    Polygon(dc, fine.data(), static_cast<int>(fine.size()));
}

void Draw_Ellipse(HDC dc, Spot middle, double radius_x, double radius_y) {
    const POINT first = Fine({middle.x - radius_x, middle.y - radius_y});
    const POINT last = Fine({middle.x + radius_x, middle.y + radius_y});
    Ellipse(dc, first.x, first.y, last.x, last.y);
}

/// Paper that grows darker downwards, with a grid.
void Draw_Ground(HDC dc) {
    No_Pen(dc);
    for (int y = 0; y < Height; ++y) {
        const RECT row{0, y * Fineness, Width * Fineness, (y + 1) * Fineness};
        Use_Brush(dc, RGB(238 - 33 * y / Height, 243 - 23 * y / Height, 240 - 30 * y / Height));
        FillRect(dc, &row, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
    }
    Use_Pen(dc, RGB(180, 200, 192), 0.6);
    for (double x = 20; x < Width; x += 40)
        Draw_Line(dc, {x, 0}, {x, Height});
    for (double y = 20; y < Height; y += 40)
        Draw_Line(dc, {0, y}, {Width, y});
}

void Draw_Airspace(HDC dc) {
    No_Brush(dc);
    Use_Pen(dc, RGB(127, 133, 211), 1.2, PS_USERSTYLE);
    Draw_Ellipse(dc, {165, 140}, 118, 88);
    Use_Pen(dc, RGB(209, 132, 211), 1.2, PS_USERSTYLE);
    Draw_Ellipse(dc, {165, 140}, 70, 52);
}

void Draw_Taxiways(HDC dc) {
    Use_Pen(dc, RGB(172, 176, 176), 5);
    Draw_Line(dc, {92, 196}, {120, 214});
    Draw_Line(dc, {120, 214}, {262, 132});
    Draw_Line(dc, {262, 132}, {246, 104});
    Draw_Line(dc, {168, 186}, {150, 156});
    No_Pen(dc);
    Use_Brush(dc, RGB(128, 64, 64));
    for (int i = 0; i < 5; ++i)
        Draw_Ellipse(dc, {186.0 + i * 13, 190 - i * 7.5}, 3, 3);
}

/// Places along a runway and to its right, from its middle.
struct Runway {
    Spot middle;
    double degrees;

    Spot At(double along, double right) const {
        const double angle = degrees * std::numbers::pi / 180;
        return {middle.x + along * std::cos(angle) - right * std::sin(angle),
                middle.y + along * std::sin(angle) + right * std::cos(angle)};
    }
};

void Draw_Runway(HDC dc, const Runway& runway, double length) {
    const double end = length / 2;
    Use_Pen(dc, RGB(214, 190, 60), 1.2);
    Use_Brush(dc, RGB(237, 234, 186));
    const Spot beam[] = {runway.At(end, 0), runway.At(end + 90, -8), runway.At(end + 90, 8)};
    Draw_Polygon(dc, beam);
    No_Pen(dc);
    Use_Brush(dc, RGB(72, 78, 84));
    const Spot surface[] = {runway.At(-end, -7), runway.At(end, -7), runway.At(end, 7),
                            runway.At(-end, 7)};
    Draw_Polygon(dc, surface);
    Use_Pen(dc, RGB(255, 255, 255), 1.2);
    for (double x = 22 - end; x < end - 24; x += 13)
        Draw_Line(dc, runway.At(x, 0), runway.At(x + 7, 0));
    for (const double right : {-4.5, -1.5, 1.5, 4.5}) {
        Draw_Line(dc, runway.At(4 - end, right), runway.At(14 - end, right));
        Draw_Line(dc, runway.At(end - 14, right), runway.At(end - 4, right));
    }
}

void Draw_Compass(HDC dc, Spot middle) {
    Use_Pen(dc, RGB(60, 90, 80), 1);
    Use_Brush(dc, RGB(240, 246, 243));
    Draw_Ellipse(dc, middle, 19, 19);
    for (int i = 0; i < 12; ++i) {
        const Runway radial{middle, i * 30.0};
        Draw_Line(dc, radial.At(19, 0), radial.At(i % 3 == 0 ? 14 : 16.5, 0));
    }
    No_Pen(dc);
    for (const double way : {-1.0, 1.0}) {
        Use_Brush(dc, way < 0 ? RGB(0, 140, 0) : RGB(150, 160, 156));
        const Spot needle[] = {
            {middle.x, middle.y + 13 * way}, {middle.x + 4, middle.y}, {middle.x - 4, middle.y}};
        Draw_Polygon(dc, needle);
    }
}

void Draw_All(HDC dc) {
    Draw_Ground(dc);
    Draw_Airspace(dc);
    Draw_Taxiways(dc);
    Draw_Runway(dc, {{170, 150}, -30}, 190);
    Draw_Runway(dc, {{120, 140}, 62}, 120);
    Draw_Compass(dc, {290, 208});
    Use_Pen(dc, RGB(90, 110, 100), 2);
    No_Brush(dc);
    Rectangle(dc, Fineness, Fineness, (Width - 1) * Fineness, (Height - 1) * Fineness);
    No_Pen(dc);
}

}  // namespace

void Draw_Picture(HDC dc, const RECT& place) {
    const HDC fine = CreateCompatibleDC(dc);
    const HBITMAP bitmap = CreateCompatibleBitmap(dc, Width * Fineness, Height * Fineness);
    const HGDIOBJ old = SelectObject(fine, bitmap);
    Draw_All(fine);
    SetStretchBltMode(dc, HALFTONE);
    SetBrushOrgEx(dc, 0, 0, nullptr);
    StretchBlt(dc, place.left, place.top, place.right - place.left, place.bottom - place.top, fine,
               0, 0, Width * Fineness, Height * Fineness, SRCCOPY);
    SelectObject(fine, old);
    DeleteObject(bitmap);
    DeleteDC(fine);
}

}  // namespace platform::windows
