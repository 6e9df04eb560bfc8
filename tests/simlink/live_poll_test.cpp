#include "simlink/live_poll.h"

#include <gtest/gtest.h>

#include "chart/chart_view.h"
#include "chart/current_chart.h"
#include "chart/form4.h"
#include "platform/headless/program.h"
#include "platform/headless/protocol.h"
#include "platform/headless/simulator.h"
#include "selection/picks.h"

namespace skerrand {
namespace {

std::string Do(const std::string& line) {
    return platform::headless::Execute(line);
}

/// The chart of a nameless airport on the equator, so that nothing but the aircraft is drawn.
class Poll : public testing::Test {
  protected:
    void SetUp() override {
        platform::headless::Begin([] {
            platform::headless::Start_Simulator("UIPCMAIN");
            departure_airport = {};
            departure_airspaces.clear();
            platform::Show(form4::window);
        });
        show_airport_name = false;
        follow_aircraft = false;
        ASSERT_EQ(Do("resize Form4 800 600"), "ok\n");
    }
    void TearDown() override { platform::Unload(form4::window); }
};

TEST_F(Poll, RawValuesAreConvertedWrongly) {
    struct Case {
        const char *set, *altimeter;
        std::uint8_t unit;
        double lat, lon;
        int heading;
    };
    const Case cases[] = {
        {"0xEC6 503F", "29.92", Unit_Inches, 0, 0, 0},
        {"0xEC6 503F", "1013", Unit_Millibars, 0, 0, 0},
        {"0xEC6 0800", "0", Unit_Millibars, 0, 0, 0},
        {"0xEC6 1800", "2", Unit_Millibars, 0, 0, 0},
        {"0xEC6 FFFF", "4096", Unit_Millibars, 0, 0, 0},
        {"0xEC6 0500", "0.01", Unit_Inches, 0, 0, 0},
        {"0x564 569D9800", "0.01", Unit_Inches, 90, 0, 0},
        {"0x564 AA6267FF", "0.01", Unit_Inches, -90, 0, 0},
        {"0x56C 000000C0", "0.01", Unit_Inches, -90, -90, 0},
        {"0x580 000000C0", "0.01", Unit_Inches, -90, -90, -90},
        {"0x580 00000080", "0.01", Unit_Inches, -90, -90, -180},
        {"0x580 00000010", "0.01", Unit_Inches, -90, -90, 22},
        {"0x580 00000030", "0.01", Unit_Inches, -90, -90, 68},
    };
    for (const Case& c : cases) {
        altimeter_unit = c.unit;
        ASSERT_EQ(Do(std::string("simulator set ") + c.set), "ok\n");
        Do("advance 1000");
        EXPECT_EQ(Do("get Form4.Label1.caption"),
                  std::string("Altimeter: ") + c.altimeter + "\nok\n");
        EXPECT_EQ(aircraft_lat, c.lat) << c.set;
        EXPECT_EQ(aircraft_lon, c.lon) << c.set;
        EXPECT_EQ(aircraft_heading, c.heading) << c.set;
    }
}

TEST_F(Poll, FailureHalfWayLosesTheGoodValuesOrDrawsOrComesBack) {
    Do("simulator set 0x56C 00000010");
    Do("simulator set 0x580 00000010");
    Do("advance 1000");
    const std::string before = Do("simulator exchanges");
    const std::string picture = Do("picture Form4");
    const double left = chart_view.view_left;
    follow_aircraft = true;
    Do("simulator set 0x564 569D9800");
    Do("simulator set 0x580 00000040");
    Do("simulator set 0xEC6 503F");
    Do("simulator reply 0 after 2");
    Do("messages");
    Do("advance 1000");
    EXPECT_EQ(aircraft_lat, 90);
    EXPECT_EQ(aircraft_heading, 22);
    EXPECT_EQ(altimeter_value, 0);
    EXPECT_FALSE(chart_view.link_open);
    EXPECT_EQ(Do("get Form4.Label1.caption"), "Altimeter: 0\nok\n");
    EXPECT_EQ(Do("picture Form4"), picture);
    EXPECT_EQ(Do("messages"),
              "exclamation\tSkerrand Message\tError while receiving data from FSUIPC. Anyway this "
              "program will still display the currently airport's chart.\nok\n");

    aircraft_lat = 0;
    Do("simulator on");
    Do("advance 3000");
    EXPECT_EQ(Do("messages"), "ok\n");
    EXPECT_EQ(Do("picture Form4"), "ok\n");  // neither the old aircraft nor an unseen message
    EXPECT_EQ(chart_view.view_left, left);
    // The opening, four reads at the first tick, two at the second.
    EXPECT_EQ(before, "5\nok\n");
    EXPECT_EQ(Do("simulator exchanges"), "7\nok\n");
}

TEST_F(Poll, AircraftIsDrawnAtTheWrongPlaceOrLeavesItsColours) {
    for (int i = 0; i < 30; ++i)
        Zoom_In();
    const auto drawn = [](const std::string& heading) {
        Do("simulator set 0x580 " + heading);
        Do("advance 1000");
        return Do("picture Form4");
    };
    const std::string disc = "ellipse 392 308 408 292 | solid 1 0,192,0 | solid 0,192,0\n";
    const std::string words = "text 400 300 Your Plane | 0,192,0\nok\n";
    // 500 feet are 0.0013706 degrees, rounded to 0.00137; the view is 0.0748 degrees wide.
    const int across = 15, up = 22;
    const auto line = [](int x, int y) {
        return "line 400 300 " + std::to_string(x) + " " + std::to_string(y) +
               " | solid 1 0,192,0\n";
    };
    EXPECT_EQ(drawn("00000000"), disc + line(400, 300 - up) + words);
    EXPECT_EQ(drawn("00000040"), disc + line(400 + across, 300) + words);
    EXPECT_EQ(drawn("000000C0"), disc + line(400 - across, 300) + words);
    show_airport_name = true;
    Do("simulator set 0x564 40420F00");  // 9 degrees north, outside the view
    EXPECT_EQ(drawn("00000000"), "text 400 300  | 0,0,0\nok\n");
    follow_aircraft = true;
    show_airport_name = false;
    EXPECT_EQ(drawn("00000000"), disc + line(400, 300 - up) + words);
}

}  // namespace
}  // namespace skerrand
