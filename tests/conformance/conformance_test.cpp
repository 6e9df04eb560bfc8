// One test for every back-end: what the headers of the layer promise, seen from the program's side.

#include <array>
#include <clocale>
#include <filesystem>
#include <gtest/gtest.h>

#include "platform/drawing.h"
#include "platform/files.h"
#include "platform/keys.h"
#include "platform/printer.h"
#include "platform/timers.h"
#include "tests/conformance/driver.h"
#include "tests/conformance/windows.h"

namespace conformance {

using namespace platform;

namespace {

constexpr auto Fast = Main("Fast");
constexpr auto Slow = Main("Slow");
constexpr auto Check1 = Main("Check1");
constexpr auto Combo1 = Main("Combo1");
constexpr auto List1 = Main("List1");
constexpr auto Option1 = Main("Option1");
constexpr auto Option2 = Main("Option2");

class Conformance : public testing::Test {
  protected:
    void SetUp() override { driver::Start(Show_Main); }
};

void Tick_Every(int milliseconds, Control_Ref timer) {
    Set_Interval(timer, milliseconds);
    Start_Timer(timer);
}

// Times are checked from one side only, so that a slow machine makes no test fail: a tick may come
// late, and never early.
TEST_F(Conformance, Starting_A_Running_Timer_Must_Not_Put_Its_Tick_Off) {
    Start_Timer(Fast);
    driver::Advance(120);
    Start_Timer(Fast);
    driver::Advance(120);
    EXPECT_EQ(counts.fast_ticks, 1);
}

TEST_F(Conformance, A_Timer_Started_After_A_Stop_Or_Given_An_Interval_Starts_It_Anew) {
    Start_Timer(Fast);
    driver::Advance(120);
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

TEST_F(Conformance, A_Tick_That_Unloads_Its_Own_Window_Runs_To_Its_End) {
    Show(Second_Window);
    on_fast_tick = [] {
        Unload(Main_Window);
        Set_Caption(Main_Window, "gone");
        Start_Timer(Fast);
        counts.clicks = 7;
    };
    Start_Timer(Fast);
    driver::Advance(700);
    EXPECT_EQ(counts.clicks, 7);
    EXPECT_EQ(counts.fast_ticks, 1);
    EXPECT_EQ(counts.unloads, 1);
    EXPECT_TRUE(driver::Running());
}

TEST_F(Conformance, Ticks_Are_Dropped_While_A_Message_Stands_With_Its_Icon_Above_All_Windows) {
    on_fast_tick = [] {
        Stop_Timer(Fast);
        const int before = counts.slow_ticks;
        for (const Icon icon : {Icon::Information, Icon::Exclamation, Icon::Critical})
            Message_Box("Caf\xE9\r\nopen", icon, "Title");
        EXPECT_EQ(counts.slow_ticks, before);
    };
    SetWindowPos(Main_Window, Insert_After::HWND_TOPMOST, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
    Tick_Every(20, Slow);
    Start_Timer(Fast);
    driver::Advance(250);
    std::vector<driver::Message> expected;
    for (const Icon icon : {Icon::Information, Icon::Exclamation, Icon::Critical})
        expected.push_back({icon, "Title", "Caf\xE9\r\nopen", driver::Has_Screen()});
    EXPECT_EQ(driver::Take_Messages(), expected);
}

TEST_F(Conformance, The_Program_Ends_By_A_Call_Or_With_Its_Last_Window_And_Not_Before) {
    Tick_Every(10, Fast);
    on_fast_tick = End_Program;
    driver::Advance(100);
    EXPECT_FALSE(driver::Running());
    EXPECT_EQ(counts.fast_ticks, 1);
    EXPECT_EQ(counts.unloads, 0);

    driver::Start(Show_Main);
    on_fast_tick = [] {
        Unload(Main_Window);
        Show(Second_Window);
    };
    Tick_Every(10, Fast);
    driver::Advance(100);
    EXPECT_TRUE(driver::Running());
    driver::Do(driver::Close, Second_Window);
    EXPECT_FALSE(driver::Running());
}

std::pair<double, double> Pixels(const Window& window) {
    const Size outer = Outer_Size(window);
    return {Twips_To_Pixels_X(outer.width), Twips_To_Pixels_Y(outer.height)};
}

TEST_F(Conformance, A_Window_Loads_Once_And_Tells_Every_Change_Of_Its_Size_And_State) {
    Show(Main_Window);
    EXPECT_EQ(counts.loads, 1);
    EXPECT_EQ(counts.resizes, 0);
    const auto [width, height] = Pixels(Main_Window);
    EXPECT_GE(width, Twips_To_Pixels_X(6000));
    EXPECT_GE(height, Twips_To_Pixels_Y(4800));

    driver::Do(driver::Minimise, Main_Window);
    EXPECT_EQ(counts.resizes, 1);
    EXPECT_EQ(counts.state_at_resize, Window_State::Minimised);
    EXPECT_EQ(Pixels(Main_Window), std::pair(width, height));
    driver::Do(driver::Restore, Main_Window);
    EXPECT_EQ(counts.resizes, 2);
    EXPECT_EQ(counts.state_at_resize, Window_State::Normal);
    Minimise(Main_Window);
    EXPECT_EQ(counts.resizes, 3);
    EXPECT_EQ(State_Of(Main_Window), Window_State::Minimised);
    driver::Do(driver::Restore, Main_Window);

    driver::Resize(Main_Window, 500, 400);
    EXPECT_EQ(counts.resizes, 5);
    EXPECT_EQ(Pixels(Main_Window), std::pair(width + 100, height + 80));
}

TEST_F(Conformance, A_Frame_Has_No_Button_To_Maximise_And_A_Fixed_One_No_Edges_To_Drag) {
    Show(Second_Window);
    Show(Key_Window);
    for (const Window* window : {&Main_Window, &Second_Window, &Key_Window}) {
        const auto before = Pixels(*window);
        driver::Do(driver::Maximise, *window);
        if (window != &Main_Window) driver::Resize(*window, 500, 400);
        EXPECT_EQ(Pixels(*window), before) << window->name;
    }
    EXPECT_EQ(counts.resizes, 0);
}

TEST_F(Conformance, A_Window_Is_On_Top_And_At_Its_Place_From_Its_Load_On_Until_That_Changes) {
    const auto place = [](Insert_After after, int x, int y, unsigned flags) {
        SetWindowPos(Second_Window, after, x, y, 300, 200, flags);
        driver::Advance(20);
        return driver::Frame_Of(Second_Window);
    };
    using enum Insert_After;
    on_second_load = [] { SetWindowPos(Second_Window, HWND_TOPMOST, 0, 0, 0, 0, SWP_NOSIZE); };
    Show(Second_Window);
    driver::Advance(20);
    EXPECT_EQ(driver::Frame_Of(Second_Window), (driver::Frame{0, 0, true}));
    const auto before = Pixels(Second_Window);
    EXPECT_EQ(place(HWND_NOTOPMOST, 7, 7, SWP_NOMOVE | SWP_NOSIZE), (driver::Frame{0, 0, false}));
    EXPECT_EQ(place(HWND_TOPMOST, 60, 40, SWP_NOSIZE), (driver::Frame{60, 40, true}));
    EXPECT_EQ(Pixels(Second_Window), before);
    EXPECT_EQ(place(HWND_TOPMOST, 7, 7, SWP_NOMOVE), (driver::Frame{60, 40, true}));
    EXPECT_EQ(Pixels(Second_Window), std::pair(300.0, 200.0));
}

TEST_F(Conformance,
       Tab_Goes_By_The_Table_To_The_Selected_Option_And_Enter_Presses_What_It_Reached) {
    if (!driver::Has_Screen()) GTEST_SKIP();
    Show(Second_Window);
    for (const Control_Ref option : {Second("Option2"), Second("Option1")}) {
        Set_Checked(option, true);
        const char* name = second_controls[option.index].name;
        for (const char* expected : {"Button2", name, "Dir1", "Text1", "Button1"}) {
            EXPECT_EQ(driver::Focus(Second_Window), expected);
            driver::Press_Key(Second_Window, driver::Enter);
            driver::Press_Key(Second_Window, driver::Tab);
        }
    }
    EXPECT_EQ(counts.clicks, 2);
}

TEST_F(Conformance, A_Control_That_Was_Disabled_With_The_Focus_Has_It_When_It_Is_Enabled) {
    if (!driver::Has_Screen()) GTEST_SKIP();
    Show(Second_Window);
    for (const bool enabled : {false, true}) {
        for (const auto control : {Second("Button2"), Second("Option1"), Second("Option2")})
            Set_Enabled(control, enabled);
        EXPECT_EQ(driver::Focus(Second_Window), enabled ? "Button2" : "Dir1");
    }
}

TEST_F(Conformance, A_Key_That_A_Window_Takes_Moves_No_Focus_And_Presses_No_Button) {
    Show(Key_Window);
    driver::Click(Find_Control(Key_Window, "Button1"));
    EXPECT_EQ(counts.clicks, 1);
    for (const auto key : {driver::Enter, driver::Tab, driver::Enter}) {
        driver::Press_Key(Key_Window, key);
        EXPECT_EQ(driver::Focus(Key_Window), "");
    }
    EXPECT_EQ(counts.clicks, 1);
}

TEST_F(Conformance,
       A_Press_Arrives_In_User_Coordinates_But_None_On_A_Control_Nor_On_A_Disabled_Window) {
    Set_User_Coordinates(Main_Window, -10, 50, 30, 34);  // 400 by 320 pixels: 0.1 and -0.05 each
    driver::Press(Main_Window, Mouse_Button::Middle, 100, 200);
    EXPECT_EQ(counts.presses, 1);
    EXPECT_EQ(counts.button, Mouse_Button::Middle);
    EXPECT_EQ(counts.press_x, 0.0F);
    EXPECT_EQ(counts.press_y, 40.0F);
    driver::Press(Main_Window, Mouse_Button::Left, 395, 95);  // on the frame
    Set_Enabled(Main_Window, false);
    driver::Press(Main_Window, Mouse_Button::Left, 100, 200);
    driver::Click(Main("Button1"));
    driver::Do(driver::Close, Main_Window);
    EXPECT_EQ(counts.presses, 1);
    EXPECT_EQ(counts.clicks, 0);
    EXPECT_EQ(counts.unloads, 0);
}

TEST_F(Conformance, Lines_Go_On_From_Each_Other_And_Stay_Until_Erased_And_The_State_Beyond_That) {
    Device_Context* device = Window_Device(Main_Window);
    Set_Pen_Width(device, 5);
    MoveToEx(device, 20, 50);
    Rectangle(device, 100, 10, 120, 30);
    Ellipse(device, 100, 10, 120, 30);
    Arc(device, 100, 10, 120, 30, 120, 20, 100, 20);
    TextOutA(device, 100, 20, "text");
    LineTo(device, 90, 50);
    driver::Do(driver::Minimise, Main_Window);
    driver::Do(driver::Restore, Main_Window);
    driver::Resize(Main_Window, 500, 400);
    Show(Second_Window);
    driver::Do(driver::Close, Second_Window);
    driver::Advance(50);
    EXPECT_EQ(driver::Pixel(Main_Window, 50, 50), Main_Window.fore_colour);
    Erase(Main_Window);
    EXPECT_EQ(driver::Pixel(Main_Window, 50, 50), Colour_White);
    LineTo(device, 90, 150);
    EXPECT_EQ(driver::Pixel(Main_Window, 92, 100), Main_Window.fore_colour);
    Unload(Main_Window);
    EXPECT_EQ(Window_Device(Main_Window), nullptr);
    LineTo(nullptr, 1, 1);
    TextOutA(nullptr, 1, 1, "text");
}

TEST_F(Conformance, A_Transparent_Label_Shows_What_Is_Drawn_Behind_It_And_Another_Does_Not) {
    Device_Context* device = Window_Device(Main_Window);
    Set_Pen_Width(device, 5);
    MoveToEx(device, 190, 208);
    LineTo(device, 260, 208);
    for (const bool transparent : {true, false, true, false}) {
        driver::Advance(20);
        const Colour seen = driver::Pixel(Main_Window, 220, 208);
        EXPECT_EQ(seen == Main_Window.fore_colour, transparent);
        EXPECT_NE(seen, Colour_White);
        Set_Transparent(Main("Label1"), !transparent);
    }
}

TEST_F(Conformance, Option_Buttons_Of_One_Frame_Clear_Each_Other_And_Leave_The_Others) {
    Set_Checked(Main("Option3"), true);
    Set_Checked(Option1, true);
    Set_Checked(Option1, true);
    EXPECT_EQ(counts.first_clicks, 1);
    driver::Click(Option2);
    EXPECT_FALSE(Is_Checked(Option1));
    EXPECT_TRUE(Is_Checked(Option2));
    EXPECT_TRUE(Is_Checked(Main("Option3")));
    EXPECT_EQ(counts.first_clicks, 1);
    EXPECT_EQ(counts.second_clicks, 1);
    Set_Checked(Option2, false);
    EXPECT_FALSE(Is_Checked(Option2));
    EXPECT_EQ(counts.second_clicks, 1);
}

TEST_F(Conformance, A_Change_By_The_Program_Is_Told_Once_And_Only_If_It_Is_One) {
    Set_Checked(Check1, true);
    Set_Checked(Check1, true);
    EXPECT_EQ(counts.check_clicks, 1);
    driver::Click(Check1);
    EXPECT_FALSE(Is_Checked(Check1));
    EXPECT_EQ(counts.check_clicks, 2);
    Set_Enabled(Check1, false);
    driver::Click(Check1);
    EXPECT_EQ(counts.check_clicks, 2);

    Set_Text(Main("Text1"), "twice");
    EXPECT_EQ(Text_Of(Main("Text1")), "once");
    EXPECT_EQ(counts.text_changes, 2);
    Set_Text(Main("Text1"), "once");
    EXPECT_EQ(counts.text_changes, 2);
}

TEST_F(Conformance, Only_A_Picked_Entry_Is_A_Selection) {
    const std::string unsorted[] = {"b", "\xE9t\xE9", "A", "a", "B"};
    Add_Entries(Combo1, unsorted);
    EXPECT_EQ(Text_Of(Combo1), "[]");
    EXPECT_EQ(Selected_Index(Combo1), -1);
    const std::string sorted[] = {"A", "B", "a", "b", "\xE9t\xE9"};
    ASSERT_EQ(Entry_Count(Combo1), 5);
    for (int i = 0; i < 5; ++i)
        EXPECT_EQ(Entry_Text(Combo1, i), sorted[i]);
    EXPECT_EQ(Entry_Text(Combo1, 5), "");
    EXPECT_EQ(Entry_Text(Combo1, -1), "");

    driver::Pick(Combo1, 4);
    EXPECT_EQ(Selected_Index(Combo1), 4);
    EXPECT_EQ(Text_Of(Combo1), "\xE9t\xE9");
    driver::Type(Combo1, "A");
    EXPECT_EQ(Selected_Index(Combo1), -1);
    EXPECT_EQ(Text_Of(Combo1), "A");
    driver::Pick(Combo1, 0);
    Set_Text(Combo1, "B");
    EXPECT_EQ(Selected_Index(Combo1), -1);
    Clear_Entries(Combo1);
    EXPECT_EQ(Entry_Count(Combo1), 0);
    EXPECT_EQ(Text_Of(Combo1), "B");
    Add_Entries(Combo1, sorted);
    driver::Pick(Combo1, 1);
    Clear_Entries(Combo1);
    EXPECT_EQ(Text_Of(Combo1), "");
}

TEST_F(Conformance, A_List_Keeps_The_Order_Of_Addition_And_Forgets_Its_Selection_With_Its_Entries) {
    const std::string lines[] = {"z", "a"};
    Add_Entries(List1, lines);
    EXPECT_EQ(Entry_Text(List1, 0), "z");
    driver::Pick(List1, 1);
    driver::Double_Click(List1);
    driver::Double_Click(List1, driver::Below_Entries);
    EXPECT_EQ(counts.double_clicks, 2);
    EXPECT_EQ(Selected_Index(List1), 1);
    Clear_Entries(List1);
    Add_Entries(List1, lines);
    EXPECT_EQ(Selected_Index(List1), -1);
}

TEST_F(Conformance, A_Progress_Bar_Keeps_Its_Value_Inside_Its_Range) {
    const auto kept = [](const platform::Progress& given) {
        Set_Progress(Main("Bar1"), given);
        const platform::Progress now = Progress_Of(Main("Bar1"));
        return std::array{now.value, now.minimum, now.maximum};
    };
    EXPECT_EQ(kept({5, 0, 10}), (std::array{5, 0, 10}));
    EXPECT_EQ(kept({-3, 0, 10}), (std::array{0, 0, 10}));
    EXPECT_EQ(kept({30, 20, 25}), (std::array{25, 20, 25}));
    EXPECT_EQ(kept({7, 3, 3}), (std::array{3, 3, 3}));
}

TEST_F(Conformance, A_Folder_List_Moves_To_Folders_That_Exist_And_To_No_Others) {
    Show(Second_Window);
    constexpr auto Dir1 = Second("Dir1");
    Set_Folder_Path(Dir1, "");
    const std::string working_folder = Folder_Path(Dir1);
    EXPECT_EQ(working_folder, Current_Folder());
    Set_Folder_Path(Dir1, "/no such folder/");
    EXPECT_EQ(Folder_Path(Dir1), working_folder);
    Set_Folder_Path(Dir1, "/");
    const std::string root = Folder_Path(Dir1);
    EXPECT_TRUE(root == "/" || root == working_folder.substr(0, 3)) << root;
    EXPECT_GT(Entry_Count(Dir1), 0);
}

TEST_F(Conformance, A_Folder_That_The_Program_Cannot_Name_Is_Refused_With_A_Message) {
    const auto folder = std::filesystem::absolute("conformance_folders");
    std::filesystem::create_directories(folder / u8"\u0416");
    Show(Second_Window);
    constexpr auto Dir1 = Second("Dir1");
    Set_Folder_Path(Dir1, folder.string());
    const std::string path = Folder_Path(Dir1);
    counts = {};
    driver::Enter_Folder(Dir1, 0);
    const auto messages = driver::Take_Messages();
    EXPECT_EQ(messages.size(), 1U);
    EXPECT_EQ(Folder_Path(Dir1), path);
    EXPECT_EQ(counts.moves, 0);
    std::filesystem::remove_all(folder);
}

TEST_F(Conformance, A_Number_Has_A_Decimal_Point_Also_Where_The_User_Writes_A_Comma) {
    EXPECT_STREQ(std::localeconv()->decimal_point, ".");
}

TEST_F(Conformance,
       A_Held_Key_Is_One_Press_And_One_Let_Go_Is_Told_Once_Unless_It_Was_Before_The_Start) {
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

TEST_F(Conformance, A_Page_Has_Its_Sheet_And_Its_Lines_And_Ends_Once) {
    EXPECT_EQ(Paper_Size().width, 0);
    ASSERT_TRUE(Open_Printer());
    EXPECT_GE(Printer_Twips_To_Pixels_X(Paper_Size().width), Printable_Size().width);
    EXPECT_GT(Printable_Size().width, 0);
    EXPECT_GT(Text_Size("long").width, Text_Size("lo").width);
    EXPECT_EQ(Text_Size("long").height, Text_Size("").height);

    EXPECT_FALSE(End_Document());
    for (int page = 0; page < 2; ++page) {
        ASSERT_TRUE(Start_Page("Conformance"));
        Rectangle(Printer_Device(), 0, 0, 1000, 1000);
        Set_Text_Cursor(0, 0);
        Print_Line("Caf\xE9");
        EXPECT_TRUE(End_Document());
        EXPECT_FALSE(End_Document());
    }
    const auto names = File_Names("", ".pdf");
    for (const std::string& name : names.value())
        Delete_File(name);
}

}  // namespace

}  // namespace conformance

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    driver::Prepare(argc, argv);
    return RUN_ALL_TESTS();
}
