#include "simlink/live_poll.h"

#include <gtest/gtest.h>

#include "chart/current_chart.h"
#include "chart/form4.h"
#include "platform/headless/program.h"
#include "platform/headless/protocol.h"
#include "platform/headless/simulator.h"

namespace skerrand {
namespace {

using platform::headless::Execute;

TEST(Poll, RawValuesAreConvertedWrongly) {
    platform::headless::Begin([] {
        platform::headless::Start_Simulator("UIPCMAIN");
        platform::Show(form4::window);
    });
    const struct {
        const char *set, *altimeter;
        std::uint8_t unit = Unit_Inches;
        int heading = 0;
    } cases[] = {
        {"0xEC6 0800", "0", Unit_Millibars},  // half to even
        {"0xEC6 1800", "2", Unit_Millibars},
        {"0xEC6 FFFF", "4096", Unit_Millibars},
        {"0xEC6 0500", "0.01"},
        {"0x580 000000C0", "0.01", Unit_Inches, -90},
        {"0x580 00000010", "0.01", Unit_Inches, 22},
        {"0x580 00000030", "0.01", Unit_Inches, 68},
    };
    for (const auto& c : cases) {
        altimeter_unit = c.unit;
        Execute(std::string("simulator set ") + c.set);
        Execute("advance 1000");
        EXPECT_EQ(Execute("get Form4.Label1.caption"),
                  std::string("Altimeter: ") + c.altimeter + "\nok\n");
        EXPECT_EQ(aircraft_heading, c.heading) << c.set;
    }
    platform::Unload(form4::window);
}

}  // namespace
}  // namespace skerrand
