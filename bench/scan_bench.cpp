#include <benchmark/benchmark.h>
#include <cmath>
#include <cstring>
#include <malloc.h>
#include <string>
#include <vector>

#include "app/settings.h"
#include "bench/groups.h"
#include "bench/timing.h"
#include "platform/files.h"
#include "scenery/bgl_reader.h"
#include "scenery/bgl_walk.h"
#include "scenery/catalogue.h"
#include "scenery/local_grid.h"
#include "scenery/magnetic.h"
#include "scenery/tables.h"

namespace bench {

namespace {

using namespace skerrand;

struct Image {
    std::string path;
    platform::Bytes bytes;  ///< with the spare byte
};

std::vector<Image> images;
std::size_t total_bytes = 0;
std::size_t places = 0;    ///< points and parkings
std::size_t elements = 0;  ///< points, parkings and runways

void Walk_All() {
    for (Image& image : images) {
        bgl_bytes.swap(image.bytes);
        current_file = image.path;
        Walk_Bgl();
        bgl_bytes.swap(image.bytes);
    }
}

/// As at the start of a scan, with no memory at hand that an earlier one has freed.
void Clear_Tables() {
    Release_Airport_Table();
    Release_Airspace_Files();
    malloc_trim(0);
}

void Count_Elements() {
    places = 0;
    elements = 0;
    for (const Airport_Info& airport : airport_table) {
        places += airport.taxi_points.size() + airport.parkings.size();
        elements += airport.runways.size();
    }
    elements += places;
}

void Walk(benchmark::State& state) {
    first_run = true;
    database_ready = false;
    for (auto _ : state) {
        Clear_Tables();
        Time(state, Walk_All);
    }
    Count_Elements();
    if (elements == 0) state.SkipWithError("no airport was read");
}

/// With the database ready the walk visits every entry and goes into no airport.
void Walk_Entries(benchmark::State& state) {
    first_run = true;
    database_ready = true;
    for (auto _ : state) {
        Release_Airspace_Files();
        Time(state, Walk_All);
    }
}

void Copy_Bytes(benchmark::State& state) {
    std::vector<std::uint8_t> copy(total_bytes);
    for (auto _ : state) {
        Time(state, [&copy] {
            std::uint8_t* to = copy.data();
            for (const Image& image : images) {
                std::memcpy(to, image.bytes.data(), image.bytes.size() - 1);
                to += image.bytes.size() - 1;
            }
            benchmark::ClobberMemory();
        });
    }
}

/// The positions of as many points as the world has, some within two kilometres of each airport.
void Place_Points(benchmark::State& state) {
    for (auto _ : state) {
        Time(state, [] {
            double sum = 0;
            for (const Airport_Info& airport : airport_table) {
                const Local_Grid grid = Make_Local_Grid(airport.lat, airport.lon);
                const std::size_t count = airport.taxi_points.size() + airport.parkings.size();
                for (std::size_t i = 0; i < count; ++i) {
                    const double x = static_cast<double>(i * 7919 % 4000) - 1999.5;
                    sum += Grid_Longitude(grid, x) + Grid_Latitude(grid, -x);
                }
            }
            benchmark::DoNotOptimize(sum);
        });
    }
}

/// What the table's memory alone costs: every airport with all its texts and arrays, from a table
/// that is there already.
void Copy_Table(benchmark::State& state) {
    for (auto _ : state) {
        std::vector<Airport_Info> copy;
        malloc_trim(0);
        Time(state, [&copy] { copy = airport_table; });
        benchmark::DoNotOptimize(copy.data());
    }
}

}  // namespace

void Register_Scan() {
    Register("scan/walk", Walk);
    Register("scan/copy", Copy_Bytes);
    Register("scan/entries", Walk_Entries);
    Register("scan/points", Place_Points);
    Register("scan/table", Copy_Table);
}

void Prepare_Scan(const Folders& folders) {
    fs_root = folders.world;
    if (Load_Magdec(fs_root + "/scenery/magdec.bgl") != Magdec_Result::Loaded) {
        Give_Up("no magnetic grid in " + fs_root);
    }
    if (!Read_Scenery_Cfg(fs_root + "/scenery.cfg")) Give_Up("no scenery.cfg in " + fs_root);
    Resolve_Local_Paths({});
    for (const Scenery_Area& area : scenery_areas) {
        if (area.local.empty()) continue;
        const auto names = platform::File_Names(area.local, ".bgl");
        for (const std::string& name : names.value()) {
            Image image{.path = area.local + "\\" + name, .bytes = {}};
            if (!platform::Read_File(image.path, image.bytes, 1)) Give_Up(image.path);
            total_bytes += image.bytes.size() - 1;
            images.push_back(std::move(image));
        }
    }
    first_run = true;
    database_ready = false;
    Clear_Tables();
    Walk_All();
    Count_Elements();
}

void Add_Scan_Rows(const Results& results, std::vector<Row>& rows) {
    const double seconds = results.Median("scan/walk");
    const double speed = static_cast<double>(total_bytes) / seconds / 1e6;
    const double each = seconds / static_cast<double>(elements);
    const auto part = [&results, seconds](const char* measure, const char* name) {
        const double time = results.Median(name);
        return Row{.measure = measure,
                   .value = Time_Text(time),
                   .ratio = Number_Text(100 * time / seconds, 0, " %")};
    };
    rows.push_back(Compared(results,
                            "read " +
                                Number_Text(static_cast<double>(total_bytes) / 1e6, 1, " MB") +
                                " of BGL files in memory (copying them)",
                            "scan/walk", "scan/copy", 0));
    rows.push_back({.measure = "  for each point, parking and runway, of " +
                               std::to_string(elements) + " (bytes a second)",
                    .value = Time_Text(each),
                    .yardstick = Number_Text(speed, 0, " MB/s"),
                    .target = "500 ns or 150 MB/s",
                    .met = each <= 0.5e-6 || speed >= 150});
    rows.push_back(part("  of this: the walk over lists and entries", "scan/entries"));
    rows.push_back(part("  of this: positions of points and parkings", "scan/points"));
    rows.push_back(part("  of this: the memory of the table (copying it)", "scan/table"));
}

}  // namespace bench
