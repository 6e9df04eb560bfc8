#include <algorithm>
#include <benchmark/benchmark.h>
#include <string>
#include <vector>

#include "bench/groups.h"
#include "bench/timing.h"
#include "platform/controls.h"
#include "scenery/database.h"
#include "selection/form3.h"
#include "selection/form3_load.h"
#include "selection/picks.h"

namespace bench {

namespace {

using namespace skerrand;

std::vector<std::string> texts;  ///< of all airports, in the order of the table

/// What the load of the picker does, on lists that are empty.
void Fill(benchmark::State& state) {
    for (auto _ : state) {
        platform::Clear_Entries(form3::Combo1);
        platform::Clear_Entries(form3::Combo2);
        Time(state, form3::Fill_Lists);
    }
}

void Sort(benchmark::State& state) {
    for (auto _ : state) {
        std::vector<std::string> sorted = texts;
        Time(state, [&sorted] { std::sort(sorted.begin(), sorted.end()); });
        benchmark::DoNotOptimize(sorted.data());
    }
}

void Pick(benchmark::State& state) {
    const std::string& departure = texts[texts.size() / 2];
    const std::string& destination = texts[texts.size() / 3];
    const std::vector<Airport_Info> whole = airport_table;
    for (auto _ : state) {
        airport_table = whole;
        Time(state, [&departure, &destination] { Take_Picks(departure, destination); });
    }
    airport_table = whole;
}

/// One plain pass for one airport, which most of the table leaves after a look at the name's
/// length.
void Compare_Texts(benchmark::State& state) {
    const Airport_Info wanted = airport_table[airport_table.size() / 2];
    for (auto _ : state) {
        Time(state, [&wanted] {
            const Airport_Info* found = nullptr;
            for (const Airport_Info& airport : airport_table) {
                if (airport.airport_name == wanted.airport_name &&
                    airport.icao_id == wanted.icao_id) {
                    found = &airport;
                }
            }
            benchmark::DoNotOptimize(found);
        });
    }
}

}  // namespace

void Register_Lists() {
    Register("lists/fill", Fill);
    Register("lists/sort", Sort);
    Register("lists/pick", Pick);
    Register("lists/compare", Compare_Texts);
}

void Prepare_Lists(const Folders&) {
    if (!Read_Airport_Table()) Give_Up("the database does not read back");
    if (!platform::Is_Loaded(form3::window)) Give_Up("the picker is not there");
    texts.clear();
    for (const Airport_Info& airport : airport_table)
        texts.push_back(List_Entry(airport));
}

void Add_List_Rows(const Results& results, std::vector<Row>& rows) {
    rows.push_back(Compared(
        results,
        "fill both lists with " + std::to_string(texts.size()) + " airports (sorting the texts)",
        "lists/fill", "lists/sort", 3));
    rows.push_back(Compared(results, "find two picks in the table (one pass over its texts)",
                            "lists/pick", "lists/compare", 2));
}

}  // namespace bench
