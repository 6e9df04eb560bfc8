// Every window of the program, for those who hear it and those who use the keyboard alone. Runs on
// both desktops.

#include <algorithm>
#include <gtest/gtest.h>
#include <map>

#include "platform/controls.h"
#include "tests/conformance/windows.h"

namespace skerrand {

namespace {

using platform::Control;
using platform::Control_Kind;
using Names = std::vector<std::string>;

/// As the program builds it, but without what its handlers would do.
platform::Window shown;

void Show_Alone(platform::Window window) {
    window.load = window.unload = window.resize = nullptr;
    shown = window;
    driver::Start([] { platform::Show(shown); });
}

/// Of the controls that have the name of another control ahead of them.
const std::map<std::string, std::string> names = {
    {"Form2.Text1", "Current Directory"},
    {"Form3.Combo1", "Departure Airport"},
    {"Form3.Combo2", "Destination Airport"},
    {"Form3.Text1", "Scanning"},
    {"Form6.Text1", "Special Thanks To"},
    {"Form7.List1", "Events and assigments list"},
    {"Form8.Text1", "New Key"},
};

TEST(Access, A_Control_Has_No_Name_Or_Another_Role_Than_Its_Kind) {
    for (const platform::Window* window : all_windows) {
        Show_Alone(*window);
        for (std::size_t i = 0; i < window->controls.size(); ++i) {
            const Control& row = window->controls[i];
            if (row.kind == Control_Kind::Timer || row.kind == Control_Kind::Menu) continue;
            const std::string path = std::string(window->name) + "." + row.name;
            const auto found = names.find(path);
            const std::string own = *row.spoken != '\0' ? row.spoken : row.caption;
            const std::string name = found != names.end() ? found->second : own;
            const driver::Spoken expected = {name, true};
            const driver::Spoken told = driver::Spoken_Of({&shown, i}).value_or(expected);
            EXPECT_EQ(told, expected) << path;
        }
    }
}

// The order as a user would read it from the table, twice round.
TEST(Access, The_Tab_Key_Passes_A_Control_Over_Or_Goes_Another_Way_Than_The_Table) {
    const std::vector<Names> expected = {
        {""},
        {"Option1", "Drive1", "Dir1", "Text1", "Command1"},
        {"Combo1", "Combo2", "Drive1", "Text1", "Command3", "Command2"},
        {"Command2", "Command3", "Command4"},
        {"Check1", "Check3", "Check2", "Check4", "Check5", "Check6", "Check7", "Check8", "Check9",
         "Check10", "Option1", "Command1"},
        {"Text1", "Command1"},
        {"List1", "Command1", "Command2"},
        {""},
    };
    for (std::size_t i = 0; i < expected.size(); ++i) {
        Show_Alone(*all_windows[i]);
        Names order = expected[i];
        for (std::size_t row = 0; row < shown.controls.size(); ++row) {
            if (shown.controls[row].name == std::string_view("Option1"))
                platform::Set_Checked({&shown, row}, true);
            // Where the system has no drives nobody gets to their list.
            if (shown.controls[row].kind == Control_Kind::Drive &&
                platform::Entry_Count({&shown, row}) == 0)
                std::erase(order, "Drive1");
        }
        for (std::size_t step = 0; step < 2 * order.size() + 1; ++step) {
            EXPECT_EQ(driver::Focus(shown), order[step % order.size()]) << shown.name;
            driver::Press_Key(shown, driver::Tab);
        }
    }
}

}  // namespace

}  // namespace skerrand
