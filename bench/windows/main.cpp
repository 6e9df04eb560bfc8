#include <thread>

#include "app/settings.h"
#include "bench/chart_bench.h"
#include "bench/measure.h"
#include "chart/chart_view.h"
#include "platform/common/handlers.h"
#include "platform/controls.h"
#include "platform/windows/native.h"
#include "platform/windows/program.h"
#include "scenery/database.h"
#include "selection/form3.h"
#include "selection/form3_load.h"
#include "simlink/fsuipc.h"

// skerrand_bench_windows [start]: the chart on the screen, with databases in the working folder and
// a simulator at the other end of the link; or the start with such databases.

namespace {

using namespace bench;
using namespace skerrand;
namespace windows = platform::windows;

void Serve_For(DWORD milliseconds) {
    const double end = Now(Clock::Wall) + milliseconds / 1e3;
    while (Now(Clock::Wall) < end)
        windows::Serve(10);
}

/// A value read from the simulator, beside a word to another thread and its answer.
void Batch(benchmark::State& state) {
    if (!chart_view.link_open) return state.SkipWithError("no link to a simulator");
    const HANDLE there = CreateEventW(nullptr, FALSE, FALSE, nullptr);
    const HANDLE back = CreateEventW(nullptr, FALSE, FALSE, nullptr);
    std::jthread echo([&](const std::stop_token& stop) {
        while (WaitForSingleObject(there, INFINITE) == WAIT_OBJECT_0 && !stop.stop_requested())
            SetEvent(back);
    });
    std::int32_t value = 0;
    std::int32_t result = 0;
    Measure(
        state, Clock::Wall, 300e-6, [] {},
        [&] {
            Queue_Read(0x0564, sizeof value, &value, result);
            if (!Process_Queue(result)) Give_Up("the link broke");
        },
        [&] { SignalObjectAndWait(there, back, INFINITE, FALSE); });
    echo.request_stop();
    SetEvent(there);
}

double Processor_Seconds() {
    FILETIME begun, ended, kernel, user;
    GetProcessTimes(GetCurrentProcess(), &begun, &ended, &kernel, &user);
    return (kernel.dwLowDateTime + 4294967296.0 * kernel.dwHighDateTime + user.dwLowDateTime +
            4294967296.0 * user.dwHighDateTime) *
           1e-7;
}

double Private_Bytes() {
    double sum = 0;
    MEMORY_BASIC_INFORMATION part;
    for (const char* place = nullptr; VirtualQuery(place, &part, sizeof part) != 0;
         place = static_cast<const char*>(part.BaseAddress) + part.RegionSize) {
        if (part.State == MEM_COMMIT && part.Type == MEM_PRIVATE)
            sum += static_cast<double>(part.RegionSize);
    }
    return sum;
}

/// What the program takes of a processor while nothing but its timers runs, and of memory; the
/// limits are 1 % and 25 MB.
void Left_Alone(benchmark::State& state) {
    const double before = Processor_Seconds();
    const double passed = Time_Of(Clock::Wall, [] { Serve_For(20'000); });
    state.counters["percent"] = 100 * (Processor_Seconds() - before) / passed;
    state.counters["private_MB"] = Private_Bytes() / 1e6;
}

/// The one tick that reads the databases and fills the lists, beside the reading alone.
void Later_Start(benchmark::State& state) {
    Measure(
        state, Clock::Wall, 0.5,
        [] {
            Release_Airport_Table();
            windows::Begin([] { platform::Show(form3::window); });
        },
        [] {
            const platform::common::Handler_Scope scope;
            form3::Read_Sceneries_Paths_Timer();
        },
        [] {
            Release_Airport_Table();
            Read_Airport_Table();
        });
    state.counters["airports"] = platform::Entry_Count(form3::Combo2);
}

}  // namespace

int main(int argc, char**) {
    windows::Set_Up();
    if (argc > 1) {
        Load_Databases();
        Add("windows/later_start", 15, Later_Start);
    } else {
        while (FindWindowW(L"UIPCMAIN", nullptr) == nullptr)
            ::Sleep(100);
        windows::Begin(Show_Chart);
        Serve_For(2000);
        Add("windows/left_alone", 1, Left_Alone);
        Add("windows/batch", 2000, Batch);
        Add_Chart_Benchmarks();
    }
    benchmark::RunSpecifiedBenchmarks();
    std::_Exit(0);  // the windows still stand
}
