#include <gtest/gtest.h>
#include <string>

#include "platform/headless/program.h"
#include "platform/link.h"
#include "platform/window.h"

namespace {

using namespace platform;

std::string ticks;

void Note(char name) {
    ticks += name + std::to_string(headless::Clock()) + " ";
}

using enum Control_Kind;

void Note_And_Wait() {
    Note('w');
    if (headless::Clock() == 50) Sleep(75);
}

constexpr Control first_controls[] = {
    {.name = "A", .kind = Timer, .handler = [] { Note('a'); }, .interval = 30},
    {.name = "B", .kind = Timer, .handler = [] { Note('b'); }, .interval = 20}};
constexpr Control second_controls[] = {
    {.name = "C", .kind = Timer, .handler = [] { Note('c'); }, .interval = 20}};
constexpr Control waiting_controls[] = {
    {.name = "W", .kind = Timer, .handler = Note_And_Wait, .interval = 50},
    {.name = "D", .kind = Timer, .handler = [] { Note('d'); }, .interval = 20}};
constexpr Window First = {"First", "", 1500, 1500, first_controls};
constexpr Window Second = {"Second", "", 1500, 1500, second_controls};
constexpr Window Waiting = {"Waiting", "", 1500, 1500, waiting_controls};

TEST(Timers, Ticks_Come_By_Time_Then_By_Loading_Then_By_Table) {
    ticks.clear();
    headless::Begin([] {
        Show(Second);
        Show(First);
    });
    headless::Advance(60);
    EXPECT_EQ(ticks, "c20 b20 a30 c40 b40 c60 a60 b60 ");
    EXPECT_EQ(headless::Clock(), 60);
}

TEST(Timers, A_Wait_Of_The_Program_Makes_Each_Timer_Late_Once_And_Adds_To_No_Advance) {
    ticks.clear();
    headless::Begin([] { Show(Waiting); });
    headless::Advance(60);
    EXPECT_EQ(ticks, "d20 d40 w50 ");
    EXPECT_EQ(headless::Clock(), 125);
    ticks.clear();
    headless::Advance(20);
    EXPECT_EQ(ticks, "d125 w125 d145 ");
    headless::Advance(100);
    EXPECT_EQ(headless::Clock(), 245);
}

}  // namespace
