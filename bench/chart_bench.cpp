#include <algorithm>
#include <benchmark/benchmark.h>
#include <string>
#include <vector>

#include "app/settings.h"
#include "bench/groups.h"
#include "bench/timing.h"
#include "chart/chart_view.h"
#include "chart/current_chart.h"
#include "chart/draw_chart.h"
#include "chart/form4.h"
#include "platform/files.h"
#include "scenery/bgl_reader.h"
#include "scenery/bgl_walk.h"
#include "scenery/catalogue.h"
#include "scenery/magnetic.h"
#include "scenery/tables.h"
#include "selection/airspace_search.h"
#include "selection/picks.h"
#include "simlink/live_poll.h"

namespace bench {

namespace {

using namespace skerrand;

std::size_t Elements_Of(const Airport_Info& airport) {
    return airport.taxi_paths.size() + airport.taxi_points.size() + airport.parkings.size() +
           airport.runways.size() + airport.ils.size();
}

/// Reads the airports and the list of files with airspaces of a simulator's folder.
void Read_Scenery(const std::string& folder) {
    fs_root = folder;
    first_run = true;
    database_ready = false;
    Release_Airport_Table();
    Release_Airspace_Files();
    if (Load_Magdec(folder + "/scenery/magdec.bgl") != Magdec_Result::Loaded) {
        Give_Up("no magnetic grid in " + folder);
    }
    if (!Read_Scenery_Cfg(folder + "/scenery.cfg")) Give_Up("no scenery.cfg in " + folder);
    Resolve_Local_Paths({});
    for (const Scenery_Area& area : scenery_areas) {
        if (area.local.empty()) continue;
        const auto names = platform::File_Names(area.local, ".bgl");
        for (const std::string& name : names.value()) {
            current_file = area.local + "\\" + name;
            if (platform::Read_File(current_file, bgl_bytes, 1)) Walk_Bgl();
        }
    }
    first_run = false;
    database_ready = true;
}

void Draw(benchmark::State& state) {
    Zoom_To(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        platform::Erase(form4::window);
        Time(state, [] { Draw_Chart(); });
    }
}

/// A second of the chart: the aircraft's values, and all layers about where it is.
void Tick(benchmark::State& state) {
    if (!chart_view.link_open) return state.SkipWithError("no link to a simulator");
    Zoom_To(Zoom_Airport);
    follow_aircraft = true;
    for (auto _ : state) {
        Time(state, Clock::Wall, Chart_Refresher_Timer);
    }
    follow_aircraft = false;
    form4::Center_Airport(current_airport.lon, current_airport.lat);
}

/// All points of the airport, through the projection alone.
void Project_Points(benchmark::State& state) {
    Zoom_To(Zoom_Airport);
    for (auto _ : state) {
        Time(state, [] {
            const Chart_Target target = Screen_Target();
            std::int32_t sum = 0;
            const auto take = [&target, &sum](double lat, double lon) {
                const auto [x, y] = Project(target, lat, lon);
                sum ^= x ^ y;
            };
            for (const Taxi_Point& point : current_airport.taxi_points)
                take(point.lat, point.lon);
            for (const Parking_Info& parking : current_airport.parkings) {
                take(parking.lat, parking.lon);
            }
            for (const Runway_Info& runway : current_airport.runways) {
                take(runway.lat_1, runway.lon_1);
                take(runway.lat_2, runway.lon_2);
            }
            for (const Ils_Info& ils : current_airport.ils)
                take(ils.lat, ils.lon);
            benchmark::DoNotOptimize(sum);
        });
    }
}

std::string Draw_Name(int zoom) {
    return "chart/draw/" + std::to_string(zoom);
}

}  // namespace

void Zoom_To(int rate) {
    while (chart_view.zoom_rate < rate)
        Zoom_In();
    while (chart_view.zoom_rate > rate)
        Zoom_Out();
}

void Register_Chart() {
    Register("chart/draw", Draw)
        ->DenseRange(Zoom_Farthest, Zoom_Nearest)
        ->Unit(benchmark::kMicrosecond)
        ->Iterations(20);
    Register("chart/project", Project_Points)->Unit(benchmark::kMicrosecond);
}

void Register_Tick() {
    Register("tick/chart", Tick)->Unit(benchmark::kMicrosecond)->Iterations(20);
}

void Add_Tick_Row(const Results& results, std::vector<Row>& rows) {
    rows.push_back(
        Limited("  a whole tick with a simulator, at zoom 36", results.Median("tick/chart"), 0));
}

void Show_Chart(const Folders& folders) {
    Read_Scenery(folders.demo);
    const auto largest = std::max_element(airport_table.begin(), airport_table.end(),
                                          [](const Airport_Info& one, const Airport_Info& other) {
                                              return Elements_Of(one) < Elements_Of(other);
                                          });
    if (largest == airport_table.end()) Give_Up("no airport in " + folders.demo);
    departure_airport = *largest;
    destination_airport = *largest;
    Release_Airport_Table();
    Search_Airspaces();
    Open_Chart();
}

void Open_Chart() {
    platform::Show(form4::window);
    platform::SetWindowPos(form4::window, platform::Insert_After::HWND_TOPMOST, 0, 0, 1920, 1080,
                           platform::SWP_NOMOVE);
}

void Add_Chart_Rows(const Results& results, double limit, std::vector<Row>& rows) {
    int worst = Zoom_Farthest;
    for (int zoom = Zoom_Farthest; zoom <= Zoom_Nearest; ++zoom) {
        if (results.Median(Draw_Name(zoom)) > results.Median(Draw_Name(worst))) worst = zoom;
    }
    const std::string title = "draw the chart of " + current_airport.icao_id + ", " +
                              std::to_string(chart_view.screen_width) + " x " +
                              std::to_string(chart_view.screen_height);
    Row row = Compared(
        results,
        title + ", at zoom " + std::to_string(worst) + ", the slowest (projecting its points)",
        Draw_Name(worst), "chart/project", 0);
    row.target = "at most " + Time_Text(limit);
    row.met = results.Median(Draw_Name(worst)) <= limit;
    rows.push_back(row);
    rows.push_back(Limited("  at zoom 9, the first view", results.Median(Draw_Name(9)), 0));
}

}  // namespace bench
