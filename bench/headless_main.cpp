#include <filesystem>
#include <malloc.h>

#include "app/form1.h"
#include "app/settings.h"
#include "bench/chart_bench.h"
#include "bench/measure.h"
#include "platform/files.h"
#include "platform/headless/program.h"
#include "platform/headless/protocol.h"
#include "scenery/database.h"
#include "selection/airspace_search.h"
#include "selection/picks.h"

// skerrand_bench [WORLD] [--benchmark_...]: measures the scenery of that folder and what is made of
// it, with the databases in the working folder; or, without one, the chart by such databases.

namespace {

using namespace bench;
using namespace skerrand;

std::string world;
std::vector<std::string> scenery;  // all its files

/// The answer to a command without its last line, which has to be `ok`.
std::string Ask(const std::string& command) {
    std::string answer = platform::headless::Execute(command);
    if (!answer.ends_with("ok\n")) Give_Up(command + ": " + answer);
    answer.resize(answer.size() - 3);
    return answer;
}

void Begin() {
    platform::headless::Begin([] { platform::Show(form1::window); });
    Ask("advance 3000");
}

void Read_Files(const std::vector<std::string>& files) {
    platform::Bytes bytes;
    for (const std::string& file : files) {
        if (!platform::Read_File(file, bytes)) Give_Up("cannot read " + file);
        benchmark::DoNotOptimize(bytes.data());
    }
}

/// From the choice of the folder to lists that are filled.
void Scan(benchmark::State& state) {
    Measure(
        state, Clock::Processor, 0.5,
        [] {
            Delete_Own_Files();
            Begin();
            Ask("folder Form2.Dir1 " + world);
        },
        [] {
            Ask("click Form2.Command1");
            while (Ask("get Form3.Text1.text") != "Done\n")
                Ask("advance 1000");
        },
        [] { Read_Files(scenery); });
}

/// The one tick that reads the databases and fills the lists, beside the reading alone.
void Later_Start(benchmark::State& state) {
    Measure(
        state, Clock::Processor, 0.1,
        [] {
            Release_Airport_Table();
            malloc_trim(0);
            Begin();
        },
        [] { Ask("advance 1000"); },
        [] {
            Release_Airport_Table();
            malloc_trim(0);
            Read_Airport_Table();
        });
    if (Ask("get Form3.Combo2.count") == "0\n") Give_Up("no airport in the lists");
}

double Memory_In_Use() {
    const struct mallinfo2 now = mallinfo2();
    return static_cast<double>(now.uordblks + now.hblkhd);
}

/// Beside reading the bytes of the file; `memory` is that of the table, in sizes of the file.
void Read_Table(benchmark::State& state) {
    platform::Bytes bytes;
    Measure(
        state, Clock::Processor, 0,
        [&bytes] {
            Release_Airport_Table();
            bytes = {};
            malloc_trim(0);
        },
        [] {
            if (!Read_Airport_Table()) Give_Up("the database does not read back");
        },
        [&bytes] { platform::Read_File(Own_File(Airports_File), bytes); });
    const auto size = static_cast<double>(bytes.size());
    const double all = Memory_In_Use();
    Release_Airport_Table();
    state.counters["memory"] = (all - Memory_In_Use()) / size;
    Read_Airport_Table();
}

/// Beside writing the same bytes in the same way, to the disk and renamed.
void Write_Table(benchmark::State& state) {
    platform::Bytes bytes;
    platform::Read_File(Own_File(Airports_File), bytes);
    std::string fault;
    Measure(
        state, Clock::Wall, 0, [] { malloc_trim(0); }, [&fault] { fault += Write_Airport_Table(); },
        [&] { fault += platform::Write_File("yardstick.dat", bytes); });
    if (!fault.empty()) Give_Up(fault);
}

/// For the first and the last airport, beside reading the files.
void Search(benchmark::State& state) {
    departure_airport = airport_table.front();
    destination_airport = airport_table.back();
    std::vector<std::string> files;
    Measure(
        state, Clock::Processor, 0,
        [&files] {
            if (!Read_Airspace_List()) Give_Up("the list does not read back");
            files = airspace_files;
        },
        [] { Search_Airspaces(); }, [&files] { Read_Files(files); });
    if (departure_airspaces.size() + destination_airspaces.size() < 3) Give_Up("no airspaces");
}

void Add_World_Benchmarks() {
    for (const auto& entry : std::filesystem::recursive_directory_iterator(world))
        if (entry.is_regular_file()) scenery.push_back(entry.path());
    // The scan leaves the databases that the next one starts with, and that one the table.
    Add("world/scan", 9, Scan);
    Add("world/later_start", 15, Later_Start);
    Add("world/read_table", 15, Read_Table);
    Add("world/write_table", 15, Write_Table);
    Add("world/search_airspaces", 50, Search);
}

}  // namespace

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    if (argc > 1) {
        world = argv[1];
        Add_World_Benchmarks();
    } else {
        platform::headless::Begin(Show_Chart);
        Add_Chart_Benchmarks();
    }
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
