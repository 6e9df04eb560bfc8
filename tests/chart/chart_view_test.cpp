#include "chart/chart_view.h"

#include <cmath>
#include <gtest/gtest.h>

namespace skerrand {
namespace {

class View : public testing::Test {
  protected:
    void SetUp() override {
        chart_view = {.view_left = -10,
                      .view_top = 50,
                      .view_right = 10,
                      .view_bottom = 40,
                      .screen_width = 200,
                      .screen_height = 50,
                      .zoom_rate = 30};
    }
    Chart_Target target{nullptr, 200, 50};
};

TEST_F(View, ProjectionRoundsHalvesAwayFromEven) {
    // Eight pixels a degree, so that halves are exact.
    const Chart_Target even{nullptr, 160, 80};
    EXPECT_EQ(Project(even, 50, -10), (Pixel_Point{0, 0}));
    EXPECT_EQ(Project(even, 40, 10), (Pixel_Point{160, 80}));
    EXPECT_EQ(Project(even, 49.6875, -9.6875), (Pixel_Point{2, 2}));
    EXPECT_EQ(Project(even, 49.5625, -9.5625), (Pixel_Point{4, 4}));
    EXPECT_EQ(Project(even, 60, -30), (Pixel_Point{-160, -80}));
    EXPECT_EQ(Project(even, 1e300, 1e300), (Pixel_Point{INT32_MAX, INT32_MIN}));
}

TEST_F(View, PercentageIsRoundedBeforeItIsUsed) {
    EXPECT_EQ(Percent(target, 0.8F), 2);
    EXPECT_EQ(Percent(target, 0.5F), 0);
    EXPECT_EQ(Percent({nullptr, 279, 1}, 1), 3);
    EXPECT_EQ(Percent({nullptr, 250, 1}, 1), 2);
    EXPECT_EQ(Percent({nullptr, 350, 1}, 1), 4);
}

TEST_F(View, ZoomDriftsOrPassesItsEnds) {
    const Chart_View before = chart_view;
    for (int i = 0; i < 8; ++i)
        Zoom_In();
    EXPECT_EQ(chart_view.zoom_rate, 38);
    EXPECT_NEAR(chart_view.view_right - chart_view.view_left, 20 * std::pow(0.8, 8), 1e-12);
    for (int i = 0; i < 8; ++i)
        Zoom_Out();
    EXPECT_NEAR(chart_view.view_left, before.view_left, 1e-12);
    EXPECT_NEAR(chart_view.view_top, before.view_top, 1e-12);

    for (int i = 0; i < 100; ++i)
        Zoom_In();
    EXPECT_EQ(chart_view.zoom_rate, 55);
    const double left = chart_view.view_left;
    Zoom_In();
    EXPECT_EQ(chart_view.view_left, left);
    for (int i = 0; i < 100; ++i)
        Zoom_Out();
    EXPECT_EQ(chart_view.zoom_rate, 1);
}

TEST_F(View, BoundCountsAsInside) {
    EXPECT_FALSE(In_View(45, -10));
    EXPECT_FALSE(In_View(50, 0));
    EXPECT_TRUE(In_View(49.999999, 9.999999));
}

TEST(Active_Runway, EqualLengthsAndOddTables) {
    const auto airport = [](std::initializer_list<std::pair<const char*, int>> runways) {
        Airport_Info info;
        for (const auto& [id, length] : runways) {
            info.runways.emplace_back();
            info.runways.back().id_1 = id;
            info.runways.back().length_ft = length;
        }
        return info;
    };
    EXPECT_EQ(Active_Runway(airport({})), "");
    EXPECT_EQ(Active_Runway(airport({{"9", 100}, {"18L", 200}, {"18R", 200}})), "18L");
    // A runway without a length stands until a longer one comes; one without a name too.
    EXPECT_EQ(Active_Runway(airport({{"9", 0}, {"10", -5}})), "9");
    EXPECT_EQ(Active_Runway(airport({{"", 300}, {"10", 200}})), "");
    EXPECT_EQ(Active_Runway(airport({{"", 0}, {"10", -5}})), "10");
}

}  // namespace
}  // namespace skerrand
