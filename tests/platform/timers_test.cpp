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

std::string Ticks(std::int64_t milliseconds) {
    ticks.clear();
    headless::Advance(milliseconds);
    return ticks + "at " + std::to_string(headless::Clock());
}

TEST(Timers, Ticks_Come_Out_Of_Order) {
    headless::Begin([] {
        Show(Second);
        Show(First);
    });
    EXPECT_EQ(Ticks(60), "c20 b20 a30 c40 b40 c60 a60 b60 at 60");
}

TEST(Timers, A_Wait_Of_The_Program_Lets_A_Timer_Tick_Twice_Or_Shortens_An_Advance) {
    headless::Begin([] { Show(Waiting); });
    EXPECT_EQ(Ticks(60), "d20 d40 w50 at 125");
    EXPECT_EQ(Ticks(20), "d125 w125 d145 at 145");
    Ticks(100);
    EXPECT_EQ(headless::Clock(), 245);
}

}  // namespace
