// What the headers of the layer promise, seen from the program's side, on every back-end;
// screen_test.cpp has what there is on a screen alone.

#include <array>
#include <gtest/gtest.h>

#include "platform/files.h"
#include "platform/keys.h"
#include "platform/printer.h"
#include "tests/conformance/driver.h"
#include "tests/conformance/windows.h"

namespace conformance {

using namespace std::string_literals;

static void Tick_Once(Handler handler) {
    on_fast_tick = handler;
    Tick_Every(10, Fast);
    driver::Advance(100);
}

// Times are checked from one side only, so that a slow machine makes no test fail: a tick may come
// late, and never early.
TEST_F(Conformance, A_Timer_Starts_Anew_After_A_Stop_Or_With_An_Interval_But_Not_While_It_Runs) {
    Start_Timer(Fast);
    driver::Advance(120);
    Start_Timer(Fast);
    driver::Advance(120);
    EXPECT_EQ(counts.fast_ticks, 1);
    driver::Advance(60);
    Stop_Timer(Fast);
    EXPECT_FALSE(Is_Running(Fast));
    for (const int interval : {200, 300}) {
        counts = {};
        const long long since = driver::Clock();
        interval == 200 ? Start_Timer(Fast) : Set_Interval(Fast, interval);
        driver::Advance(interval - 80);
        EXPECT_TRUE(counts.fast_ticks == 0 || driver::Clock() - since >= interval);
    }
    driver::Advance(150);
    EXPECT_GE(counts.fast_ticks, 1);
}

TEST_F(Conformance, A_Stopped_Timer_One_Of_Interval_0_And_One_Of_A_Gone_Window_Never_Tick) {
    Tick_Every(0, Fast);
    Start_Timer(Slow);
    Stop_Timer(Slow);
    driver::Advance(250);
    EXPECT_TRUE(Is_Running(Fast));
    Show(Second_Window);
    Set_Interval(Fast, 10);
    Unload(Main_Window);
    EXPECT_FALSE(Is_Running(Fast));
    driver::Advance(50);
    EXPECT_EQ(counts.fast_ticks + counts.slow_ticks, 0);
}

TEST_F(Conformance, Ticks_Are_Dropped_While_A_Message_Stands_With_Its_Icon_Above_All_Windows) {
    SetWindowPos(Main_Window, Insert_After::HWND_TOPMOST, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
    Tick_Every(20, Slow);
    Tick_Once([] {
        Stop_Timer(Fast);
        const int before = counts.slow_ticks;
        for (const Icon icon : {Icon::Information, Icon::Exclamation, Icon::Critical}) {
            Message_Box("Caf\xE9\r\nopen", icon, "Title");
            const driver::Message shown{icon, "Title", "Caf\xE9\r\nopen", driver::has_screen};
            EXPECT_EQ(driver::Take_Messages(), std::vector{shown});
        }
        EXPECT_EQ(counts.slow_ticks, before);
    });
    EXPECT_EQ(counts.fast_ticks, 1);
}

TEST_F(Conformance, The_Program_Ends_By_A_Call_Or_With_Its_Last_Window_And_Not_Before) {
    Tick_Once(End_Program);
    EXPECT_FALSE(driver::Running());
    EXPECT_EQ(counts.fast_ticks, 1);
    EXPECT_EQ(counts.unloads, 0);

    driver::Start(Show_Main);
    Tick_Once([] {
        Unload(Main_Window);
        Set_Caption(Main_Window, "gone");
        Start_Timer(Fast);
        Show(Second_Window);
    });
    EXPECT_TRUE(driver::Running() && Is_Loaded(Second_Window));
    EXPECT_EQ(counts.fast_ticks, 1);
    EXPECT_EQ(counts.unloads, 1);
    driver::Do(driver::Close, Second_Window);
    EXPECT_FALSE(driver::Running());
}

TEST_F(Conformance, A_Window_Loads_Once_And_Tells_Every_Change_Of_Its_Size_And_State) {
    const auto before = Pixels(Main_Window);
    EXPECT_GE(before.first, Twips_To_Pixels_X(6000));
    EXPECT_GE(before.second, Twips_To_Pixels_Y(4800));
    const auto expect_told = [&](int resizes, Window_State state, int wider = 0, int higher = 0) {
        EXPECT_EQ(counts.resizes, resizes);
        EXPECT_EQ(counts.state_at_resize, state);
        EXPECT_EQ(Pixels(Main_Window), std::pair(before.first + wider, before.second + higher));
    };
    Show(Main_Window);
    EXPECT_EQ(counts.loads, 1);
    expect_told(0, {});
    driver::Do(driver::Minimise, Main_Window);
    expect_told(1, Window_State::Minimised);
    driver::Do(driver::Restore, Main_Window);
    expect_told(2, Window_State::Normal);
    Minimise(Main_Window);
    expect_told(3, Window_State::Minimised);
    driver::Do(driver::Restore, Main_Window);
    driver::Resize(Main_Window, 500, 400);
    expect_told(5, Window_State::Normal, 100, 80);
}

TEST_F(Conformance, A_Fixed_Frame_Has_No_Edges_To_Drag) {
    for (const Window* window : {&Second_Window, &Key_Window}) {
        Show(*window);
        const auto before = Pixels(*window);
        driver::Resize(*window, 500, 400);
        EXPECT_EQ(Pixels(*window), before) << window->name;
    }
}

TEST_F(Conformance,
       A_Press_Arrives_In_User_Coordinates_But_Not_On_A_Control_Nor_A_Disabled_Window) {
    Set_User_Coordinates(Main_Window, -10, 50, 30, 34);  // 400 by 320 pixels: 0.1 and -0.05 each
    driver::Press(Main_Window, Mouse_Button::Middle, 100, 200);
    EXPECT_EQ(counts.button, Mouse_Button::Middle);
    EXPECT_EQ(std::pair(counts.press_x, counts.press_y), std::pair(0.0F, 40.0F));
    driver::Press(Main_Window, Mouse_Button::Left, 395, 95);  // on the frame
    Set_Enabled(Main_Window, false);
    driver::Press(Main_Window, Mouse_Button::Left, 100, 200);
    driver::Click(Main("Button1"));
    driver::Do(driver::Close, Main_Window);
    EXPECT_EQ((std::array{counts.presses, counts.clicks, counts.unloads}), (std::array{1, 0, 0}));
}

TEST_F(Conformance, A_Change_Is_Told_Once_And_An_Option_Clears_The_Others_Of_Its_Frame_Alone) {
    for (const Control_Ref control : {Check1, Option1, Main("Option3"), Check1, Option1})
        Set_Checked(control, true);
    driver::Click(Option2);
    EXPECT_TRUE(!Is_Checked(Option1) && Is_Checked(Option2) && Is_Checked(Main("Option3")));
    Set_Checked(Option2, false);
    EXPECT_FALSE(Is_Checked(Option2));
    EXPECT_EQ((std::array{counts.check_clicks, counts.first_clicks, counts.second_clicks}),
              (std::array{1, 1, 1}));
    for (const bool enabled : {true, false}) {
        Set_Enabled(Check1, enabled);
        driver::Click(Check1);
        EXPECT_FALSE(Is_Checked(Check1));
        EXPECT_EQ(counts.check_clicks, 2);
    }
    for (const char* text : {"twice", "once"}) {
        Set_Text(Main("Text1"), text);
        EXPECT_EQ(Text_Of(Main("Text1")), "once");
        EXPECT_EQ(counts.text_changes, 2);
    }
}

TEST_F(Conformance, Only_A_Picked_Entry_Is_A_Selection) {
    const auto selected = [] { return std::pair(Selected_Index(Combo1), Text_Of(Combo1)); };
    const std::string sorted[] = {"A", "B", "a", "b", "\xE9t\xE9"};
    Add_Entries(Combo1, std::array{sorted[3], sorted[4], sorted[0], sorted[2], sorted[1]});
    EXPECT_EQ(selected(), std::pair(-1, "[]"s));
    for (int i = -1; i <= 5; ++i)
        EXPECT_EQ(Entry_Text(Combo1, i), i < 0 || i == 5 ? "" : sorted[i]);
    driver::Pick(Combo1, 4);
    EXPECT_EQ(selected(), std::pair(4, sorted[4]));
    driver::Type(Combo1, "A");
    EXPECT_EQ(selected(), std::pair(-1, "A"s));
    driver::Pick(Combo1, 0);
    Set_Text(Combo1, "B");
    EXPECT_EQ(selected(), std::pair(-1, "B"s));
    Clear_Entries(Combo1);
    EXPECT_EQ(Entry_Count(Combo1), 0);
    EXPECT_EQ(selected(), std::pair(-1, "B"s));
    Add_Entries(Combo1, sorted);
    driver::Pick(Combo1, 1);
    Clear_Entries(Combo1);
    EXPECT_EQ(selected(), std::pair(-1, ""s));
}

TEST_F(Conformance, A_Folder_List_Moves_Only_To_Folders_That_Exist) {
    Show(Second_Window);
    Set_Folder_Path(Dir1, ".");
    const std::string working_folder = Folder_Path(Dir1);
    EXPECT_EQ(working_folder, Current_Folder());
    Set_Folder_Path(Dir1, "/no such folder/");
    EXPECT_EQ(Folder_Path(Dir1), working_folder);
    Set_Folder_Path(Dir1, "/");
    const std::string root = Folder_Path(Dir1);
    EXPECT_TRUE(root == "/" || root == working_folder.substr(0, 3)) << root;
    EXPECT_GT(Entry_Count(Dir1), 0);
}

TEST_F(Conformance, A_Held_Key_Is_One_Press_And_One_Let_Go_Is_Told_Once_Unless_Before_The_Start) {
    const auto states = [](bool down) {
        driver::Key('A', down);
        const int first = GetAsyncKeyState('A');
        return std::pair(first, static_cast<int>(GetAsyncKeyState('A')));
    };
    EXPECT_EQ(states(true), std::pair(0x8001, 0x8000));
    EXPECT_EQ(states(true), std::pair(0x8000, 0x8000));
    EXPECT_EQ(states(false), std::pair(0, 0));
    driver::Key('A', true);
    EXPECT_EQ(states(false), std::pair(1, 0));
    driver::Key('A', true);
    driver::Key('A', false);
    driver::Start(Show_Main);
    for (const int code : {-1, 65, 66, 256})
        EXPECT_EQ(GetAsyncKeyState(code), 0);
}

TEST_F(Conformance, A_Page_Has_Its_Sheet_And_Its_Lines) {
    EXPECT_EQ(Paper_Size().width, 0);
    ASSERT_TRUE(Open_Printer());
    EXPECT_GE(Printer_Twips_To_Pixels_X(Paper_Size().width), Printable_Size().width);
    EXPECT_GT(Printable_Size().width, 0);
    EXPECT_GT(Text_Size("long").width, Text_Size("lo").width);
    EXPECT_EQ(Text_Size("long").height, Text_Size("").height);
    EXPECT_FALSE(End_Document());
}

}  // namespace conformance
