#include "simlink/fsuipc.h"

#include <gtest/gtest.h>

#include "tests/simlink/fake_link.h"

using namespace skerrand;

using namespace platform::simulator;

namespace {

class Link : public testing::Test {
  protected:
    void SetUp() override {
        Clear_Link();
        fake = {};
        Start("UIPCMAIN");
    }
    /// The code of an opening that fails; -1 if it does not tell the same by its value.
    std::int32_t Open(std::int32_t required = 6) {
        const bool opened = Open_Link(required, result);
        return opened == (result == Link_Ok) ? result : -1;
    }
    std::int32_t result = 99;
};

const std::string Made = "FSASMLIB:IPC atom:FSASMLIB:IPC:ABCDEF01:1 block:FSASMLIB:IPC:ABCDEF01:1 ";
const std::string Released = "-atom -view -block ";

TEST_F(Link, AStepGivesAnotherCodeOrLeavesThingsBehind) {
    const std::tuple<std::int32_t, void (*)(), std::string, std::int32_t> cases[] = {
        {Link_No_Server, [] { fake.window_class = "Notepad"; }, "", 6},
        {Link_No_Message, [] { fake.message = 0; }, "FSASMLIB:IPC ", 6},
        {Link_No_Atom, [] { fake.atom = 0; }, Made.substr(0, Made.find("block")), 6},
        {Link_No_Mapping, [] { fake.mapping = 0; }, Made + "-atom ", 6},
        {Link_No_Mapping, [] { fake.error = 183; }, Made + "-atom -block ", 6},
        {Link_No_View, [] { fake.view_fails = true; }, Made + "-atom -block ", 6},
        {Link_Refused, [] { fake.reply = 2; }, Made + Released, 6},
        {Link_Bad_Version, [] { Put(0x3304, 0x19980004, 4); }, Made + Released, 6},
        {Link_Bad_Version, [] { Put(0x3304, 0x80000000, 4); }, Made + Released, 6},
        {Link_Bad_Version, [] { Put(0x3308, 0xFADF0006, 4); }, Made + Released, 6},
        {Link_Wrong_Simulator, [] { Put(0x3308, 0xFADE0007, 4); }, Made + Released, 6},
        {Link_Wrong_Simulator, [] {}, Made + Released, 0x10006},
        {Link_Ok, [] { Put(0x3304, 0x19980005, 4); }, Made, 6},
        {Link_Ok, [] { Put(0x3308, 0xFADE0007, 4); }, Made, 0},
    };
    for (const auto& [code, arrange, calls, required] : cases) {
        SetUp();
        arrange();
        EXPECT_EQ(Open(required), code);
        EXPECT_EQ(fake.calls, calls) << code;
        if (code == Link_Ok) {
            EXPECT_EQ(Open(), Link_Already_Open);
            EXPECT_EQ(fake.calls, Made);
            Close_Link();
        }
        Close_Link();
        EXPECT_EQ(fake.calls, code == Link_Ok ? Made + Released : calls);
        EXPECT_FALSE(Queue_Read(0, 0, nullptr, result) || result != Link_Not_Open);
        EXPECT_FALSE(Queue_Write(0, 0, nullptr, result = 99) || result != Link_Not_Open);
        EXPECT_FALSE(Process_Queue(result = 99) || result != Link_Not_Open);
    }
}

TEST_F(Link, WaitsForTheVersionsTooLongOrTooShort) {
    for (int answering = 1; answering <= 6; ++answering) {
        SetUp();
        fake.window_class = "FS98MAIN";
        fake.server = [&](Block block) {
            const bool late = fake.sends < answering;  // one version or the other
            if (!late || answering % 2 == 0) Put(block, 16, 0x31230002);
            if (!late || answering % 2 == 1) Put(block, 36, 0xFADE0006);
        };
        EXPECT_EQ(Open(), answering <= 5 ? Link_Ok : Link_Bad_Version_Fallback);
        EXPECT_EQ(fake.sends, std::min(answering, 5));
        EXPECT_EQ(fake.clock, 100U * static_cast<unsigned>(fake.sends));
    }
}

/// A link that is open, with a server that does what the test says next.
class Open_Batch : public Link {
  protected:
    void SetUp() override {
        Link::SetUp();
        ASSERT_EQ(Open(), Link_Ok);
        fake.server = [](Block) {};
        fake.sends = 0;
    }
};

TEST_F(Open_Batch, RetriesAreCountedWrongly) {
    const std::tuple<int, std::uint32_t, std::uint32_t, std::int32_t, int> cases[] = {
        {0, 0, 1, Link_Ok, 1},          {10, 5, 1, Link_Ok, 11},
        {11, 0, 1, Link_Timed_Out, 11}, {99, 1400, 1, Link_Send_Failed, 11},
        {0, 0, 0, Link_Refused, 1},     {1, 0, 0x10001, Link_Refused, 2}};
    for (const auto& [failing, error, reply, code, sends] : cases) {
        SetUp();
        fake.server = [](Block block) { block[16] = 1; };
        fake.failing_sends = failing;
        fake.error = error;
        fake.reply = reply;
        std::uint8_t byte = 42;
        ASSERT_TRUE(Queue_Read(0, 1, &byte, result));
        EXPECT_EQ(Process_Queue(result), code == Link_Ok);
        EXPECT_EQ(result, code);
        EXPECT_EQ(byte, code == Link_Ok ? 1 : 42);
        EXPECT_EQ(fake.sends, sends);
        EXPECT_EQ(fake.clock, 100U * static_cast<unsigned>(sends));
        EXPECT_FALSE(Process_Queue(result) || result != Link_Nothing_Queued);
        EXPECT_EQ(fake.calls, Made);  // a failure does not close the link
    }
}

TEST_F(Open_Batch, LimitIsOffByAByteOrRequestOutOfPlace) {
    std::vector<std::uint8_t> bytes(40000, 5);
    fake.block.fill(0xEE);
    for (const std::uint32_t too_much : {32512U - 4 - 16 + 1, 0x80000000U, 0xFFFFFFFFU})
        EXPECT_FALSE(Queue_Read(0, too_much, bytes.data(), result) || result != Link_Batch_Full);
    EXPECT_FALSE(Queue_Write(0, 32512 - 4 - 12 + 1, bytes.data(), result));
    EXPECT_TRUE(Queue_Write(0, 32512 - 4 - 12 - 16, bytes.data(), result));
    EXPECT_FALSE(Queue_Read(0, 1, bytes.data(), result) || result != Link_Batch_Full);
    EXPECT_TRUE(Queue_Read(0, 0, nullptr, result));
    fake.server = [](Block block) { EXPECT_EQ(Answer_Batch(block), 1U); };
    EXPECT_TRUE(Process_Queue(result));
    EXPECT_EQ(stand_in.state_area[32479] * 10 + stand_in.state_area[32480], 50);

    // The most requests that fit, and the longest answer.
    std::size_t count = 0;
    while (Queue_Read(0, 0, &bytes[count], result))
        ++count;
    EXPECT_EQ(count, 2031U);
    EXPECT_TRUE(Process_Queue(result));
    EXPECT_TRUE(Queue_Read(0, 32512 - 4 - 16, bytes.data(), result));
    fake.server = [](Block block) { block[16 + 32491] = 6; };
    EXPECT_TRUE(Process_Queue(result));
    EXPECT_EQ(bytes[0] + bytes[32491] * 10 + bytes[32492], 0 + 60 + 5);
}

TEST_F(Open_Batch, SpoiltBlockIsTakenOnTrust) {
    std::uint32_t earlier = 1;
    for (int i = 0; i < 3; ++i)
        ASSERT_TRUE(Queue_Read(0, 4, &earlier, result));
    SetUp();  // that batch is never sent
    // Heads stand at 0 and 20, the end mark at 38.
    const std::tuple<const char*, int, std::uint32_t, bool, std::uint32_t, int> cases[] = {
        {"upper half of an id", 0, 0x77770001, true, 0, 0},
        {"end ahead of all", 0, 0x77770000, true, 0x11111111, 0x2222},
        {"unknown id", 20, 3, false, 0, 0x2222},
        {"write in place of a read", 0, 2, true, 0x11111111, 0x2222},
        {"address never given", 12, 3, true, 0x11111111, 0},
        {"address of another answer", 32, 1, true, 0, 0x2222},
        {"shorter answer than asked for", 28, 1, true, 0, 0x2200},
        {"count up to the block's end", 28, 32768 - 36, false, 0, 0},
        {"head past the block's end", 28, 32768 - 36 - 10, false, 0, 0},
        {"count past the block's end", 28, 32768 - 36 + 1, false, 0, 0x2222},
        {"negative count", 8, 0xFFFFFFFF, false, 0x11111111, 0x2222},
    };
    for (const auto& [what, at, value, ok, first, second] : cases) {
        std::uint32_t firsts[] = {0x11111111, 0xFEEDFACE};
        std::uint16_t seconds[] = {0x2222, 0xBEEF};
        fake.block.fill(0);
        fake.block[32768 - 10] = 1;
        ASSERT_TRUE(Queue_Read(0, 4, firsts, result));
        ASSERT_TRUE(Queue_Read(0, 2, seconds, result));
        fake.server = [at = at, value = value](Block block) { Put(block, at, value); };
        result = 99;
        EXPECT_EQ(Process_Queue(result), ok) << what;
        EXPECT_EQ(result, ok ? 0 : 99) << what;
        EXPECT_EQ(std::pair(firsts[0], int{seconds[0]}), std::pair(first, second)) << what;
        EXPECT_TRUE(firsts[1] == 0xFEEDFACE && seconds[1] == 0xBEEF && earlier == 1) << what;
    }
}

}  // namespace
