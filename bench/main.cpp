#include <algorithm>
#include <iostream>
#include <string>
#include <string_view>
#include <vector>

#include "bench/groups.h"
#include "platform/headless/program.h"

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

void Run(const Choice& choice, bench::Results& results, std::vector<bench::Row>& rows) {
    if (choice.Has("scan")) {
        bench::Prepare_Scan(folders);
        bench::Run_Group("scan", results);
        bench::Add_Scan_Rows(results, rows);
    }
    if (choice.Has("database") || choice.Has("lists") || choice.Has("start")) {
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
    if (choice.Has("chart")) {
        platform::headless::Begin([] { bench::Show_Chart(folders); });
        bench::Run_Group("chart", results);
        bench::Add_Chart_Rows(results, 2e-3, rows);
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
    bench::Register_Chart();
    bench::Results results;
    std::vector<bench::Row> rows;
    Run(choice, results, rows);
    results.Print_All();
    bench::Print(rows);
    return 0;
}
