#include "chart/chart_view.h"

#include <cmath>
#include <gtest/gtest.h>

#include "chart/current_chart.h"

using namespace skerrand;

/// Eight pixels a degree, so that halves are exact.
const Chart_Target target{nullptr, 160, 80};
const Chart_View start{-10, 50, 10, 40, {}, {}, 30};

TEST(View, ProjectionRoundsHalvesAwayFromEven) {
    chart_view = start;
    EXPECT_EQ(Project(target, 40, 10), (Pixel_Point{160, 80}));
    EXPECT_EQ(Project(target, 49.6875, -9.6875), (Pixel_Point{2, 2}));
    EXPECT_EQ(Project(target, 49.5625, -9.5625), (Pixel_Point{4, 4}));
    EXPECT_EQ(Project(target, 1e300, 1e300), (Pixel_Point{INT32_MAX, INT32_MIN}));
}

TEST(View, ZoomDriftsOrPassesItsEnds) {
    chart_view = start;
    for (int i = 0; i < 8; ++i)
        Zoom_In();
    EXPECT_NEAR(chart_view.view_right - chart_view.view_left, 20 * std::pow(0.8, 8), 1e-12);
    for (int i = 0; i < 8; ++i)
        Zoom_Out();
    EXPECT_NEAR(chart_view.view_left, start.view_left, 1e-12);
    EXPECT_NEAR(chart_view.view_top, start.view_top, 1e-12);
    for (bool (*step)() : {Zoom_In, Zoom_Out}) {
        while (step()) {
        }
        EXPECT_EQ(chart_view.zoom_rate, step == Zoom_In ? 55 : 1);
        const double left = chart_view.view_left;
        step();
        EXPECT_EQ(chart_view.view_left, left);
    }
}

TEST(Active_Runway, EqualLengthsAndOddTables) {
    const auto active = [](std::initializer_list<std::pair<const char*, int>> runways) {
        Airport_Info info;
        for (const auto& [id, length] : runways)
            info.runways.push_back({id, "", 0, 0, 0, 0, 0, 0, 0, length, 0});
        return Active_Runway(info);
    };
    EXPECT_EQ(active({}), "");
    EXPECT_EQ(active({{"9", 100}, {"18L", 200}, {"18R", 200}}), "18L");
    // A runway without a length stands until a longer one comes; one without a name too.
    EXPECT_EQ(active({{"9", 0}, {"10", -5}}), "9");
    EXPECT_EQ(active({{"", 300}, {"10", 200}}), "");
    EXPECT_EQ(active({{"", 0}, {"10", -5}}), "10");
}
