// One test for every back-end: what the headers of the layer promise, seen from the program's side.

#include <array>
#include <clocale>
#include <filesystem>
#include <gtest/gtest.h>

#include "platform/drawing.h"
#include "platform/files.h"
#include "platform/keys.h"
#include "platform/link.h"
#include "platform/printer.h"
#include "platform/timers.h"
#include "tests/conformance/driver.h"
#include "tests/conformance/windows.h"

namespace conformance {

using namespace std::string_literals;

constexpr auto Fast = Main("Fast"), Slow = Main("Slow"), Check1 = Main("Check1"),
               Combo1 = Main("Combo1"), List1 = Main("List1"), Option1 = Main("Option1"),
               Option2 = Main("Option2");

class Conformance : public testing::Test {
  protected:
    void SetUp() override { driver::Start(Show_Main); }
};

static void Tick_Every(int milliseconds, Control_Ref timer) {
    Set_Interval(timer, milliseconds);
    Start_Timer(timer);
}

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

TEST_F(Conformance, A_Timer_That_Asks_Again_And_Again_Leaves_The_Processor_To_Others) {
    if (!driver::has_screen) GTEST_SKIP();
    const long long since = driver::Clock();
    Tick_Every(1, Fast);
    driver::Advance(200);
    EXPECT_LE(counts.fast_ticks, (driver::Clock() - since) / 20 + 1);
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

static std::pair<double, double> Pixels(const Window& window) {
    const Size outer = Outer_Size(window);
    return {Twips_To_Pixels_X(outer.width), Twips_To_Pixels_Y(outer.height)};
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
    Show(Second_Window);
    driver::Advance(20);
    EXPECT_EQ(driver::Frame_Of(Second_Window), driver::Frame(0, 0, true));
    const auto before = Pixels(Second_Window);
    EXPECT_EQ(place(HWND_NOTOPMOST, 7, 7, SWP_NOMOVE | SWP_NOSIZE), driver::Frame(0, 0, false));
    EXPECT_EQ(place(HWND_TOPMOST, 60, 40, SWP_NOSIZE), driver::Frame(60, 40, true));
    EXPECT_EQ(Pixels(Second_Window), before);
    EXPECT_EQ(place(HWND_TOPMOST, 7, 7, SWP_NOMOVE), driver::Frame(60, 40, true));
    EXPECT_EQ(Pixels(Second_Window), std::pair(300.0, 200.0));
}

TEST_F(Conformance, Tab_Goes_By_The_Table_Enter_Presses_And_What_Is_Enabled_Again_Has_Its_Focus) {
    if (!driver::has_screen) GTEST_SKIP();
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
    for (const bool enabled : {false, true}) {
        for (const auto control : {Second("Button2"), Second("Option1"), Second("Option2")})
            Set_Enabled(control, enabled);
        EXPECT_EQ(driver::Focus(Second_Window), enabled ? "Button2" : "Dir1");
    }
}

TEST_F(Conformance, Escape_Presses_What_Cancels_And_Return_Or_Space_In_A_List_Is_A_Double_Click) {
    if (!driver::has_screen) GTEST_SKIP();
    Add_Entries(List1, std::array{"z"s, "a"s});
    while (driver::Focus(Main_Window) != "List1")
        driver::Press_Key(Main_Window, driver::Tab);
    driver::Press_Key(Main_Window, driver::Down);
    for (const auto key : {driver::Enter, driver::Space})
        driver::Press_Key(Main_Window, key);
    EXPECT_EQ(Selected_Index(List1), 0);
    EXPECT_EQ(counts.double_clicks, 2);
    Show(Second_Window);
    for (const bool enabled : {true, false}) {
        Set_Enabled(Second("Button1"), enabled);
        driver::Press_Key(Second_Window, driver::Escape);
        EXPECT_EQ(counts.clicks, 1);
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

TEST_F(Conformance, Lines_Go_On_From_Each_Other_And_Stay_Until_Erased_And_The_State_Beyond_That) {
    if (!driver::has_screen) GTEST_SKIP();
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
    EXPECT_EQ(driver::Pixel(Main_Window, 480, 390), Colour_White);
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
    if (!driver::has_screen) GTEST_SKIP();
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
    const auto expect_clicks = [](int first, int second) {
        EXPECT_EQ(std::pair(counts.first_clicks, counts.second_clicks), std::pair(first, second));
    };
    Set_Checked(Main("Option3"), true);
    Set_Checked(Option1, true);
    Set_Checked(Option1, true);
    expect_clicks(1, 0);
    driver::Click(Option2);
    EXPECT_TRUE(!Is_Checked(Option1) && Is_Checked(Option2) && Is_Checked(Main("Option3")));
    expect_clicks(1, 1);
    Set_Checked(Option2, false);
    EXPECT_FALSE(Is_Checked(Option2));
    expect_clicks(1, 1);
}

TEST_F(Conformance, A_Change_By_The_Program_Is_Told_Once_And_Only_If_It_Is_One) {
    Set_Checked(Check1, true);
    Set_Checked(Check1, true);
    EXPECT_EQ(counts.check_clicks, 1);
    for (const bool enabled : {true, false}) {
        Set_Enabled(Check1, enabled);
        driver::Click(Check1);
        EXPECT_FALSE(Is_Checked(Check1));
        EXPECT_EQ(counts.check_clicks, 2);
    }

    Set_Text(Main("Text1"), "twice");
    EXPECT_EQ(Text_Of(Main("Text1")), "once");
    EXPECT_EQ(counts.text_changes, 2);
    Set_Text(Main("Text1"), "once");
    EXPECT_EQ(counts.text_changes, 2);
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

TEST_F(Conformance, Typing_Replaces_The_Hint_And_Return_Takes_The_Only_Match_Alone) {
    if (!driver::has_screen) GTEST_SKIP();
    Add_Entries(Combo1, std::array{"Alpha (BETA)"s, "Bet (ALPH)"s, "Gamma (GAMM)"s});
    const auto expect_taken = [](bool by_tab, const char* typed, int index, const char* text) {
        Set_Text(Combo1, "[]");
        driver::Click(by_tab ? Main("Button1") : Combo1);
        if (by_tab) driver::Press_Key(Main_Window, driver::Tab);
        driver::Type_Keys(Main_Window, typed);
        EXPECT_EQ(std::pair(Selected_Index(Combo1), Text_Of(Combo1)), std::pair(-1, typed + ""s));
        driver::Press_Key(Main_Window, driver::Enter);
        EXPECT_EQ(std::pair(Selected_Index(Combo1), Text_Of(Combo1)), std::pair(index, text + ""s));
    };
    expect_taken(false, "bet", -1, "bet");
    expect_taken(false, "GAMm", 2, "Gamma (GAMM)");
    expect_taken(true, "beta", 0, "Alpha (BETA)");
    expect_taken(true, "x", -1, "x");
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
    for (const auto& [given, kept] : {std::pair(1, 3), {4, 4}, {7, 5}}) {
        Set_Progress(Main("Bar1"), {given, 3, 5});
        const platform::Progress now = Progress_Of(Main("Bar1"));
        EXPECT_EQ((std::array{now.value, now.minimum, now.maximum}), (std::array{kept, 3, 5}));
    }
}

TEST_F(Conformance, A_Folder_List_Moves_Only_To_Folders_That_Exist_And_That_Can_Be_Named) {
    Show(Second_Window);
    constexpr auto Dir1 = Second("Dir1");
    Set_Folder_Path(Dir1, ".");
    const std::string working_folder = Folder_Path(Dir1);
    EXPECT_EQ(working_folder, Current_Folder());
    Set_Folder_Path(Dir1, "/no such folder/");
    EXPECT_EQ(Folder_Path(Dir1), working_folder);
    Set_Folder_Path(Dir1, "/");
    const std::string root = Folder_Path(Dir1);
    EXPECT_TRUE(root == "/" || root == working_folder.substr(0, 3)) << root;
    EXPECT_GT(Entry_Count(Dir1), 0);

    const auto folder = std::filesystem::absolute("conformance_folders");
    std::filesystem::create_directories(folder / u8"\u0416");
    Set_Folder_Path(Dir1, folder.string());
    const std::string path = Folder_Path(Dir1);
    counts = {};
    driver::Enter_Folder(Dir1, 0);
    EXPECT_EQ(driver::Take_Messages().size(), 1U);
    EXPECT_EQ(Folder_Path(Dir1), path);
    EXPECT_EQ(counts.moves, 0);
    if (driver::has_screen) {
        for (const char* name : {"alpha", "Beta 1", "beta 2"})
            std::filesystem::create_directory(folder / name);
        Set_Folder_Path(Dir1, "/");
        Set_Folder_Path(Dir1, folder.string());
        Set_Checked(Second("Option1"), true);
        while (driver::Focus(Second_Window) != "Dir1")
            driver::Press_Key(Second_Window, driver::Tab);
        driver::Type_Keys(Second_Window, "bb");
        driver::Press_Key(Second_Window, driver::Enter);
        EXPECT_TRUE(Folder_Path(Dir1).ends_with("beta 2")) << Folder_Path(Dir1);
    }
    std::filesystem::remove_all(folder);
}

TEST_F(Conformance, A_Number_Has_A_Decimal_Point_Also_Where_The_User_Writes_A_Comma) {
    EXPECT_STREQ(std::localeconv()->decimal_point, ".");
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

TEST_F(Conformance, A_Block_Of_A_Name_That_Stands_Is_Told_Until_It_Is_Closed) {
    for (int round = 0; round < 2; ++round) {
        const Mapping_Handle first = CreateFileMappingA(8, "block");
        EXPECT_TRUE(first != 0 && GetLastError() == 0);
        const Mapping_Handle second = CreateFileMappingA(8, "block");
        EXPECT_EQ(GetLastError(), Error_Already_Exists);
        CloseHandle(second);
        CloseHandle(first);
    }
}

}  // namespace conformance
