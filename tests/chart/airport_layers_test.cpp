#include "chart/airport_layers.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "chart/current_chart.h"
#include "chart/draw_chart.h"
#include "platform/headless/device.h"
#include "platform/headless/picture_text.h"
#include "scenery/magnetic.h"

namespace skerrand {
namespace {

using Lines = std::vector<std::string>;

/// A view of 0.02 degrees round the equator's start on 400 by 400 pixels: 20000 pixels a degree,
/// the middle at (200, 200).
class Airport_Layers : public testing::Test {
  protected:
    void SetUp() override {
        magnetic_table.fill(0);
        chart_view = {.view_left = -0.01,
                      .view_top = 0.01,
                      .view_right = 0.01,
                      .view_bottom = -0.01,
                      .zoom_rate = Zoom_Airport};
        current_airport = {};
        current_airspaces.clear();
        Reset_Display_Flags();
    }

    template <typename Layer>
    Lines Drawn(Layer layer) {
        platform::Device_Context device;
        layer(Chart_Target{&device, 400, 400});
        Lines lines;
        for (const auto& call : device.picture.calls) {
            lines.push_back(platform::headless::Call_Text(device.picture, call));
        }
        return lines;
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

TEST_F(Airport_Layers, LayerShowsAtTheWrongZoomOrInTheWrongOrder) {
    current_airport.airport_name = "FIELD";
    current_airport.runways = {{"9", "27", 0, -0.01, 0, 0.01, 0, 90, 270, 6000, 150}};
    current_airport.parkings = {{"P", 0, 0, 10}};
    current_airport.taxi_points = {{0, 0, 0}};
    current_airport.taxi_paths = {{1, 0, 0, ""}};
    current_airport.ils = {{"ILS", 0, 0, 90, "1"}};
    current_airspaces.resize(1);
    current_airspaces[0].class_label = "Airspace Class B";
    current_airspaces[0].boundary = {{.kind = Boundary_Kind::Point_Line}};
    const auto draw = [](const Chart_Target& target) { Draw_Chart(target); };
    const auto verbs = [&] {
        std::string all;
        for (const std::string& line : Drawn(draw)) {
            all += line.substr(0, line.find(' ')) + line.substr(line.find(" | ")) + "\n";
        }
        return all;
    };
    EXPECT_EQ(verbs(),
              "ellipse | solid 2 128,64,64 | solid 128,64,64\ntext | 0,0,0\n"
              "line | solid 2 192,192,192\n"
              "line | solid 2 0,192,0\ntext | 0,0,0\ntext | 0,0,0\n"
              "line | solid 1 255,255,0\nline | solid 1 255,255,0\nline | solid 1 255,255,0\n"
              "text | 0,0,0\ntext | 0,0,0\n");
    chart_view.zoom_rate = Zoom_Airport - 1;
    EXPECT_EQ(verbs(), "line | dashed 1 0,0,192\ntext | 0,0,0\n");
    show_airspace = false;
    show_airport_name = false;
    EXPECT_EQ(verbs(), "");
}

}  // namespace
}  // namespace skerrand
