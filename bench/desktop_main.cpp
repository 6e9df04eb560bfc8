#include <QApplication>
#include <QEventLoop>
#include <QTimer>
#include <array>
#include <chrono>
#include <sys/socket.h>
#include <thread>
#include <unistd.h>

#include "bench/chart_bench.h"
#include "bench/measure.h"
#include "chart/chart_view.h"
#include "chart/printing.h"
#include "platform/printer.h"
#include "platform/program.h"
#include "simlink/fsuipc.h"

// skerrand_bench_desktop [--benchmark_...]: the chart on the screen, with databases in the working
// folder, a simulator at the other end of the link and a default printer.

namespace {

using namespace std::chrono_literals;
using bench::Clock;

/// A value read from the simulator, beside a byte that another thread sends back.
void Batch(benchmark::State& state) {
    if (!skerrand::chart_view.link_open) return state.SkipWithError("no link to a simulator");
    std::array<int, 2> ends{-1, -1};
    if (socketpair(AF_UNIX, SOCK_STREAM, 0, ends.data()) != 0) bench::Give_Up("no socket pair");
    char byte = 1;
    std::thread echo([end = ends[1]] {
        char back = 0;
        while (read(end, &back, 1) == 1 && write(end, &back, 1) == 1) {
        }
    });
    std::int32_t value = 0;
    std::int32_t result = 0;
    bench::Measure(
        state, Clock::Wall, 0, [] {},
        [&] {
            skerrand::Queue_Read(0x0564, sizeof value, &value, result);
            if (!skerrand::Process_Queue(result)) bench::Give_Up("the link broke");
        },
        [&] {
            if (write(ends[0], &byte, 1) != 1 || read(ends[0], &byte, 1) != 1) {
                bench::Give_Up("the byte did not come back");
            }
        });
    close(ends[0]);
    echo.join();
    close(ends[1]);
}

/// What the program takes of a processor while nothing but its timers runs; the limit is 1 %.
void Left_Alone(benchmark::State& state) {
    for (auto _ : state) {
        const double start = bench::Now(Clock::Processor);
        QEventLoop loop;
        QTimer::singleShot(20s, &loop, &QEventLoop::quit);
        const double passed = bench::Time_Of(Clock::Wall, [&loop] { loop.exec(); });
        const double taken = bench::Now(Clock::Processor) - start;
        state.SetIterationTime(taken);
        state.counters["percent"] = 100 * taken / passed;
    }
}

/// The chart, beside a page with nothing on it.
void Print(benchmark::State& state) {
    bench::Measure(
        state, Clock::Wall, 1, [] {}, skerrand::form4::print_cht1_Click,
        [] {
            if (!platform::Start_Page("Nothing") || !platform::End_Document()) {
                bench::Give_Up("no page is printed");
            }
        });
}

void Run() {
    bench::Add("desktop/left_alone", 1, Left_Alone);
    bench::Add("desktop/batch", 500, Batch)->Unit(benchmark::kMicrosecond);
    bench::Add_Chart_Benchmarks();
    // Last, for a print minimises the window.
    bench::Add("desktop/print", 9, Print);
    benchmark::RunSpecifiedBenchmarks();
    platform::End_Program();
    QApplication::quit();
}

}  // namespace

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    return platform::Run(argc, argv, [] {
        bench::Show_Chart();
        QTimer::singleShot(2s, Run);
    });
}
