// The view, and each layer of the chart by the calls that it draws with, in 400 by 400 pixels.

#include <gtest/gtest.h>

#include "chart/current_chart.h"
#include "chart/draw_chart.h"
#include "platform/headless/device.h"
#include "scenery/magnetic.h"
#include "selection/airspace_search.h"

using namespace skerrand;

using enum Boundary_Kind;

static std::string Drawn() {
    platform::Device_Context device;
    magnetic_table.fill(1821);  // 10 degrees east
    Draw_Chart({&device, 400, 400});
    magnetic_table.fill(0);
    std::string lines;
    for (const auto& call : device.picture.calls)
        lines += platform::headless::Call_Text(device.picture, call) + "\n";
    return lines;
}

/// The view reaches so many degrees from the equator's start, the middle at (200, 200): 0.01 make
/// 20000 pixels a degree, 2 make 100.
static void Clear_Chart(double degrees, std::int16_t zoom) {
    chart_view = {-degrees, degrees, degrees, -degrees, {}, {}, zoom};
    current_airport = {};
    current_airspaces.clear();
    Reset_Display_Flags();
    show_airport_name = false;
}

TEST(Airport_Layers, PathIsDroppedDrawnTwiceOrReadOutsideItsTables) {
    Clear_Chart(0.01, Zoom_Airport);
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
    show_gates = false;
    // The course to the east comes out as 91 degrees, so that the name stands a pixel lower.
    EXPECT_EQ(Drawn(),
              "line 200 200 200 200 | solid 2 192,192,192\n"
              "line 200 200 300 200 | solid 2 192,192,192\n"
              "text 250 201 A | 0,0,0\n"
              "line 200 200 300 200 | solid 2 192,192,192\n"
              "line 300 200 200 300 | solid 2 192,192,192\n"
              "line 300 200 200 300 | solid 2 192,192,192\n"
              "line 200 200 200 -200 | solid 2 192,192,192\n");
}

TEST(Airport_Layers, HalfAPathIsCutToWholeFeet) {
    // 3 feet are 8.22e-6 degrees; half of them count as 2 feet, or 1e-5 degrees to 5 decimals.
    Clear_Chart(0.0005, Zoom_Airport);
    current_airport.taxi_points = {{0, 0, 0}, {0, 0, 8.22e-6}};
    current_airport.taxi_paths = {{0, 0, 1, "A"}};
    EXPECT_EQ(Drawn(), "line 200 200 203 200 | solid 2 192,192,192\ntext 204 200 A | 0,0,0\n");
}

TEST(Airport_Layers, RunwayOutsideTheViewIsGoneOrWithoutItsLabels) {
    Clear_Chart(0.01, Zoom_Airport);
    current_airport.runways = {{"18L", "36R", 0.02, 0, -0.02, 0, 0, 176, 356, 6000, 150}};
    const std::string line = "line 200 -200 200 600 | solid 2 0,192,0\n";
    EXPECT_EQ(Drawn(), line + "text 200 -200 18L  176* | 0,0,0\ntext 200 600 36R  356* | 0,0,0\n");
    show_runway_ids = show_runway_headings = false;
    show_airport_name = true;  // of a place outside the view
    current_airport.lat = 0.0101;
    EXPECT_EQ(Drawn(), line);
}

TEST(Airport_Layers, LayerOutOfOrderPlaceOnTheViewsBoundDrawnOrBeamTurned) {
    Clear_Chart(0.01, Zoom_Airport);
    current_airport.parkings = {
        {"GATE A 1", 0.005, 0, 50}, {"BOUND", 0.01, 0, 50}, {"OUT", 0, -0.0101, 5000}};
    // A beam flown northwards opens to the south: 1800 feet are 0.29605 miles, 99 pixels.
    current_airport.ils = {{"ILS", 0, 0, 350, "110.3"}, {"OUT", 0.01, 0, 0, "1"}};
    current_airport.taxi_points = {{0, 0, 0}, {0, 0, 0.005}};
    current_airport.taxi_paths = {{0, 0, 1, "A"}};
    current_airport.runways = {{"9", "27", 0, 0, 0, 0.005, 0, 81, 261, 6000, 150}};
    show_airport_name = true;
    EXPECT_EQ(Drawn(),
              "ellipse 196 104 204 96 | solid 2 128,64,64 | solid 128,64,64\n"
              "text 200 100 GATE A 1 | 0,0,0\n"
              "line 200 200 300 200 | solid 2 192,192,192\ntext 250 201 A | 0,0,0\n"
              "line 200 200 300 200 | solid 2 0,192,0\n"
              "text 200 200 9  81* | 0,0,0\ntext 300 200 27  261* | 0,0,0\n"
              "line 200 200 209 298 | solid 1 255,255,0\nline 209 298 191 298 | solid 1 255,255,0\n"
              "line 191 298 200 200 | solid 1 255,255,0\ntext 200 200 110.3 Mhz | 0,0,0\n"
              "text 200 200  | 0,0,0\n");
}

static void Add(std::string_view label, std::vector<Boundary_Point> boundary) {
    current_airspaces.emplace_back().class_label = label;
    current_airspaces.back().boundary = std::move(boundary);
}

TEST(Airspace_Layer, OutlineIsBentOrTurnedTheWrongWay) {
    Clear_Chart(2, Zoom_Airport - 1);
    current_airport.parkings = {{"of a nearer view", 0, 0, 10}};
    // 60 miles are a degree, and the corners of a circle's square lie its radius off.
    const auto unknown = static_cast<Boundary_Kind>(6);
    Add(Label_Class_B, {{Point_Start, 1, 0},
                        {Point_Center, 0, 0},
                        {Point_Arc_Cw, 0, 1},
                        {Point_Arc_Ccw, 0, -2},
                        {Point_Line, -1, -2},
                        {Point_Circle, 0, 0, 120},
                        {unknown, 1, 1},
                        {Point_Line, -1, 0}});
    EXPECT_EQ(Drawn(),
              "arc 100 100 300 300 300 200 200 100 | dashed 1 0,0,192\n"
              "arc 100 100 400 400 300 200 0 200 | dashed 1 0,0,192\n"
              "line 0 200 0 300 | dashed 1 0,0,192\n"
              "ellipse 59 59 341 341 | dashed 1 0,0,192 | hollow 0,0,192\n"
              "line 0 300 200 300 | dashed 1 0,0,192\n");
}

TEST(Airspace_Layer, OneAirspaceDrawsWithThePlaceOfAnother) {
    Clear_Chart(2, Zoom_Airport - 1);
    Add(Label_Class_C, {{Point_Center, 1, 1}, {Point_Start, -2, -2}});
    for (const auto label : {Label_Tracon, Label_Class_D, Label_Center, std::string_view()})
        Add(label, {{Point_Center, -1, -1}, {Point_Circle, 0, 0}});
    // The centre stays, the last position goes back to the equator's start.
    Add(Label_Class_C, {{Point_Circle, 0, 0}, {Point_Arc_Ccw, 1, 1}});
    EXPECT_EQ(Drawn(),
              "ellipse 299 99 301 101 | dashed 1 255,0,255 | hollow 255,0,255\n"
              "arc 158 -41 300 100 200 200 300 100 | dashed 1 255,0,255\n");
}

TEST(View, ProjectionRoundsHalvesAwayFromEven) {
    chart_view = {-10, 50, 10, 40, {}, {}, 30};
    const Chart_Target target{nullptr, 160, 80};  // eight pixels a degree: halves are exact
    EXPECT_EQ(Project(target, 40, 10), (Pixel_Point{160, 80}));
    EXPECT_EQ(Project(target, 49.6875, -9.6875), (Pixel_Point{2, 2}));
    EXPECT_EQ(Project(target, 49.5625, -9.5625), (Pixel_Point{4, 4}));
    EXPECT_EQ(Project(target, 1e300, 1e300), (Pixel_Point{INT32_MAX, INT32_MIN}));
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
