// The drawing calls on an image, where the toolkit's own arithmetic would fail or differ.

#include "platform/drawing.h"

#include <QImage>
#include <climits>
#include <gtest/gtest.h>

#include "platform/desktop/device.h"

namespace platform {

namespace {

constexpr QRgb White = 0xFFFFFFFF;
constexpr QRgb Black = 0xFF000000;
constexpr QRgb Blue = 0xFF0000FF;

struct Page {
    QImage image{240, 120, QImage::Format_RGB32};
    Device_Context device;

    Page() {
        image.fill(Qt::white);
        device.target = &image;
        device.area = image.rect();
        device.fill_colour = {0, 0, 255};
    }

    QRgb At(int x, int y) {
        desktop::Close_Painter(device);
        return image.pixel(x, y);
    }
};

struct Probe {
    const char* what;
    void (*draw)(Device_Context* device);
    int x, y;
    QRgb colour;
};

constexpr Probe far_probes[] = {
    {"diagonal", [](auto* d) { MoveToEx(d, INT_MIN, INT_MIN), LineTo(d, INT_MAX, INT_MAX); }, 70,
     70, Black},
    {"slope", [](auto* d) { MoveToEx(d, -1000000000, 60), LineTo(d, 1000000200, 61); }, 50, 60,
     Black},
    {"line beside", [](auto* d) { MoveToEx(d, INT_MIN, 200), LineTo(d, 400, INT_MAX); }, 0, 119,
     White},
    {"left edge of an ellipse", [](auto* d) { Ellipse(d, 50, -1000000000, INT_MAX, 1000000000); },
     50, 60, Black},
    {"inside", [](auto* d) { Ellipse(d, 50, -1000000000, INT_MAX, 1000000000); }, 60, 60, Blue},
    {"outside", [](auto* d) { Ellipse(d, 50, -1000000000, INT_MAX, 1000000000); }, 40, 60, White},
    {"round it", [](auto* d) { Ellipse(d, INT_MIN, INT_MIN, INT_MAX, INT_MAX); }, 9, 60, Blue},
    {"edge of a rectangle", [](auto* d) { Rectangle(d, 50, INT_MIN, INT_MAX, 80); }, 50, 60, Black},
    {"inside", [](auto* d) { Rectangle(d, 50, INT_MIN, INT_MAX, 80); }, 239, 0, Blue},
    {"top of an arc",
     [](auto* d) {
         Arc(d, -1000000000, 30, 1000000000, INT_MAX, INT_MAX, INT_MAX, INT_MIN, INT_MAX);
     },
     120, 30, Black},
    {"rest of an arc",
     [](auto* d) {
         Arc(d, -1000000000, 30, 1000000000, INT_MAX, INT_MIN, INT_MAX, INT_MAX, INT_MAX);
     },
     120, 30, White},
    {"no width", [](auto* d) { Ellipse(d, 50, 10, 50, 90), Arc(d, 50, 10, 50, 90, 0, 0, 0, 0); },
     50, 50, White},
    {"text", [](auto* d) { TextOutA(d, INT_MAX, INT_MIN, "text"); }, 239, 0, White},
};

TEST(Drawing, A_Figure_That_Reaches_Far_Outside_Must_Not_Lose_Its_Visible_Part) {
    for (const Probe& probe : far_probes) {
        for (const Pen_Style style : {Pen_Style::Solid, Pen_Style::Dashed}) {
            if (style == Pen_Style::Dashed && probe.colour == Black) continue;
            Page page;
            Set_Fill_Style(&page.device, Fill_Style::Solid);
            Set_Pen_Style(&page.device, style);
            probe.draw(&page.device);
            EXPECT_EQ(page.At(probe.x, probe.y), probe.colour) << probe.what;
        }
    }
}

// In a flat ellipse the radial of 45 degrees meets the outline close to the middle.
TEST(Drawing, An_Arc_Must_Not_Take_The_Angle_Of_A_Radial_For_That_Of_The_Ellipse) {
    Page page;
    Arc(&page.device, 20, 50, 220, 70, 160, 20, 80, 20);
    EXPECT_EQ(page.At(120, 50), Black);
    EXPECT_EQ(page.At(114, 50), Black);
    for (int y = 45; y < 75; ++y) {
        EXPECT_EQ(page.At(150, y), White) << y;
        EXPECT_EQ(page.At(90, y), White) << y;
    }
}

TEST(Drawing, Dashes_Must_Not_Start_Anew_At_Each_Short_Line_Of_An_Outline) {
    Page whole;
    Page pieces;
    for (Page* page : {&whole, &pieces}) {
        Set_Pen_Style(&page->device, Pen_Style::Dashed);
        MoveToEx(&page->device, 10, 20);
    }
    LineTo(&whole.device, 210, 20);
    for (int x = 12; x <= 210; x += 2) {
        LineTo(&pieces.device, x, 20);
        MoveToEx(&pieces.device, x, 20);
    }
    int differences = 0;
    int dashes = 0;
    for (int x = 10; x <= 210; ++x) {
        differences += whole.At(x, 20) != pieces.At(x, 20) ? 1 : 0;
        dashes += whole.At(x, 20) != White && whole.At(x - 1, 20) == White ? 1 : 0;
    }
    EXPECT_LE(differences, 25);  // A pixel at the end of a dash may fall either way.
    EXPECT_GT(dashes, 15);
}

}  // namespace

}  // namespace platform
