// The chart in its window and on paper: one of everything, near the equator's start.

#include <gtest/gtest.h>

#include "chart/chart_view.h"
#include "chart/current_chart.h"
#include "chart/form4.h"
#include "chart/printing.h"
#include "platform/headless/program.h"
#include "platform/headless/protocol.h"
#include "selection/airspace_search.h"
#include "selection/picks.h"
#include "simlink/live_poll.h"

using namespace skerrand;

/// An answer without its end.
static std::string Ask(const std::string& command) {
    const std::string answer = platform::headless::Execute(command);
    return answer.substr(0, answer.rfind("ok\n"));
}

static void Show_Chart() {
    using enum Boundary_Kind;
    Airport_Info& airport = departure_airport = {};
    airport.airport_name = "Nowhere";
    airport.icao_id = "ZZZZ";
    airport.runways = {{"09L", "27R", 0, 0, 0, 0.01, 0, 91, 0, 0, 0}};
    airport.ils = {{"", 0, 0, 0, "110.3"}};
    airport.parkings = {{"GATE A 1", 0.001, 0, 50}};
    airport.taxi_points = {{0, 0, 0}, {0, 0.001, 0.001}};
    airport.taxi_paths = {{0, 0, 1, "TWY"}};
    departure_airspaces.assign(1, {});
    departure_airspaces[0].class_label = Label_Class_B;
    departure_airspaces[0].boundary = {
        {Point_Start, 1, 0}, {Point_Line, 1, 1}, {Point_Arc_Cw, -1, 1}, {Point_Circle, 0, 0, 30}};
    platform::Show(form4::window);
}

/// The window has 1000 by 700 pixels, the printer's sheet twice that.
class Chart_With_Printer : public testing::Test {
  protected:
    void SetUp() override {
        platform::headless::Begin(Show_Chart);
        Ask("printer 2000 1400 1900 1300");
        ASSERT_TRUE(form4::Set_Up_Printer());
        Ask("resize Form4 1000 700");
    }
    static std::string Picture(int zoom) {
        while (chart_view.zoom_rate != zoom)
            chart_view.zoom_rate < zoom ? form4::Command2_Click() : form4::Command4_Click();
        Ask("advance 1000");
        return Ask("picture Form4");
    }
    static std::string Printed() {
        Ask("click Form4.print_cht1");
        Ask("restore Form4");
        return Ask("page " + std::to_string(std::stoi(Ask("pages"))));
    }
};

TEST_F(Chart_With_Printer, PageDiffersFromThePictureBeyondFrameAndTitle) {
    for (const int zoom : {1, 22, 35, 36, 46, 55}) {
        Picture(zoom);
        aircraft_lat = aircraft_lon = 0;
        chart_view.link_open = true;  // the aircraft stays off the page
        const std::string page = Printed();
        chart_view.link_open = false;
        Ask("resize Form4 2000 1400");  // so that its picture has the size of the page
        EXPECT_EQ(page, "rectangle 0 0 1900 1300 | solid 1 0,0,0 | hollow 0,0,0\n" + Picture(zoom) +
                            "rectangle 0 0 750 200 | solid 1 0,0,0 | solid 255,255,255\n"
                            "text 0 0 Skerrand v2.0 | 0,0,0\ntext 0 100 Nowhere  (ZZZZ) | 0,0,0\n");
        Ask("resize Form4 1000 700");
    }
}

TEST_F(Chart_With_Printer, APreferenceSwitchesMoreOrLessThanItsOwn) {
    const std::tuple<std::string, const char*, const char*, int> cases[] = {
        {"Check1", "TWY", "192,192,192", 40},   {"Check2", "192,192,192", "GATE A 1", 40},
        {"Check3", "255,255,0", "0,192,0", 40}, {"Check4", "dashed", "Nowhere", 9},
        {"Check5", "128,64,64", "192,192", 40}, {"Check7", "110.3 Mhz", "255,255,0", 40},
        {"Check8", "09L", "  91*", 40},         {"Check9", "91*", "09L", 40},
        {"Check10", "Nowhere |", "0,192,0", 40}};
    for (const auto& [box, gone, stays, zoom] : cases) {
        for (const int clicks : {0, 1, 2}) {
            Ask("click Form4.pref1");
            if (clicks > 0) Ask("click Form5." + box);
            Ask("close Form5");
            for (const std::string& picture : {Picture(zoom), Printed()}) {
                EXPECT_EQ(picture.find(gone) == picture.npos, clicks == 1) << box;
                EXPECT_NE(picture.find(stays), picture.npos) << box;
            }
        }
    }
}
