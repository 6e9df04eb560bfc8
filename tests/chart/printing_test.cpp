#include "chart/printing.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <iterator>
#include <sstream>

#include "chart/chart_view.h"
#include "chart/form4.h"
#include "platform/headless/program.h"
#include "platform/headless/protocol.h"
#include "selection/airspace_search.h"
#include "selection/picks.h"

namespace skerrand {
namespace {

using Lines = std::vector<std::string>;

/// The lines of an answer, without its end.
Lines Ask(const std::string& command) {
    std::istringstream answer(platform::headless::Execute(command));
    Lines lines;
    for (std::string line; std::getline(answer, line);)
        lines.push_back(line);
    if (!lines.empty()) lines.pop_back();
    return lines;
}

bool Shows(const Lines& picture, const std::string& part) {
    return std::any_of(picture.begin(), picture.end(), [&](const std::string& line) {
        return line.find(part) != std::string::npos;
    });
}

/// One of everything, near the equator's start.
void Put_Airport() {
    departure_airport = {};
    departure_airport.airport_name = "Nowhere";
    departure_airport.icao_id = "ZZZZ";
    departure_airport.runways = {{"09L", "27R", 0, 0, 0, 0.01, 0, 91, 0, 0, 0}};
    departure_airport.ils = {{"", 0, 0, 0, "110.3"}};
    departure_airport.parkings = {{"GATE A 1", 0.001, 0, 50}};
    departure_airport.taxi_points = {{0, 0, 0}, {0, 0.001, 0.001}};
    departure_airport.taxi_paths = {{0, 0, 1, "TWY"}};
    departure_airspaces.assign(1, {});
    departure_airspaces[0].class_label = Label_Class_B;
    departure_airspaces[0].boundary = {{Boundary_Kind::Point_Start, 1, 0, 0},
                                       {Boundary_Kind::Point_Line, 1, 1, 0},
                                       {Boundary_Kind::Point_Center, 0, 0, 0},
                                       {Boundary_Kind::Point_Arc_Cw, -1, 1, 0},
                                       {Boundary_Kind::Point_Circle, 0, 0, 30}};
}

/// The chart in a window of 1000 by 700, the printer's sheet of twice that.
class Chart_With_Printer : public testing::Test {
  protected:
    void SetUp() override {
        platform::headless::Begin([] {
            Put_Airport();
            platform::Show(form4::window);
        });
        Ask("printer 2000 1400 1900 1300");
        ASSERT_TRUE(form4::Set_Up_Printer());
        Ask("resize Form4 1000 700");
        Ask("advance 1000");
    }

    static void Go_To_Zoom(int zoom) {
        while (chart_view.zoom_rate < zoom)
            form4::Command2_Click();
        while (chart_view.zoom_rate > zoom)
            form4::Command4_Click();
    }

    static Lines Printed() {
        Ask("click Form4.print_cht1");
        const Lines page = Ask("page " + Ask("pages").at(0));
        Ask("restore Form4");
        return page;
    }
};

TEST_F(Chart_With_Printer, LayerShowsAtTheWrongZoomOrInTheWrongOrder) {
    const auto looks = [](int zoom) {
        Go_To_Zoom(zoom);
        std::string all;
        for (const std::string& line : Ask("picture Form4"))
            all += line.substr(0, line.find(' ')) + line.substr(line.find(" | ")) + "\n";
        return all;
    };
    EXPECT_EQ(looks(Zoom_Airport),
              "ellipse | solid 2 128,64,64 | solid 128,64,64\ntext | 0,0,0\n"
              "line | solid 2 192,192,192\ntext | 0,0,0\n"
              "line | solid 2 0,192,0\ntext | 0,0,0\ntext | 0,0,0\n"
              "line | solid 1 255,255,0\nline | solid 1 255,255,0\nline | solid 1 255,255,0\n"
              "text | 0,0,0\ntext | 0,0,0\n");
    EXPECT_EQ(looks(Zoom_Airport - 1),
              "line | dashed 1 0,0,192\narc | dashed 1 0,0,192\n"
              "ellipse | dashed 1 0,0,192 | hollow 0,0,192\ntext | 0,0,0\n");
}

TEST_F(Chart_With_Printer, PageDiffersFromThePictureBeyondFrameAndTitle) {
    for (const int zoom : {1, 9, 22, 35, 36, 40, 46, 55}) {
        Go_To_Zoom(zoom);
        const Lines page = Printed();
        Ask("resize Form4 2000 1400");  // so that its picture has the size of the page
        Ask("advance 1000");
        Lines expected = Ask("picture Form4");
        Ask("resize Form4 1000 700");
        ASSERT_FALSE(expected.empty());
        expected.insert(expected.begin(), "rectangle 0 0 1900 1300 | solid 1 0,0,0 | hollow 0,0,0");
        const Lines title = {"rectangle 0 0 750 200 | solid 1 0,0,0 | solid 255,255,255",
                             "text 0 0 Skerrand v2.0 | 0,0,0",
                             "text 0 100 Nowhere  (ZZZZ) | 0,0,0"};
        expected.insert(expected.end(), title.begin(), title.end());
        EXPECT_EQ(page, expected) << "at zoom " << zoom;
    }
}

TEST_F(Chart_With_Printer, APreferenceSwitchesMoreOrLessThanItsOwn) {
    const struct {
        const char *box, *gone, *stays;
        int zoom;
    } cases[] = {{"Check1", "TWY", "192,192,192", 40},
                 {"Check2", "192,192,192", "GATE A 1", 40},
                 {"Check3", "255,255,0", "0,192,0", 40},
                 {"Check4", "dashed", "Nowhere", 9},
                 {"Check5", "128,64,64", "192,192,192", 40},
                 {"Check7", "110.3 Mhz", "255,255,0", 40},
                 {"Check8", "09L", "  91*", 40},
                 {"Check9", "91*", "09L", 40},
                 {"Check10", "Nowhere |", "0,192,0", 40}};
    for (const auto& c : cases) {
        Go_To_Zoom(c.zoom);
        ASSERT_TRUE(Shows(Ask("picture Form4"), c.gone)) << c.box;
        for (const bool off : {true, false}) {
            Ask("click Form4.pref1");
            Ask(std::string("click Form5.") + c.box);
            Ask("close Form5");
            Ask("advance 1000");
            for (const Lines& picture : {Ask("picture Form4"), Printed()}) {
                EXPECT_NE(Shows(picture, c.gone), off) << c.box;
                EXPECT_TRUE(Shows(picture, c.stays)) << c.box;
            }
        }
    }
}

}  // namespace
}  // namespace skerrand
