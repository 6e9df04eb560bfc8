// The drawing calls on an image, where the toolkit's own arithmetic would fail or differ.

#include "platform/drawing.h"

#include <QImage>
#include <climits>
#include <cmath>
#include <gtest/gtest.h>

#include "platform/desktop/drawing/device.h"

using namespace platform;

constexpr QRgb White = 0xFFFFFFFF;
constexpr QRgb Black = 0xFF000000;
constexpr QRgb Blue = 0xFF0000FF;

struct Page {
    QImage image{240, 120, QImage::Format_RGB32};
    Device_Context device;

    explicit Page(Pen_Style style = Pen_Style::Solid, int scale = 1) {
        image.fill(Qt::white);
        device.target = &image;
        device.area = image.rect();
        device.pen_style = style;
        device.pen_scale = device.dash_scale = scale;
        device.fill_colour = {0, 0, 255};
    }

    int Count(const QRect& part, QRgb colour) {
        desktop::Close_Painter(device);
        int count = 0;
        for (int y = part.top(); y <= part.bottom(); ++y) {
            for (int x = part.left(); x <= part.right(); ++x)
                count += image.pixel(x, y) == colour ? 1 : 0;
        }
        return count;
    }

    int Drawn() { return 240 * 120 - Count(image.rect(), White); }
};

constexpr auto Near_Ellipse = [](auto* d) { Ellipse(d, 20, 90, 90, 20); };
constexpr auto Far_Ellipse = [](auto* d) { Ellipse(d, 50, -1000000000, INT_MAX, 1000000000); };
constexpr auto Far_Rectangle = [](auto* d) { Rectangle(d, 50, INT_MIN, INT_MAX, 80); };
constexpr auto Far_Arc = [](auto* d, int from_x, int to_x) {
    Arc(d, -1000000000, 30, 1000000000, INT_MAX, from_x, INT_MAX, to_x, INT_MAX);
};
// In a flat ellipse the radial of 45 degrees meets the outline close to the middle.
constexpr auto Flat_Arc = [](auto* d) { Arc(d, 20, 50, 220, 70, 160, 20, 80, 20); };

constexpr auto Wide_Line = [](auto* d) {
    Set_Pen_Width(d, 3), MoveToEx(d, 20, 60), LineTo(d, 50, 60);
};

constexpr std::tuple<const char*, void (*)(Device_Context*), int, int, QRgb> probes[] = {
    {"outline of a rectangle", [](auto* d) { Rectangle(d, 90, 20, 20, 90); }, 20, 50, Black},
    {"inside", [](auto* d) { Rectangle(d, 90, 90, 20, 20); }, 50, 50, Blue},
    {"inside of an ellipse", Near_Ellipse, 55, 55, Blue},
    {"hollow", [](auto* d) { Set_Fill_Style(d, Fill_Style::Hollow), Near_Ellipse(d); }, 55, 55,
     White},
    {"inside of an arc", [](auto* d) { Arc(d, 20, 20, 90, 90, 200, 55, 100, 55); }, 55, 50, White},
    {"end of a flat arc", Flat_Arc, 114, 50, Black},
    {"before its start", Flat_Arc, 150, 50, White},
    {"last point of a wide line", Wide_Line, 51, 59, Black},
    {"behind it", Wide_Line, 53, 60, White},
    {"diagonal", [](auto* d) { MoveToEx(d, INT_MIN, INT_MIN), LineTo(d, INT_MAX, INT_MAX); }, 70,
     70, Black},
    {"line beside", [](auto* d) { MoveToEx(d, INT_MIN, 200), LineTo(d, 400, INT_MAX); }, 0, 119,
     White},
    {"left edge of a far ellipse", Far_Ellipse, 50, 60, Black},
    {"inside", Far_Ellipse, 60, 60, Blue},
    {"edge of a far rectangle", Far_Rectangle, 50, 60, Black},
    {"inside", Far_Rectangle, 239, 0, Blue},
    {"top of a far arc", [](auto* d) { Far_Arc(d, INT_MAX, INT_MIN); }, 120, 30, Black},
    {"rest of it", [](auto* d) { Far_Arc(d, INT_MIN, INT_MAX); }, 120, 30, White},
    {"flat rectangle", [](auto* d) { Rectangle(d, 50, 10, 50, 90); }, 50, 50, White},
    {"flat ellipse", [](auto* d) { Ellipse(d, 10, 50, 90, 50); }, 50, 50, White},
    {"text", [](auto* d) { TextOutA(d, INT_MAX, INT_MIN, "text"); }, 239, 0, White},
};

TEST(Drawing, A_Figure_Must_Not_Lose_A_Part_Or_Get_Another_Near_Or_Far) {
    for (const auto& [what, draw, x, y, colour] : probes) {
        for (const auto style : {Pen_Style::Solid, Pen_Style::Dashed}) {
            if (style == Pen_Style::Dashed && colour == Black) continue;
            Page page(style);
            Set_Fill_Style(&page.device, Fill_Style::Solid);
            draw(&page.device);
            EXPECT_EQ(page.Count({x, y, 1, 1}, colour), 1) << what;
        }
    }
}

// A circle round 120, 60 whose outline runs through 80, 60 and 120, 20 and so on. East, north, west
// and south of it are seen if the sweep goes there.
TEST(Drawing, An_Arc_Must_Not_Sweep_The_Wrong_Way) {
    const std::tuple<QPoint, QPoint, const char*> cases[] = {
        {QPoint{160, 50}, QPoint{110, 20}, "N"},    {QPoint{110, 20}, QPoint{160, 50}, "EWS"},
        {QPoint{160, 70}, QPoint{110, 100}, "ENW"}, {QPoint{110, 100}, QPoint{160, 70}, "S"},
        {QPoint{123, 0}, QPoint{117, 0}, "N"},      {QPoint{117, 0}, QPoint{123, 0}, "EWS"},
        {QPoint{150, 30}, QPoint{150, 30}, "ENWS"}, {QPoint{150, 30}, QPoint{240, -60}, "ENWS"},
    };
    const QPoint places[] = {{160, 60}, {120, 20}, {80, 60}, {120, 100}};
    for (const auto& [from, to, expected] : cases) {
        Page page;
        Arc(&page.device, 161, 20, 80, 101, from.x(), from.y(), to.x(), to.y());
        std::string seen;
        for (int i = 0; i < 4; ++i)
            if (page.Count({places[i], QSize(1, 1)}, Black) == 1) seen += "ENWS"[i];
        EXPECT_EQ(seen, expected) << from.x() << ' ' << from.y();
    }
}

// Neither a huge outline nor a small one may come out solid or vanish.
TEST(Drawing, A_Dashed_Curve_Must_Not_Become_Solid_Or_Empty) {
    for (const int radius : {8, 30, 100, 100000, 100000000}) {
        Page page(Pen_Style::Dashed);
        Arc(&page.device, 120 - radius, 20, 121 + radius, 21 + 2 * radius, 240, 20, 0, 20);
        const int left = std::max(0, 120 - radius);
        const int right = std::min(239, 120 + radius);
        double drawn = 0;
        for (int x = left; x <= right; ++x)
            drawn += page.Count({x, 0, 1, 120}, White) < 120 ? 1.0 / (right - left + 1) : 0;
        EXPECT_TRUE(1 / 3.0 < drawn && drawn < 4 / 5.0) << radius << ' ' << drawn;
    }
}

TEST(Drawing, Dashes_Must_Not_Start_Anew_At_Each_Short_Line_Of_An_Outline) {
    for (const int scale : {1, 2}) {
        Page page(Pen_Style::Dashed, scale);
        for (int x = 10; x < 210; x += 2)
            MoveToEx(&page.device, x, 20), LineTo(&page.device, x + 2, 20);
        EXPECT_NEAR(page.Drawn(), 200 * 5 / 9.0 * scale, 15);
    }
}

TEST(Drawing, No_Dash_Must_Crawl_With_The_Edge_That_Cuts_A_Line_And_No_Tab_Close_A_Gap) {
    std::array<Page, 2> pages{Page(Pen_Style::Dashed), Page(Pen_Style::Dashed)};
    for (int from = 0; Page & page : pages) {
        MoveToEx(&page.device, from, 20), LineTo(&page.device, 200, 20);
        TextOutA(&page.device, 50, 50, from == 0 ? "a b" : "a\tb");
        EXPECT_GT(page.Drawn(), 90);
        from = -999;
    }
    int differing = 0;  // a pixel at both ends of each dash may
    for (int x = 0; x < 200; ++x)
        differing += pages[0].image.pixel(x, 20) != pages[1].image.pixel(x, 20) ? 1 : 0;
    EXPECT_LE(differing, 60);
    EXPECT_EQ(pages[0].image.copy(0, 30, 240, 90), pages[1].image.copy(0, 30, 240, 90));
}

/// The arc of the ellipse in that box between two angles of the circle.
static void Draw_Arc(Page& page, const QRect& box, double from, double to) {
    const auto far = [&](double t) {
        return box.center() + (1e6 * QPointF(std::cos(t), -std::sin(t))).toPoint();
    };
    Arc(&page.device, box.x(), box.y(), box.x() + box.width(), box.y() + box.height(),
        far(from).x(), far(from).y(), far(to).x(), far(to).y());
}

// Each outline has ends of its own, where some pixels may differ.
TEST(Drawing, Outlines_That_Share_An_Arc_Must_Not_Fill_The_Gaps_Of_Each_Other) {
    for (const int pen_width : {1, 5}) {
        for (const int height : {110, 60}) {
            Page page(Pen_Style::Dashed);
            Set_Pen_Width(&page.device, pen_width);
            Ellipse(&page.device, 60, 5, 171, 5 + height);
            const int drawn = page.Drawn();
            for (int i = 0; i < 10; ++i)
                Draw_Arc(page, {60, 5, 111, height}, 0.628 * i + 0.3, 0.628 * i + 2.3);
            EXPECT_LT(page.Drawn() - drawn, 25 * pen_width) << height;
        }
    }
}

TEST(Drawing, A_Dashed_Figure_Must_Not_Vanish_Because_It_Is_Small) {
    for (int i = 0; i < 40; ++i) {
        Page arc(Pen_Style::Dashed);
        Draw_Arc(arc, QRect(70, 10, 101, 101), 0.157 * i, 0.157 * i + 0.04);
        EXPECT_GT(arc.Drawn(), 0) << i;
        Page line(Pen_Style::Dashed, 2);
        MoveToEx(&line.device, 20, 20), LineTo(&line.device, 20 + i, 20);
        EXPECT_GT(line.Drawn(), 0) << i;
    }
}
