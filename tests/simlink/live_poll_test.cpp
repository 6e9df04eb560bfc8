#include "simlink/live_poll.h"

#include <gtest/gtest.h>

#include "chart/current_chart.h"
#include "chart/form4.h"
#include "platform/headless/program.h"
#include "platform/headless/protocol.h"
#include "platform/simulator/simulator.h"
#include "simlink/fsuipc.h"

using namespace skerrand;

using platform::headless::Execute;

TEST(Poll, RawValuesAreConvertedWrongly) {
    platform::headless::Begin([] {
        platform::simulator::Start("UIPCMAIN");
        platform::Show(form4::window);
    });
    const std::tuple<std::string, std::string, std::uint8_t, int> cases[] = {
        {"0xEC6 0800", "0", Unit_Millibars, 0},  // half to even
        {"0xEC6 1800", "2", Unit_Millibars, 0},      {"0xEC6 FFFF", "4096", Unit_Millibars, 0},
        {"0xEC6 0500", "0.01", Unit_Inches, 0},      {"0x580 000000C0", "0.01", Unit_Inches, -90},
        {"0x580 00000010", "0.01", Unit_Inches, 22}, {"0x580 00000030", "0.01", Unit_Inches, 68},
    };
    for (const auto& [set, altimeter, unit, heading] : cases) {
        altimeter_unit = unit;
        Execute("simulator set " + set);
        Execute("advance 1000");
        EXPECT_EQ(Execute("get Form4.Label1.caption"), "Altimeter: " + altimeter + "\nok\n");
        EXPECT_EQ(aircraft_heading, heading) << set;
    }
    platform::Unload(form4::window);
}

TEST(Simulator, StateAreaIsReadOrWrittenOutsideOrOutOfPlace) {
    platform::simulator::Start("UIPCMAIN");
    platform::simulator::Put(0xFFFF, 7, 1);
    platform::simulator::Put(0, 5, 1);
    std::int32_t result = 99;
    ASSERT_TRUE(Open_Link(6, result));
    const std::uint32_t zeros = 0;
    for (const auto& [offset, before, after] : std::initializer_list<std::array<std::uint32_t, 3>>{
             {0xFFFF, 7, 0}, {0x10000, 0, 0}, {0xFFFFFFFF, 0, 0}, {0x3309, 0xFADE00, 0xFADE00}}) {
        std::uint32_t read = 9, again = 9;
        Queue_Read(offset, 4, &read, result);
        Queue_Write(offset, 4, &zeros, result);
        Queue_Read(offset, 4, &again, result);
        EXPECT_TRUE(Process_Queue(result));
        EXPECT_EQ(std::pair(read, again), std::pair(before, after)) << offset;
    }
    Close_Link();
}
