// Each layer of the chart alone, by the calls that it draws with.

#include <gtest/gtest.h>
#include <string>
#include <utility>
#include <vector>

#include "chart/airport_layers.h"
#include "chart/airspace_layer.h"
#include "chart/colours.h"
#include "chart/current_chart.h"
#include "platform/headless/device.h"
#include "scenery/magnetic.h"
#include "selection/airspace_search.h"

namespace skerrand {
namespace {

using enum Boundary_Kind;
using Lines = std::vector<std::string>;

/// What a layer draws in 400 by 400 pixels.
Lines Drawn(void (*layer)(const Chart_Target&)) {
    platform::Device_Context device;
    layer({&device, 400, 400});
    Lines lines;
    for (const auto& call : device.picture.calls)
        lines.push_back(platform::headless::Call_Text(device.picture, call));
    return lines;
}

/// A view of 0.02 degrees round the equator's start: 20000 pixels a degree, the middle at
/// (200, 200).
class Airport_Layers : public testing::Test {
  protected:
    void SetUp() override {
        magnetic_table.fill(0);
        chart_view = {
            .view_left = -0.01, .view_top = 0.01, .view_right = 0.01, .view_bottom = -0.01};
        current_airport = {};
        Reset_Display_Flags();
    }
};

TEST_F(Airport_Layers, ParkingOutsideTheViewOrOnItsBound) {
    current_airport.parkings = {
        {"GATE A 1", 0.005, 0, 50}, {"BOUND", 0.01, 0, 50}, {"OUT", 0, -0.0101, 5000}};
    EXPECT_EQ(Drawn(Draw_Parkings),
              (Lines{"ellipse 196 104 204 96 | solid 1 128,64,64 | solid 128,64,64",
                     "text 200 100 GATE A 1 | 0,0,0"}));
}

TEST_F(Airport_Layers, PathIsDroppedDrawnTwiceOrReadOutsideItsTables) {
    current_airport.taxi_points = {{0, 0, 0}, {0, 0, 0.005}, {0, 0.02, 0}, {0, 0.02, 0.02}};
    current_airport.parkings = {{"P", -0.005, 0, 10}};
    current_airport.taxi_paths = {
        {7, 0, 1, "kind without meaning: both ends at the start of the equator"},
        {0, 0, 1, "A"},
        {1, 0, 1, "Runway 9"},
        {2, 1, 0, "B"},
        {9, 0, 0, "the path before again"},
        {0, 2, 3, "both ends out"},
        {0, 0, 2, " "},
        {0, 0, 4, "no such point"},
        {2, 0, 1, "no such parking"},
        {0, -1, 0, "negative"},
    };
    // The course to the east comes out as 91 degrees, so that the name stands a pixel lower.
    const Lines expected = {
        "line 200 200 200 200 | solid 1 192,192,192",
        "line 200 200 300 200 | solid 1 192,192,192",
        "text 250 201 A | 0,0,0",
        "line 200 200 300 200 | solid 1 192,192,192",
        "line 300 200 200 300 | solid 1 192,192,192",
        "line 300 200 200 300 | solid 1 192,192,192",
        "line 200 200 200 -200 | solid 1 192,192,192",
    };
    EXPECT_EQ(Drawn(Draw_Taxiways), expected);
    show_taxiway_ids = false;
    EXPECT_EQ(Drawn(Draw_Taxiways).size(), expected.size() - 1);
}

TEST_F(Airport_Layers, RunwayLabelsOfAllFlags) {
    current_airport.runways = {
        {"18L", "36R", 0.02, 0, -0.02, 0, 0, 176, 356, 6000, 150},
    };
    const std::string line = "line 200 -200 200 600 | solid 1 0,192,0";
    EXPECT_EQ(Drawn(Draw_Runways),
              (Lines{line, "text 200 -200 18L  176* | 0,0,0", "text 200 600 36R  356* | 0,0,0"}));
    show_runway_ids = false;
    EXPECT_EQ(Drawn(Draw_Runways),
              (Lines{line, "text 200 -200   176* | 0,0,0", "text 200 600   356* | 0,0,0"}));
    show_runway_headings = false;
    EXPECT_EQ(Drawn(Draw_Runways), Lines{line});
}

TEST_F(Airport_Layers, BeamPointsTheWrongWay) {
    // A beam flown northwards opens to the south: 1800 feet are 0.29605 miles, 99 pixels.
    current_airport.ils = {{"ILS", 0, 0, 0, "110.3"}, {"OUT", 0.01, 0, 0, "1"}};
    EXPECT_EQ(Drawn(Draw_ILS), (Lines{"line 200 200 209 298 | solid 1 255,255,0",
                                      "line 209 298 191 298 | solid 1 255,255,0",
                                      "line 191 298 200 200 | solid 1 255,255,0",
                                      "text 200 200 110.3 Mhz | 0,0,0"}));
}

/// From -2 to 2 degrees in both, so that a degree is 100 pixels and the equator's start is the
/// middle, (200, 200).
class Airspace_Layer : public testing::Test {
  protected:
    void SetUp() override {
        chart_view = {.view_left = -2, .view_top = 2, .view_right = 2, .view_bottom = -2};
        current_airspaces.clear();
    }

    static void Add(std::string_view label, std::vector<Boundary_Point> boundary) {
        Airspace_Info& airspace = current_airspaces.emplace_back();
        airspace.class_label = label;
        airspace.boundary = std::move(boundary);
    }
};

TEST_F(Airspace_Layer, OutlineIsBentOrTurnedTheWrongWay) {
    // 60 miles are a degree; the corner of an arc's square is 85 miles off, those of a circle of
    // 120 miles lie 120 miles off.
    Add(Label_Class_B, {{Point_Start, 1, 0, 0},
                        {Point_Center, 0, 0, 0},
                        {Point_Arc_Cw, 0, 1, 0},
                        {Point_Arc_Ccw, 0, -2, 0},
                        {Point_Line, -1, -2, 0},
                        {Point_Circle, 0, 0, 120},
                        {static_cast<Boundary_Kind>(6), 1, 1, 0},
                        {Point_Line, -1, 0, 0}});
    EXPECT_EQ(Drawn(Draw_Airspaces),
              (Lines{"arc 100 100 300 300 300 200 200 100 | dashed 1 0,0,192",
                     "arc 100 100 400 400 300 200 0 200 | dashed 1 0,0,192",
                     "line 0 200 0 300 | dashed 1 0,0,192",
                     "ellipse 59 59 341 341 | dashed 1 0,0,192 | hollow 0,0,192",
                     "line 0 300 200 300 | dashed 1 0,0,192"}));
}

TEST_F(Airspace_Layer, ArcTakesWhatBelongsToTheOneBefore) {
    const struct {
        double center;
        Boundary_Point end;
    } arcs[] = {
        {0, {Point_Arc_Cw, 0, 1, 0}},   {0, {Point_Arc_Cw, -1, 0, 0}},
        {1, {Point_Arc_Ccw, 0, 1, 0}},  {1, {Point_Arc_Ccw, 1, 0, 0}},
        {0, {Point_Line, 0, -2, 0}},    {0, {Point_Arc_Cw, 2, 0, 0}},
        {0, {Point_Circle, 0, 0, 141}}, {0.5, {Point_Circle, 0, 0, 141}},
        {0.5, {Point_Arc_Cw, 1, 1, 0}}, {1, {Point_Circle, 0, 0, 42}},
    };
    Boundary_Point at{Point_Start, 1, 0, 0};
    std::vector<Boundary_Point> outline = {at};
    Lines alone;
    for (const auto& [center, end] : arcs) {
        const Boundary_Point middle{Point_Center, center, center, 0};
        outline.insert(outline.end(), {middle, end});
        current_airspaces.clear();
        Add(Label_Class_B, {at, middle, end});
        alone.push_back(Drawn(Draw_Airspaces).at(0));
        if (end.kind != Point_Circle) at = {Point_Start, end.lat, end.lon, 0};
    }
    current_airspaces.clear();
    Add(Label_Class_B, outline);
    EXPECT_EQ(Drawn(Draw_Airspaces), alone);
}

TEST_F(Airspace_Layer, OneAirspaceDrawsWithThePlaceOfAnother) {
    Add(Label_Class_C, {{Point_Center, 1, 1, 0}, {Point_Start, -2, -2, 0}});
    for (const auto label : {Label_Tracon, Label_Class_D, Label_Center, std::string_view()}) {
        Add(label, {{Point_Center, -1, -1, 0}, {Point_Circle, 0, 0, 0}});
    }
    // The centre stays, the last position goes back to the equator's start.
    Add(Label_Class_C, {{Point_Circle, 0, 0, 0}, {Point_Arc_Ccw, 1, 1, 0}});
    EXPECT_EQ(Drawn(Draw_Airspaces),
              (Lines{"ellipse 299 99 301 101 | dashed 1 255,0,255 | hollow 255,0,255",
                     "arc 158 -41 300 100 200 200 300 100 | dashed 1 255,0,255"}));
    EXPECT_EQ(current_airspaces.back().boundary[0].radius, 1);
    EXPECT_EQ(current_airspaces[1].boundary[1].radius, 0);
}

TEST_F(Airspace_Layer, StateIsLeftBehind) {
    Add(Label_Class_C, {{Point_Line, 1, 1, 0}});
    platform::Device_Context device;
    Draw_Airspaces({&device, 400, 400});
    const platform::headless::Drawing_State end_state{Green, 2, platform::Pen_Style::Solid, Black,
                                                      platform::Fill_Style::Hollow};
    EXPECT_EQ(device.state, end_state);
}

TEST_F(Airspace_Layer, HugeRadiusIsTakenBeyondItsWidth) {
    for (const int radius : {32767, 32768, INT32_MAX})
        Add(Label_Class_B, {{Point_Circle, 0, 0, radius}});
    const auto calls = Drawn(Draw_Airspaces);
    EXPECT_EQ(calls[0], calls[1]);
    EXPECT_EQ(calls[0], calls[2]);
}

}  // namespace
}  // namespace skerrand
