#include <algorithm>
#include <cstdint>
#include <cstring>
#include <iostream>
#include <string>
#include <string_view>
#include <vector>

#include "bench/groups.h"
#include "chart/current_chart.h"
#include "platform/headless/program.h"
#include "platform/simulator/simulator.h"

// skerrand_bench WORLD DEMO WORK [GROUP...] [--benchmark_...]: the benchmarks without a screen.

namespace {

using bench::Folders;

/// The groups that the user named, or all.
struct Choice {
    std::vector<std::string> names;

    bool Has(std::string_view name) const {
        return names.empty() || std::find(names.begin(), names.end(), name) != names.end();
    }
};

Folders folders;

void Put(std::size_t offset, double value) {
    const auto word = static_cast<std::int32_t>(value);
    std::memcpy(platform::simulator::stand_in.state_area.data() + offset, &word, sizeof word);
}

/// The simulator's aircraft, in its units to the quarter meridian and to the circle.
void Stand_At_Airport() {
    Put(0x0564, skerrand::current_airport.lat / 90 * 10001750);
    Put(0x056C, skerrand::current_airport.lon / 360 * 4294967296);
}

void Run(const Choice& choice, bench::Results& results, std::vector<bench::Row>& rows) {
    if (choice.Has("scan")) {
        bench::Prepare_Scan(folders);
        bench::Run_Group("scan", results);
        bench::Add_Scan_Rows(results, rows);
    }
    if (choice.Has("database") || choice.Has("lists") || choice.Has("start") ||
        choice.Has("airspaces")) {
        bench::First_Run(folders);
    }
    if (choice.Has("database")) {
        bench::Prepare_Database(folders);
        bench::Run_Group("database", results);
        bench::Add_Database_Rows(results, rows);
    }
    if (choice.Has("lists")) {
        bench::Prepare_Lists(folders);
        bench::Run_Group("lists", results);
        bench::Add_List_Rows(results, rows);
    }
    if (choice.Has("start")) {
        bench::Run_Group("start", results);
        bench::Add_Start_Rows(results, rows);
    }
    if (choice.Has("airspaces")) {
        bench::Prepare_Airspace_Search(folders);
        bench::Run_Group("airspaces/files", results);
        bench::Add_Airspace_Search_Rows(results, rows);
    }
    if (choice.Has("airspaces") || choice.Has("chart")) {
        platform::headless::Begin([] {
            platform::simulator::Start("UIPCMAIN");
            bench::Show_Chart(folders);
        });
    }
    if (choice.Has("airspaces")) {
        bench::Run_Group("airspaces/draw", results);
        bench::Add_Airspace_Drawing_Rows(results, 3e-3, rows);
    }
    if (choice.Has("chart")) {
        bench::Run_Group("chart", results);
        bench::Add_Chart_Rows(results, 2e-3, rows);
        Stand_At_Airport();
        bench::Run_Group("tick", results);
        bench::Add_Tick_Row(results, rows);
    }
}

}  // namespace

int main(int argc, char** argv) {
    std::vector<std::string> arguments(argv + 1, argv + argc);
    bench::Take_Options(arguments);
    if (arguments.size() < 3) bench::Give_Up("the folders WORLD DEMO WORK are missing");
    folders = {arguments[0], arguments[1], arguments[2]};
    const Choice choice{{arguments.begin() + 3, arguments.end()}};
    bench::Register_Scan();
    bench::Register_Database();
    bench::Register_Lists();
    bench::Register_Start();
    bench::Register_Airspace_Search();
    bench::Register_Airspace_Drawing();
    bench::Register_Chart();
    bench::Register_Tick();
    bench::Results results;
    std::vector<bench::Row> rows;
    Run(choice, results, rows);
    results.Print_All();
    bench::Print(rows);
    return 0;
}
