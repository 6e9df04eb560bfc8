#include <QApplication>
#include <QTimer>
#include <QWidget>
#include <chrono>
#include <filesystem>
#include <iostream>
#include <string>
#include <vector>

#include "bench/groups.h"
#include "bench/timing.h"
#include "chart/chart_view.h"
#include "chart/form4.h"
#include "platform/program.h"
#include "platform/window.h"

// skerrand_bench_desktop DEMO WORK [--benchmark_...]: the chart on the screen.

namespace {

using namespace std::chrono_literals;

bench::Folders folders;
bench::Results results;
std::vector<bench::Row> rows;

constexpr auto Idle_Time = 20s;

/// Nobody is there to answer the message that no simulator runs.
void Answer_Messages() {
    if (QWidget* box = QApplication::activeModalWidget()) box->close();
}

/// The chart to the screen, as each second does it.
void Show_On_Screen(benchmark::State& state) {
    bench::Zoom_To(skerrand::Zoom_Airport);
    for (auto _ : state) {
        bench::Time(state, bench::Clock::Wall, [] {
            skerrand::form4::Redraw();
            platform::Repaint(skerrand::form4::window);
        });
    }
}

void Finish(double start, double processor) {
    const double passed = bench::Now(bench::Clock::Wall) - start;
    const double share = 100 * (bench::Now(bench::Clock::Processor) - processor) / passed;
    rows.push_back({.measure = "  left alone with all its timers for " +
                               bench::Number_Text(passed, 0, " s, of a processor"),
                    .value = bench::Number_Text(share, 2, " %"),
                    .target = "under 2 %",
                    .met = share < 2});
    results.Print_All();
    bench::Print(rows);
    platform::End_Program();
    QApplication::quit();
}

void Run() {
    bench::Run_Group("chart", results);
    bench::Add_Chart_Rows(results, 10e-3, rows);
    rows.push_back(bench::Limited("  with its way to the screen, at zoom 36",
                                  results.Median("chart/screen"), 0));
    bench::Zoom_To(skerrand::Zoom_Airport);
    std::cout << "idle ..." << std::endl;
    // What the benchmarks have left behind is done before the idle time starts.
    QTimer::singleShot(2s, [] {
        const double start = bench::Now(bench::Clock::Wall);
        const double processor = bench::Now(bench::Clock::Processor);
        QTimer::singleShot(Idle_Time, [start, processor] { Finish(start, processor); });
    });
}

void Start() {
    QTimer answers;
    QObject::connect(&answers, &QTimer::timeout, Answer_Messages);
    answers.start(50ms);
    bench::Show_Chart(folders);
    QTimer::singleShot(1s, Run);
}

}  // namespace

int main(int argc, char** argv) {
    std::vector<std::string> arguments(argv + 1, argv + argc);
    bench::Take_Options(arguments);
    if (arguments.size() < 2) bench::Give_Up("the folders DEMO WORK are missing");
    folders.demo = arguments[0];
    folders.work = arguments[1];
    std::filesystem::current_path(folders.work);
    bench::Register_Chart();
    bench::Register("chart/screen", Show_On_Screen);
    return platform::Run(argc, argv, Start);
}
