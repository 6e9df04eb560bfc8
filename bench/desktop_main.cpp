#include <QApplication>
#include <QProcess>
#include <QTimer>
#include <QWidget>
#include <chrono>
#include <filesystem>
#include <functional>
#include <iostream>
#include <string>
#include <vector>

#include "bench/groups.h"
#include "bench/timing.h"
#include "chart/chart_view.h"
#include "chart/current_chart.h"
#include "chart/form4.h"
#include "chart/printing.h"
#include "platform/desktop/program.h"
#include "platform/files.h"
#include "platform/printer.h"
#include "platform/program.h"
#include "platform/timers.h"
#include "platform/window.h"

// skerrand_bench_desktop DEMO WORK SIMULATOR [print] [--benchmark_...]: the chart on the screen,
// alone and with an aircraft of SIMULATOR, which needs the databases of DEMO in WORK; and on the
// default printer, if that has been asked for.

namespace {

using namespace std::chrono_literals;

bench::Folders folders;
bench::Results results;
std::vector<bench::Row> rows;

QString simulator_program;
bool prints = false;  // there is a printer for it

constexpr auto Measured_Time = 20s;
constexpr int Longest_Start = 10000;  // of the simulator, ms

/// Nobody is there to answer the message that no simulator runs.
void Answer_Messages() {
    if (QWidget* box = QApplication::activeModalWidget()) box->close();
}

void Open_Unattended(const std::function<void()>& open) {
    QTimer answers;
    QObject::connect(&answers, &QTimer::timeout, Answer_Messages);
    answers.start(50ms);
    open();
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

void Print_Chart_To_Queue(benchmark::State& state) {
    bench::Zoom_To(skerrand::Zoom_Airport);
    for (auto _ : state)
        bench::Time(state, bench::Clock::Wall, skerrand::form4::print_cht1_Click);
    // A failure leaves the timers stopped; without the printer there would be a file.
    if (!platform::Is_Running(skerrand::form4::Chart_Refresher) ||
        !platform::File_Names("", ".pdf").value().empty()) {
        state.SkipWithError("the page is not printed");
    }
}

/// What the printing service takes for a page with nothing on it.
void Print_Nothing(benchmark::State& state) {
    for (auto _ : state) {
        bench::Time(state, bench::Clock::Wall, [&state] {
            if (!platform::Start_Page("Nothing") || !platform::End_Document()) {
                state.SkipWithError("no page is printed");
            }
        });
    }
}

/// Hands on how many percents of a processor the program takes while nothing but its timers runs.
void Measure_Share(const std::function<void(double)>& take) {
    // What the benchmarks have left behind is done before the time starts.
    QTimer::singleShot(2s, [take] {
        const double start = bench::Now(bench::Clock::Wall);
        const double processor = bench::Now(bench::Clock::Processor);
        QTimer::singleShot(Measured_Time, [take, start, processor] {
            const double passed = bench::Now(bench::Clock::Wall) - start;
            take(100 * (bench::Now(bench::Clock::Processor) - processor) / passed);
        });
    });
}

void Add_Share(const std::string& measure, double share, double most) {
    rows.push_back({.measure = measure + " for " + std::to_string(Measured_Time.count()) +
                               " s, of a processor",
                    .value = bench::Number_Text(share, 2, " %"),
                    .target = "under " + bench::Number_Text(most, 2, " %"),
                    .met = share < most});
}

void Finish() {
    bench::Run_Group("tick", results);
    bench::Add_Tick_Row(results, rows);
    results.Print_All();
    bench::Print(rows);
    platform::End_Program();
    QApplication::quit();
}

/// The same chart with a link, its view going along with the aircraft.
void Fly(double idle) {
    std::cout << "flying ..." << std::endl;
    auto* const simulator = new QProcess(qApp);
    QObject::connect(qApp, &QApplication::aboutToQuit, simulator, [simulator] {
        simulator->kill();
        simulator->waitForFinished();
    });
    simulator->setProcessChannelMode(QProcess::ForwardedErrorChannel);
    simulator->start(simulator_program,
                     {"--departure", QString::fromStdString(skerrand::current_airport.icao_id),
                      "--follow", QString::number(QApplication::applicationPid())});
    if (!simulator->waitForReadyRead(Longest_Start)) bench::Give_Up("the simulator does not fly");
    Open_Unattended([] {
        // In one handler: the program ends with the handler that leaves it without a window.
        const platform::desktop::Handler_Scope scope;
        platform::Unload(skerrand::form4::window);
        bench::Open_Chart();
    });
    if (!skerrand::chart_view.link_open) bench::Give_Up("the simulator does not answer");
    bench::Zoom_To(skerrand::Zoom_Airport);
    Measure_Share([idle](double share) {
        if (QApplication::activeModalWidget() != nullptr) bench::Give_Up("the link broke");
        Add_Share("  with a simulator's aircraft to follow", share, idle + 3);
        Finish();
    });
}

void Run() {
    bench::Run_Group("chart", results);
    bench::Add_Chart_Rows(results, 10e-3, rows);
    rows.push_back(bench::Limited("  with its way to the screen, at zoom 36",
                                  results.Median("chart/screen"), 0));
    bench::Run_Group("airspaces/draw", results);
    bench::Add_Airspace_Drawing_Rows(results, 12e-3, rows);
    if (prints) {
        Open_Unattended([] { bench::Run_Group("print", results); });
        rows.push_back(bench::Compared(results, "print that chart (an empty page)", "print/chart",
                                       "print/nothing", 0));
        rows.back().target = "under 1 s";
        rows.back().met = results.Median("print/chart") < 1;
        // A print minimises the window.
        platform::Show(skerrand::form4::window);
    }
    bench::Zoom_To(skerrand::Zoom_Airport);
    std::cout << "idle ..." << std::endl;
    Measure_Share([](double share) {
        Add_Share("  left alone with all its timers", share, 2);
        Fly(share);
    });
}

void Start() {
    Open_Unattended([] { bench::Show_Chart(folders); });
    QTimer::singleShot(1s, Run);
}

}  // namespace

int main(int argc, char** argv) {
    std::vector<std::string> arguments(argv + 1, argv + argc);
    bench::Take_Options(arguments);
    if (arguments.size() < 3) bench::Give_Up("the arguments DEMO WORK SIMULATOR are missing");
    folders.demo = arguments[0];
    folders.work = arguments[1];
    prints = arguments.size() > 3 && arguments[3] == "print";
    simulator_program = QString::fromStdString(std::filesystem::absolute(arguments[2]));
    std::filesystem::current_path(folders.work);
    bench::Register_Chart();
    bench::Register_Airspace_Drawing();
    bench::Register_Tick();
    bench::Register("chart/screen", Show_On_Screen);
    bench::Register("print/chart", Print_Chart_To_Queue)->Iterations(2);
    bench::Register("print/nothing", Print_Nothing)->Iterations(2);
    return platform::Run(argc, argv, Start);
}
