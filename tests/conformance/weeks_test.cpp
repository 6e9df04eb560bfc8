// Weeks of use in a minute: a user's doings at random, and whether the chart window is in a row of
// its table after each. Runs in a folder with a world in "fs2002"; --gtest_random_seed=N varies it.

#include <algorithm>
#include <array>
#include <filesystem>
#include <gtest/gtest.h>
#include <map>
#include <random>
#include <set>
#include <span>
#include <sstream>

#include "app/settings.h"
#include "chart/chart_view.h"
#include "chart/current_chart.h"
#include "platform/common/live.h"
#include "platform/controls.h"
#include "platform/timers.h"
#include "tests/conformance/windows.h"

namespace skerrand {
namespace {

using platform::Control_Ref, platform::Is_Loaded, platform::Window;
using platform::common::Loaded_Windows;
using enum platform::Control_Kind;

constexpr auto mains = std::span(all_windows).first(4);
constexpr auto dialogs = std::span(all_windows).subspan(4, 3);
std::mt19937 chance;
bool printer_fails;

int Below(int end) {
    return static_cast<int>(chance() % static_cast<unsigned>(end));
}

Control_Ref Named(const Window& window, std::string_view name) {
    const auto row = std::ranges::find(window.controls, name, &platform::Control::name);
    return {&window, static_cast<std::size_t>(row - window.controls.begin())};
}

constexpr auto stands = [](const Window* window) { return Is_Loaded(*window); };

struct State {
    bool chart = Is_Loaded(form4::window);
    std::ptrdiff_t open_dialogs = std::ranges::count_if(dialogs, stands);
    bool minimised = platform::State_Of(form4::window) == platform::Window_State::Minimised;
    bool refresher = platform::Is_Running(form4::Chart_Refresher);
    bool keys = platform::Is_Running(Named(form4::window, "KeyPress_Checker"));
};

/// What a doing means to the timers; what is refused must change nothing at all.
enum Effect { None, Redraws, Toggles, Opens, Prints, Sizes, Refused };

const std::map<std::string_view, Effect> effects = {
    {"Command2", Redraws},       {"Command3", Redraws},
    {"Command4", Redraws},       {"dp_airpt_chrt", Redraws},
    {"dst_airpt_chrt", Redraws}, {"p_r_refresh", Toggles},
    {"kb_assign1", Opens},       {"pref1", Opens},
    {"skerrand_abot2", Opens},   {"print_cht1", Prints}};

/// The timers after it.
State After(State state, Effect effect, const State& seen) {
    const bool ends_dialog = seen.open_dialogs < state.open_dialogs;
    if (effect == Redraws || ends_dialog) state.refresher = state.keys = true;
    if (effect == Opens) state.refresher = state.keys = false;
    if (effect == Toggles) state.refresher = !state.refresher;
    if (effect == Prints) state.refresher = state.keys = !printer_fails;
    if (effect == Sizes) state.refresher = !seen.minimised;
    // A tick that follows the aircraft starts both.
    if (state.refresher && chart_view.link_open && follow_aircraft) state.keys |= seen.keys;
    return state;
}

/// All that a user's doings change, but for what timers change too.
std::string Digest() {
    std::ostringstream all;
    all << chart_view.view_left << ' ' << chart_view.view_top << ' ' << chart_view.zoom_rate
        << follow_aircraft << current_airport.icao_id;
    for (const auto* window : Loaded_Windows()) {
        all << window->table.name;
        for (const auto* control : window->rows)
            all << control->selected << control->checked;
    }
    return all.str();
}

Effect Use(const Window& window) {
    const Control_Ref control{&window, chance() % window.controls.size()};
    const platform::Control_Kind kind = window.controls[control.index].kind;
    const bool refused = &window == &form7::window && Is_Loaded(form8::window);
    const int entries = std::min(platform::Entry_Count(control), 5);
    if (kind == List && platform::Selected_Index(control) >= 0 && Below(2) == 0) {
        driver::Double_Click(control);
    } else if ((kind == List || kind == Combo) && entries > 0) {
        driver::Pick(control, Below(entries));
    } else if (kind == Button || kind == Check || kind == Option || kind == Menu) {
        driver::Click(control);
    }
    const auto effect = effects.find(window.controls[control.index].name);
    if (&window != &form4::window || effect == effects.end()) return refused ? Refused : None;
    return effect->second;
}

constexpr std::array keys = {&Settings_Rec::key_departure, &Settings_Rec::key_destination,
                             &Settings_Rec::key_zoom_in, &Settings_Rec::key_zoom_out,
                             &Settings_Rec::key_pause};

Effect Press_A_Key(const State& state) {
    const int code = settings.key_departure + Below(8);
    driver::Key(code, true);
    driver::Advance(driver::has_screen ? 60 : 1);
    driver::Key(code, false);
    if (!state.keys) return Refused;
    const auto key = std::ranges::find(keys, code, [](auto row) { return settings.*row; });
    if (key == keys.end()) return None;
    return *key == &Settings_Rec::key_pause ? Toggles : Redraws;
}

Effect Use_Frame(const Window& window, const State& state) {
    const double width = platform::Outer_Size(form4::window).width;
    const bool closes = Below(&window == &form3::window || &window == &form4::window ? 50 : 5) == 0;
    const int size = 300 + Below(200);
    closes          ? driver::Do(driver::Close, window)
    : Below(2) == 0 ? driver::Resize(window, size, size)
                    : driver::Do(static_cast<driver::Deed>(Below(2)), window);
    const bool sized = platform::Outer_Size(form4::window).width != width;
    return sized || State().minimised != state.minimised ? Sizes : None;
}

void Disturb() {
    const char* const commands[] = {"printer failing", "printer ready", "simulator on",
                                    "simulator off", "simulator reply 0 after 2"};
    const int which = Below(5);
    driver::Set_Surroundings(commands[which]);
    if (which < 2) printer_fails = which == 0 && !driver::has_screen;
}

/// Goes the way to the chart.
void Go_On() {
    if (Is_Loaded(form2::window)) {
        const auto world = std::filesystem::current_path() / "fs2002";
        platform::Set_Folder_Path(Named(form2::window, "Dir1"), world.string());
        driver::Click(Named(form2::window, "Command1"));
        driver::Advance(1500);
        // From F2 on, keys that mean nothing to the controls of a window.
        for (int code = 113; const auto key : keys)
            settings.*key = code++;
    }
    for (const Control_Ref combo : {form3::Combo1, form3::Combo2})
        if (platform::Entry_Count(combo) > 5) driver::Pick(combo, Below(5));
    if (Is_Loaded(form3::window)) driver::Click(Named(form3::window, "Command3"));
}

Effect Do_Something(const State& state) {
    if (!state.chart && Below(3) > 0) return Go_On(), None;
    const Window& window = Loaded_Windows()[chance() % Loaded_Windows().size()]->table;
    const bool is_away = driver::has_screen && state.minimised && &window == &form4::window;
    switch (Below(10)) {
        case 0:
            return driver::Advance(1 + Below(1000)), None;
        case 1:
            return Disturb(), None;
        case 2:
            return state.chart ? Press_A_Key(state) : None;
        case 3:
            return Use_Frame(window, state);
        case 4:
            if (is_away || &window != &form4::window) return None;
            driver::Press(window, platform::Mouse_Button::Left, 200 + Below(60), 100);
            return Redraws;
        default:
            return is_away ? None : Use(window);
    }
}

void Begin() {
    if (Below(4) == 0) std::filesystem::remove(Airports_File);
    driver::Start([] { platform::Show(form1::window); });
    printer_fails = false;
    driver::Advance(3200);
}

TEST(Weeks, ChartLeavesItsTableOrTakesWhatIsDisabled) {
    const auto seed = static_cast<unsigned>(std::max(GTEST_FLAG_GET(random_seed), 1));
    std::printf("--gtest_random_seed=%u\n", seed);
    chance.seed(seed);
    Begin();
    std::set<std::array<bool, 4>> rows;
    for (int i = 0; i < WEEKS_ACTIONS; ++i) {
        if (!driver::Running()) Begin();
        const State before;
        const std::string digest = Digest();
        Effect effect = Do_Something(before);
        if (effect == Redraws && !before.refresher) effect = Refused;
        if (!driver::Running()) continue;
        const State seen;
        SCOPED_TRACE(testing::Message() << "action " << i << " of effect " << effect);
        ASSERT_EQ(std::ranges::count_if(mains, stands), 1);
        ASSERT_TRUE(seen.chart || seen.open_dialogs == 0) << "a dialog stands alone";
        ASSERT_TRUE(Is_Loaded(form7::window) || !Is_Loaded(form8::window));
        if (effect == Refused && !before.refresher) {
            ASSERT_EQ(Digest(), digest);
        }
        if (!before.chart || !seen.chart) continue;
        const State after = After(before, effect, seen);
        ASSERT_EQ(std::tie(after.refresher, after.keys), std::tie(seen.refresher, seen.keys));
        rows.insert({seen.open_dialogs > 0, seen.minimised, seen.refresher, seen.keys});
    }
    EXPECT_GE(rows.size(), driver::has_screen ? 6U : 16U) << testing::PrintToString(rows);
}

}  // namespace
}  // namespace skerrand
