#include "simlink/fsuipc.h"

#include <array>
#include <cstring>
#include <gtest/gtest.h>
#include <random>

#include "simlink/link_state.h"
#include "tests/simlink/fake_link.h"

namespace skerrand {
namespace {

using Block = std::span<std::uint8_t>;

void Put(Block block, std::size_t at, std::uint32_t value) {
    std::memcpy(&block[at], &value, sizeof value);
}

/// Puts version words where the batch of the opening has its two answers.
auto Answers(std::uint32_t fsuipc, std::uint32_t fs) {
    return [=](Block block) {
        Put(block, 16, fsuipc);
        Put(block, 36, fs);
    };
}

class Link : public testing::Test {
  protected:
    void SetUp() override {
        Clear_Link();
        fake = {};
        fake.server = Answers(0x31230002, 0xFADE0006);
    }
    /// The code of an opening that fails; -1 if it does not tell the same by its value.
    std::int32_t Open(std::int32_t required = 6) {
        const bool opened = Open_Link(required, result);
        return opened == (result == Link_Ok) ? result : -1;
    }
    std::int32_t result = 99;
};

const std::string Made = "FSASMLIB:IPC atom:FSASMLIB:IPC:ABCDEF01:1 block:FSASMLIB:IPC:ABCDEF01:1 ";

TEST_F(Link, FailureAtAStepGivesAnotherCodeOrLeavesThingsBehind) {
    const std::string closed = Made + "-atom -view -block ";
    const struct {
        std::int32_t code;
        void (*arrange)();
        std::string calls;
    } cases[] = {
        {Link_No_Server, [] { fake.window_class = "Notepad"; }, ""},
        {Link_No_Message, [] { fake.message = 0; }, "FSASMLIB:IPC "},
        {Link_No_Atom, [] { fake.atom = 0; }, Made.substr(0, Made.find("block"))},
        {Link_No_Mapping, [] { fake.mapping_fails = true; }, Made + "-atom "},
        {Link_No_Mapping, [] { fake.mapping_exists = true; }, Made + "-atom -block "},
        {Link_No_View, [] { fake.view_fails = true; }, Made + "-atom -block "},
        {Link_Wrong_Simulator, [] { fake.server = Answers(0x31230002, 0xFADE0007); }, closed},
        {Link_Refused, [] { fake.reply = 2; }, closed},
    };
    for (const auto& c : cases) {
        SetUp();
        c.arrange();
        EXPECT_EQ(Open(), c.code);
        EXPECT_EQ(fake.calls, c.calls) << c.code;
        EXPECT_EQ(link_state.link_view, nullptr);
    }
}

TEST_F(Link, VersionWordsAreJudgedWrongly) {
    const struct {
        std::uint32_t fsuipc, fs;
        std::int32_t required, code;
    } cases[] = {
        {0x19980005, 0xFADE0006, 6, Link_Ok},
        {0x19980004, 0xFADE0006, 6, Link_Bad_Version},
        {0x80000000, 0xFADE0006, 6, Link_Bad_Version},
        {0x31230002, 0xFADF0006, 6, Link_Bad_Version},
        {0x31230002, 0xFADE0007, 0, Link_Ok},
        {0x31230002, 0xFADE0006, 0x10006, Link_Wrong_Simulator},
    };
    for (const auto& c : cases) {
        SetUp();
        fake.server = Answers(c.fsuipc, c.fs);
        EXPECT_EQ(Open(c.required), c.code) << std::hex << c.fsuipc << " " << c.fs;
        // The mark is cut off once the words are good, and only then.
        EXPECT_EQ(fs_version, c.code == Link_Bad_Version ? c.fs : c.fs & 0xFFFF);
    }
}

TEST_F(Link, WaitsForTheVersionsTooLongOrTooShort) {
    for (int answering = 1; answering <= 6; ++answering) {
        SetUp();
        fake.window_class = "FS98MAIN";
        fake.server = [&](Block block) {
            Put(block, 16, 0x31230002);
            if (fake.sends >= answering) Put(block, 36, 0xFADE0006);
        };
        EXPECT_EQ(Open(), answering <= 5 ? Link_Ok : Link_Bad_Version_Fallback);
        EXPECT_EQ(fake.sends, std::min(answering, 5));
        EXPECT_EQ(fake.clock, 100U * static_cast<unsigned>(fake.sends));
    }
}

TEST_F(Link, SecondOpeningOrClosingHarmsTheFirst) {
    EXPECT_EQ(Open(), Link_Ok);
    EXPECT_EQ(fake.parameter, -0x3FFF);  // the atom 0xC001
    EXPECT_EQ(Open(), Link_Already_Open);
    EXPECT_EQ(link_state.link_view, fake.block.get());
    EXPECT_FALSE(fsuipc_version != 0 || fs_version != 0);
    EXPECT_EQ(fake.calls, Made);
    Close_Link();
    Close_Link();
    EXPECT_EQ(fake.calls, Made + "-atom -view -block ");
    std::uint8_t byte = 0;
    EXPECT_FALSE(Queue_Read(0, 1, &byte, result) || result != Link_Not_Open);
    EXPECT_FALSE(Queue_Write(0, 1, &byte, result) || result != Link_Not_Open);
    EXPECT_FALSE(Process_Queue(result) || result != Link_Not_Open);
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

TEST_F(Open_Batch, BytesOfTheBatchAreOutOfPlace) {
    std::fill_n(link_state.link_view, 100, std::uint8_t{0xEE});
    std::uint32_t variable = 0xAABBCCDD;
    const std::array<std::uint8_t, 3> data{7, 8, 9};
    ASSERT_TRUE(Queue_Read(0x1234, 3, &variable, result));
    ASSERT_TRUE(Queue_Write(0x0F56, 3, data.data(), result));
    ASSERT_TRUE(Queue_Read(0x42, 0, nullptr, result));
    const std::vector<std::uint8_t> expected{1, 0, 0, 0, 0x34, 0x12, 0, 0, 3,   0, 0, 0,  //
                                             1, 0, 0, 0, 0,    0,    0,                   //
                                             2, 0, 0, 0, 0x56, 0x0F, 0, 0, 3,   0, 0, 0,  //
                                             7, 8, 9,                                     //
                                             1, 0, 0, 0, 0x42, 0,    0, 0, 0,   0, 0, 0,  //
                                             0, 0, 0, 0, 0,    0,    0, 0, 0xEE};
    fake.server = [&](Block block) {
        const Block start = block.first(expected.size());
        EXPECT_EQ(std::vector<std::uint8_t>(start.begin(), start.end()), expected);
        Put(block, 16, 0x02332211);  // the answer of three bytes and the id behind it
    };
    EXPECT_TRUE(Process_Queue(result));
    EXPECT_EQ(result, Link_Ok);
    EXPECT_EQ(variable, 0xAA332211);  // three bytes of four
    EXPECT_FALSE(Process_Queue(result) || result != Link_Nothing_Queued);
    EXPECT_EQ(fake.sends, 1);
}

TEST_F(Open_Batch, RetriesAreCountedWrongly) {
    const struct {
        int failing;
        std::uint32_t error, reply;
        std::int32_t code;
        int sends;
    } cases[] = {{0, 0, 1, Link_Ok, 1},          {10, 5, 1, Link_Ok, 11},
                 {11, 0, 1, Link_Timed_Out, 11}, {99, 1400, 1, Link_Send_Failed, 11},
                 {0, 0, 0, Link_Refused, 1},     {1, 0, 0x10001, Link_Refused, 2}};
    fake.server = [](Block block) { block[16] = 1; };
    for (const auto& c : cases) {
        fake.failing_sends = c.failing;
        fake.error = c.error;
        fake.reply = c.reply;
        fake.sends = 0;
        fake.clock = 100;
        std::uint8_t byte = 42;
        ASSERT_TRUE(Queue_Read(0, 1, &byte, result));
        EXPECT_EQ(Process_Queue(result), c.code == Link_Ok);
        EXPECT_EQ(result, c.code);
        EXPECT_EQ(byte, c.code == Link_Ok ? 1 : 42);
        EXPECT_EQ(fake.sends, c.sends);
        EXPECT_EQ(fake.clock, 100U * static_cast<unsigned>(c.sends));
        EXPECT_EQ(link_state.link_next, link_state.link_view);
        EXPECT_EQ(fake.calls, Made);  // a failure does not close the link
    }
}

TEST_F(Open_Batch, LimitIsOffByAByte) {
    std::vector<std::uint8_t> bytes(40000, 5);
    for (const std::uint32_t too_much : {32512U - 4 - 16 + 1, 32513U, 0x80000000U, 0xFFFFFFFFU}) {
        EXPECT_FALSE(Queue_Read(0, too_much, bytes.data(), result) || result != Link_Batch_Full);
    }
    EXPECT_FALSE(Queue_Write(0, 32512 - 4 - 12 + 1, bytes.data(), result));
    EXPECT_TRUE(Queue_Write(0, 32512 - 4 - 12 - 16, bytes.data(), result));
    EXPECT_FALSE(Queue_Read(0, 1, bytes.data(), result) || result != Link_Batch_Full);
    EXPECT_TRUE(Queue_Read(0, 0, nullptr, result));
    EXPECT_TRUE(Process_Queue(result));

    // The most requests that fit, and the longest answer.
    std::size_t count = 0;
    while (Queue_Read(0, 0, &bytes[count], result))
        ++count;
    EXPECT_EQ(count, 2031U);
    EXPECT_TRUE(Process_Queue(result));
    EXPECT_TRUE(Queue_Read(0, 32512 - 4 - 16, bytes.data(), result));
    fake.server = [](Block block) { block[16 + 32491] = 6; };
    EXPECT_TRUE(Process_Queue(result));
    EXPECT_EQ(bytes[32491] * 10 + bytes[32492], 65);
}

/// Two variables with a guard behind each.
struct Guarded {
    std::uint32_t first = 0x11111111, guard_1 = 0xFEEDFACE;
    std::uint16_t second = 0x2222, guard_2 = 0xBEEF;
    bool Is_Whole() const { return guard_1 == 0xFEEDFACE && guard_2 == 0xBEEF; }
};

TEST_F(Open_Batch, SpoiltBlockIsTakenOnTrust) {
    std::uint32_t earlier = 1;
    for (int i = 0; i < 3; ++i)
        ASSERT_TRUE(Queue_Read(0, 4, &earlier, result));
    SetUp();  // that batch is never sent
    const struct {
        const char* what;
        std::size_t at;  // heads at 0 and 20, the end mark at 38
        std::uint32_t value;
        bool ok;
        std::uint32_t first;
        std::uint16_t second;
    } cases[] = {
        {"upper half of an id", 0, 0x77770001, true, 0, 0},
        {"end ahead of all", 0, 0x77770000, true, 0x11111111, 0x2222},
        {"unknown id", 20, 3, false, 0, 0x2222},
        {"write in place of a read", 0, 2, true, 0x11111111, 0x2222},
        {"address never given", 12, 3, true, 0x11111111, 0},
        {"address of another answer", 32, 1, true, 0, 0x2222},
        {"shorter answer than asked for", 28, 1, true, 0, 0x2200},
        {"count up to the block's end", 28, 32768 - 36, false, 0, 0},
        {"count past the block's end", 28, 32768 - 36 + 1, false, 0, 0x2222},
        {"negative count", 8, 0xFFFFFFFF, false, 0x11111111, 0x2222},
    };
    for (const auto& c : cases) {
        Guarded mine;
        std::fill_n(link_state.link_view, 32768, std::uint8_t{0});
        ASSERT_TRUE(Queue_Read(0, 4, &mine.first, result));
        ASSERT_TRUE(Queue_Read(0, 2, &mine.second, result));
        fake.server = [&](Block block) { Put(block, c.at, c.value); };
        result = 99;
        EXPECT_EQ(Process_Queue(result), c.ok) << c.what;
        EXPECT_EQ(result, c.ok ? 0 : 99) << c.what;
        EXPECT_EQ(mine.first, c.first) << c.what;
        EXPECT_EQ(mine.second, c.second) << c.what;
        EXPECT_TRUE(mine.Is_Whole() && earlier == 1) << c.what;
    }
}

TEST_F(Open_Batch, RandomDamageReachesOtherMemory) {
    std::mt19937 random(5);
    const auto any = [&] { return static_cast<std::uint32_t>(random()); };
    const auto up_to = [&](std::uint32_t end) { return any() % end; };
    for (int round = 0; round < 3000; ++round) {
        std::vector<Guarded> variables(1 + up_to(6));
        for (Guarded& mine : variables) {
            ASSERT_TRUE(Queue_Read(any(), 4, &mine.first, result));
            ASSERT_TRUE(Queue_Write(any(), up_to(9), &mine, result));
            ASSERT_TRUE(Queue_Read(any(), up_to(3), &mine.second, result));
        }
        fake.server = [&](Block block) {
            for (std::uint32_t hits = 1 + up_to(8); hits > 0; --hits) {
                const std::uint32_t values[] = {any(), up_to(4), 32768 - up_to(200), up_to(99)};
                Put(block, up_to(60) * 4, values[up_to(4)]);
            }
            if (up_to(4) == 0) {  // nothing but requests, without an end
                for (std::size_t at = 0; at + 4 <= block.size(); at += 4)
                    Put(block, at, 1 + up_to(2));
            }
        };
        Process_Queue(result);
        for (const Guarded& mine : variables)
            ASSERT_TRUE(mine.Is_Whole()) << round;
    }
}

}  // namespace
}  // namespace skerrand
