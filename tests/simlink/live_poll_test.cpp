#include "simlink/live_poll.h"

#include <gtest/gtest.h>

#include "chart/current_chart.h"
#include "chart/form4.h"
#include "platform/headless/program.h"
#include "platform/headless/protocol.h"
#include "platform/simulator/simulator.h"
#include "simlink/fsuipc.h"

namespace skerrand {
namespace {

using platform::headless::Execute;

TEST(Poll, RawValuesAreConvertedWrongly) {
    platform::headless::Begin([] {
        platform::simulator::Start("UIPCMAIN");
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

TEST(Simulator, StateAreaIsReadOrWrittenOutsideOrOutOfPlace) {
    platform::simulator::Start("UIPCMAIN");
    auto& area = platform::simulator::stand_in.state_area;
    std::int32_t result = 99;
    ASSERT_TRUE(Open_Link(6, result));
    area[0xFFFF] = 7;
    const std::uint32_t zeros = 0;
    std::uint32_t at_end = 9, outside = 9, far = 9, version = 0;
    Queue_Read(0xFFFF, 4, &at_end, result);
    Queue_Read(0x10000, 4, &outside, result);
    Queue_Read(0xFFFFFFFF, 4, &far, result);
    Queue_Write(0x3308 + 1, 4, &zeros, result);
    Queue_Write(0xFFFF, 4, &zeros, result);
    Queue_Write(0xFFFFFFFF, 4, &zeros, result);
    Queue_Read(0x3308, 4, &version, result);
    EXPECT_TRUE(Process_Queue(result));
    EXPECT_EQ(at_end, 7U);
    EXPECT_EQ(outside + far, 0U);
    EXPECT_EQ(version, 0xFADE0006);
    EXPECT_EQ(area[0xFFFF], 0);
    Close_Link();
}

}  // namespace
}  // namespace skerrand
