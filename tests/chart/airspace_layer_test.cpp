#include "chart/airspace_layer.h"

#include <gtest/gtest.h>
#include <utility>

#include "chart/colours.h"
#include "chart/current_chart.h"
#include "platform/headless/device.h"
#include "selection/airspace_search.h"

namespace skerrand {
namespace {

using enum Boundary_Kind;
using platform::Fill_Style, platform::Pen_Style;
using platform::headless::Call_Kind, platform::headless::Drawing_State;
using Call = std::pair<Call_Kind, std::array<int, 8>>;

/// From -2 to 2 degrees in both, so that a degree is 100 pixels and the equator's start is the
/// middle, (200, 200).
class Airspace_Layer : public testing::Test {
  protected:
    void SetUp() override {
        chart_view = {.view_left = -2, .view_top = 2, .view_right = 2, .view_bottom = -2};
        current_airspaces.clear();
    }

    std::vector<Call> Draw() {
        platform::headless::Wipe(device);
        Draw_Airspaces({&device, 400, 400});
        std::vector<Call> calls;
        for (const auto& call : device.picture.calls)
            calls.emplace_back(call.kind, call.numbers);
        return calls;
    }

    static void Add(std::string_view label, std::vector<Boundary_Point> boundary) {
        Airspace_Info& airspace = current_airspaces.emplace_back();
        airspace.class_label = label;
        airspace.boundary = std::move(boundary);
    }

    platform::Device_Context device;
    const Drawing_State end_state{Green, 2, Pen_Style::Solid, Black, Fill_Style::Hollow};
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
    const std::vector<Call> expected = {
        {Call_Kind::Arc, {100, 100, 300, 300, 300, 200, 200, 100}},
        {Call_Kind::Arc, {100, 100, 400, 400, 300, 200, 0, 200}},
        {Call_Kind::Line, {0, 200, 0, 300}},
        {Call_Kind::Ellipse, {59, 59, 341, 341}},
        {Call_Kind::Line, {0, 300, 200, 300}},
    };
    EXPECT_EQ(Draw(), expected);
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
    std::vector<Call> alone;
    for (const auto& [center, end] : arcs) {
        const Boundary_Point middle{Point_Center, center, center, 0};
        outline.insert(outline.end(), {middle, end});
        current_airspaces.clear();
        Add(Label_Class_B, {at, middle, end});
        alone.push_back(Draw().at(0));
        if (end.kind != Point_Circle) at = {Point_Start, end.lat, end.lon, 0};
    }
    current_airspaces.clear();
    Add(Label_Class_B, outline);
    EXPECT_EQ(Draw(), alone);
}

TEST_F(Airspace_Layer, OneAirspaceDrawsWithThePlaceOfAnother) {
    Add(Label_Class_C, {{Point_Center, 1, 1, 0}, {Point_Start, -2, -2, 0}});
    for (const auto label : {Label_Tracon, Label_Class_D, Label_Center, std::string_view()}) {
        Add(label, {{Point_Center, -1, -1, 0}, {Point_Circle, 0, 0, 0}});
    }
    // The centre stays, the last position goes back to the equator's start.
    Add(Label_Class_C, {{Point_Circle, 0, 0, 0}, {Point_Arc_Ccw, 1, 1, 0}});
    const std::vector<Call> expected = {
        {Call_Kind::Ellipse, {299, 99, 301, 101}},
        {Call_Kind::Arc, {158, -41, 300, 100, 200, 200, 300, 100}},
    };
    EXPECT_EQ(Draw(), expected);
    EXPECT_EQ(current_airspaces.back().boundary[0].radius, 1);
    EXPECT_EQ(current_airspaces[1].boundary[1].radius, 0);
}

TEST_F(Airspace_Layer, StateOfTheWrongClassOrLeftBehind) {
    Draw();
    EXPECT_EQ(device.state, end_state);
    for (const auto label : {Label_Class_B, Label_Tracon, Label_Class_C})
        Add(label, {{Point_Line, 1, 1, 0}});
    Draw();
    const std::vector<Drawing_State> expected = {
        {{0, 0, 192}, 1, Pen_Style::Dashed, {0, 0, 192}, Fill_Style::Hollow},
        {{255, 0, 255}, 1, Pen_Style::Dashed, {255, 0, 255}, Fill_Style::Hollow},
    };
    EXPECT_EQ(device.picture.states, expected);
    EXPECT_EQ(device.state, end_state);
}

TEST_F(Airspace_Layer, HugeRadiusIsTakenBeyondItsWidth) {
    for (const int radius : {32767, 32768, INT32_MAX})
        Add(Label_Class_B, {{Point_Circle, 0, 0, radius}});
    const auto calls = Draw();
    EXPECT_EQ(calls[0], calls[1]);
    EXPECT_EQ(calls[0], calls[2]);
}

}  // namespace
}  // namespace skerrand
