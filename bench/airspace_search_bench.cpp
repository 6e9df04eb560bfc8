#include <benchmark/benchmark.h>
#include <string>
#include <vector>

#include "bench/groups.h"
#include "bench/timing.h"
#include "chart/current_chart.h"
#include "platform/files.h"
#include "scenery/bgl_reader.h"
#include "scenery/database.h"
#include "selection/airspace_search.h"
#include "selection/form3_load.h"
#include "selection/picks.h"

namespace bench {

namespace {

using namespace skerrand;

std::vector<std::string> files;

void Search(benchmark::State& state) {
    for (auto _ : state) {
        airspace_files = files;
        Time(state, [] { Search_Airspaces(); });
    }
}

void Read(benchmark::State& state) {
    for (auto _ : state) {
        Time(state, [] {
            platform::Bytes bytes;
            for (const std::string& file : files) {
                if (!platform::Read_File(file, bytes, 1)) Give_Up(file);
                benchmark::DoNotOptimize(bytes.data());
            }
        });
    }
}

std::size_t Bytes_Of_Files() {
    std::size_t sum = 0;
    platform::Bytes bytes;
    for (const std::string& file : files) {
        if (platform::Read_File(file, bytes, 1)) sum += bytes.size() - 1;
    }
    return sum;
}

}  // namespace

void Register_Airspace_Search() {
    Register("airspaces/files/search", Search);
    Register("airspaces/files/read", Read);
}

void Prepare_Airspace_Search(const Folders&) {
    if (!Read_Airport_Table() || !Read_Airspace_List()) Give_Up("the database does not read back");
    files = airspace_files;
    departure_airport = airport_table.front();
    destination_airport = airport_table.back();
    Release_Airport_Table();
    Search_Airspaces();
    if (departure_airspaces.empty() && destination_airspaces.empty()) {
        Give_Up("no airspaces round the two airports");
    }
}

void Add_Airspace_Search_Rows(const Results& results, std::vector<Row>& rows) {
    const double megabytes = static_cast<double>(Bytes_Of_Files()) / 1e6;
    rows.push_back(Compared(results,
                            "search " + std::to_string(files.size()) + " files of " +
                                Number_Text(megabytes, 1, " MB") +
                                " for two airports' airspaces (reading the files)",
                            "airspaces/files/search", "airspaces/files/read", 1.5));
}

}  // namespace bench
