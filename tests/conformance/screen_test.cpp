// What the headers of the layer promise of a screen: places, focus, keys and pixels.

#include <array>
#include <cmath>
#include <filesystem>
#include <gtest/gtest.h>

#include "platform/drawing.h"
#include "platform/files.h"
#include "tests/conformance/driver.h"
#include "tests/conformance/windows.h"

namespace conformance {

using namespace std::string_literals;

TEST_F(Conformance, A_Timer_That_Asks_Again_And_Again_Leaves_The_Processor_To_Others) {
    const long long since = driver::Clock();
    Tick_Every(1, Fast);
    driver::Advance(200);
    EXPECT_LE(counts.fast_ticks, (driver::Clock() - since) / 20 + 1);
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
    Add_Entries(List1, std::array{"z"s, "a"s});
    while (driver::Focus(Main_Window) != "List1")
        driver::Press_Key(Main_Window, driver::Tab);
    driver::Do(driver::Minimise, Main_Window);
    driver::Do(driver::Restore, Main_Window);
    driver::Press_Key(Main_Window, driver::Down);
    for (const auto key : {driver::Enter, driver::Space})
        driver::Press_Key(Main_Window, key);
    EXPECT_EQ(Entry_Text(List1, Selected_Index(List1)), "z");
    driver::Pick(List1, 1);
    driver::Double_Click(List1);
    EXPECT_EQ(Entry_Text(List1, Selected_Index(List1)), "a");
    EXPECT_EQ(counts.double_clicks, 3);
    Show(Second_Window);
    for (const bool enabled : {true, false}) {
        Set_Enabled(Second("Button1"), enabled);
        driver::Press_Key(Second_Window, driver::Escape);
        EXPECT_EQ(counts.clicks, 1);
    }
}

TEST_F(Conformance, A_Window_That_Takes_Keys_Leaves_The_Focus_To_No_Control) {
    Show(Key_Window);
    driver::Click(Find_Control(Key_Window, "Button1"));
    driver::Press_Key(Key_Window, driver::Tab);
    EXPECT_EQ(driver::Focus(Key_Window), "");
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

TEST_F(Conformance, Outlines_That_Share_An_Arc_Share_Its_Gaps) {
    Device_Context* device = Window_Device(Main_Window);
    Set_Pen_Style(device, Pen_Style::Dashed);
    for (const int x : {140, 180, 220, 236})
        Arc(device, 20, 20, 240, 260, x, 260, 130, 20);
    int gaps = 0;
    for (int up = 1; up < 80; ++up) {
        const int edge = 130 + static_cast<int>(std::lround(110 * std::sqrt(1 - up * up / 14400.)));
        const auto is_white = [&](int x) {
            return driver::Pixel(Main_Window, x, 140 - up) == Colour_White;
        };
        gaps += is_white(edge - 2) && is_white(edge - 1) && is_white(edge) ? 1 : 0;
    }
    EXPECT_GT(gaps, 15);
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

TEST_F(Conformance, Typing_Replaces_The_Hint_And_Return_Takes_The_Only_Match_Alone) {
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

TEST_F(Conformance, Keys_Lead_Into_A_Folder_And_The_Root_And_Not_Where_No_Name_Leads) {
    Show(Second_Window);
    const auto folder = std::filesystem::absolute("conformance_folders");
    for (const auto* name : {u8"\u0416", u8"alpha", u8"Beta 1", u8"beta 2"})
        std::filesystem::create_directories(folder / name);
    Set_Folder_Path(Dir1, folder.string());
    const std::string path = Folder_Path(Dir1);
    counts = {};
    Set_Checked(Second("Option1"), true);
    while (driver::Focus(Second_Window) != "Dir1")
        driver::Press_Key(Second_Window, driver::Tab);
    driver::Press_Key(Second_Window, driver::Down);
    driver::Press_Key(Second_Window, driver::Enter);
    EXPECT_EQ(driver::Take_Messages().size(), 1U);
    EXPECT_EQ(Folder_Path(Dir1), path);
    EXPECT_EQ(counts.moves, 0);
    driver::Type_Keys(Second_Window, "bb");
    driver::Press_Key(Second_Window, driver::Enter);
    EXPECT_TRUE(Folder_Path(Dir1).ends_with("beta 2")) << Folder_Path(Dir1);
    EXPECT_EQ(counts.moves, 1);
    Set_Folder_Path(Dir1, "/");
    const std::string first = Folder_Path(Dir1) + Entry_Text(Dir1, 0);
    driver::Press_Key(Second_Window, driver::Enter);
    EXPECT_EQ(Folder_Path(Dir1), first);
    std::filesystem::remove_all(folder);
}

}  // namespace conformance
