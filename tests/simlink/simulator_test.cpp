#include "platform/headless/simulator.h"

#include <gtest/gtest.h>

#include "platform/headless/program.h"
#include "platform/headless/protocol.h"
#include "platform/headless/timers.h"
#include "platform/link.h"
#include "simlink/fsuipc.h"

namespace skerrand {
namespace {

using platform::headless::Execute;

constexpr platform::Window blank{
    .name = "Blank", .caption = "", .client_width = 15, .client_height = 15, .controls = {}};

/// The client and the scripted simulator, behind a window that keeps the program alive.
class Simulator : public testing::Test {
  protected:
    void SetUp() override {
        platform::headless::Begin([] { platform::Show(blank); });
        platform::headless::Start_Simulator("UIPCMAIN");
        Clear_Link();
    }
    void TearDown() override { Close_Link(); }
    std::int32_t result = 99;
};

TEST_F(Simulator, StateAreaIsReadOrWrittenOutsideOrOutOfPlace) {
    ASSERT_TRUE(Open_Link(6, result));
    platform::headless::State_Area()[0xFFFF] = 7;
    const std::uint32_t zeros = 0;
    std::uint32_t at_end = 9, outside = 9, far = 9, version = 0;
    ASSERT_TRUE(Queue_Read(0xFFFF, 4, &at_end, result));
    ASSERT_TRUE(Queue_Read(0x10000, 4, &outside, result));
    ASSERT_TRUE(Queue_Read(0xFFFFFFFF, 4, &far, result));
    ASSERT_TRUE(Queue_Write(0x3308 + 1, 4, &zeros, result));
    ASSERT_TRUE(Queue_Write(0xFFFF, 4, &zeros, result));
    ASSERT_TRUE(Queue_Write(0xFFFFFFFF, 4, &zeros, result));
    ASSERT_TRUE(Queue_Read(0x3308, 4, &version, result));
    EXPECT_TRUE(Process_Queue(result));
    EXPECT_EQ(at_end, 7U);
    EXPECT_EQ(outside, 0U);
    EXPECT_EQ(far, 0U);
    EXPECT_EQ(version, 0xFADE0006);
    EXPECT_EQ(platform::headless::State_Area()[0xFFFF], 0);
}

TEST_F(Simulator, RestartKeepsTheOldStateOrAnOpenLinkSurvivesItsEnd) {
    for (const char* line : {"reply 0", "set 13064 00000000", "on fallback"}) {
        ASSERT_EQ(Execute(std::string("simulator ") + line), "ok\n");
    }
    ASSERT_TRUE(Open_Link(6, result));
    EXPECT_EQ(platform::FindWindowExA("UIPCMAIN"), 0U);
    EXPECT_EQ(platform::headless::Clock(), 100);
    std::uint8_t byte = 3;
    ASSERT_TRUE(Queue_Read(0x3304, 1, &byte, result));
    ASSERT_EQ(Execute("simulator off"), "ok\n");
    EXPECT_FALSE(Process_Queue(result) || result != Link_Send_Failed);
    EXPECT_EQ(byte, 3);
    Close_Link();
    EXPECT_FALSE(Open_Link(6, result) || result != Link_No_Server);
}

TEST_F(Simulator, BadCommandIsTakenOrChangesSomething) {
    for (const char* bad : {"on twice",       "off 1",
                            "set 0x10000 00", "set 0xFFFF 0000",
                            "set 0 0",        "set 0 0g",
                            "set 0 +1",       "set 0x 00",
                            "set -1 00",      "set 0  00",
                            "get 0 65537",    "get 0",
                            "reply",          "reply x",
                            "reply 1 after",  "reply 1 after -1",
                            "reply 1 then 2", "reply 4294967296",
                            "exchanges 1",    "fly"}) {
        EXPECT_TRUE(Execute(std::string("simulator ") + bad).starts_with("error ")) << bad;
    }
    EXPECT_EQ(Execute("simulator get 0x3304 8"), "020023310600defa\nok\n");
    EXPECT_EQ(Execute("simulator set 65535 Fe"), "ok\n");
    EXPECT_EQ(Execute("simulator get 0xffff 1"), "fe\nok\n");
    EXPECT_TRUE(Open_Link(6, result));
}

}  // namespace
}  // namespace skerrand
