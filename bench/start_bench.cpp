#include <benchmark/benchmark.h>
#include <malloc.h>

#include "app/form1.h"
#include "bench/groups.h"
#include "bench/timing.h"
#include "platform/controls.h"
#include "platform/headless/program.h"
#include "platform/headless/timers.h"
#include "scenery/database.h"
#include "selection/form3.h"

namespace bench {

namespace {

using namespace skerrand;

/// The one tick that loads everything, from the splash on.
void Load(benchmark::State& state) {
    for (auto _ : state) {
        platform::headless::Begin([] { platform::Show(form1::window); });
        platform::headless::Advance(3000);
        Release_Airport_Table();
        malloc_trim(0);
        if (!platform::Is_Loaded(form3::window)) state.SkipWithError("no picker");
        Time(state, Clock::Wall, [] { platform::headless::Advance(1000); });
        if (platform::Entry_Count(form3::Combo1) == 0) state.SkipWithError("no airport");
    }
}

}  // namespace

void Register_Start() {
    Register("start/load", Load);
}

void Add_Start_Rows(const Results& results, std::vector<Row>& rows) {
    rows.push_back(
        Limited("a later start, from the tick to \"Done\"", results.Median("start/load"), 0.5));
}

}  // namespace bench
