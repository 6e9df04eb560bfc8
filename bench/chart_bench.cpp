#include "bench/chart_bench.h"

#include "app/settings.h"
#include "bench/measure.h"
#include "chart/airspace_layer.h"
#include "chart/chart_view.h"
#include "chart/current_chart.h"
#include "chart/draw_chart.h"
#include "chart/form4.h"
#include "platform/program.h"
#include "platform/window.h"
#include "scenery/database.h"
#include "selection/airspace_search.h"
#include "selection/geodesy.h"
#include "selection/picks.h"

namespace bench {

namespace {

using namespace skerrand;

void Zoom_To(int rate) {
    while (chart_view.zoom_rate < rate)
        Zoom_In();
    while (chart_view.zoom_rate > rate)
        Zoom_Out();
}

void Erase() {
    platform::Erase(form4::window);
}

/// All points of the airport, through the projection alone.
void Project_Points() {
    std::int32_t sum = 0;
    for (const Taxi_Point& point : current_airport.taxi_points)
        sum ^= Project(chart_view.screen, point.lat, point.lon).x;
    benchmark::DoNotOptimize(sum);
}

/// At the zoom where it takes longest.
void Draw_Worst(benchmark::State& state) {
    int worst = 0;
    double longest = 0;
    for (int zoom = Zoom_Farthest; zoom <= Zoom_Nearest; ++zoom) {
        Zoom_To(zoom);
        double shortest = 1;
        for (int i = 0; i < 5; ++i) {
            Erase();
            shortest = std::min(shortest,
                                Time_Of(Clock::Processor, [] { Draw_Chart(chart_view.screen); }));
        }
        if (shortest <= longest) continue;
        worst = zoom;
        longest = shortest;
    }
    Zoom_To(worst);
    state.SetLabel("zoom " + std::to_string(worst));
    Measure(
        state, Clock::Processor, 10e-3, Erase, [] { Draw_Chart(chart_view.screen); },
        Project_Points);
}

/// Outlines of 40 points, one in four of them the end of an arc, each of its own size, place and
/// centre within the first view.
std::vector<Airspace_Info> Make_Airspaces(std::int64_t count) {
    std::vector<Airspace_Info> airspaces(static_cast<std::size_t>(count));
    for (int number = 0; Airspace_Info & airspace : airspaces) {
        ++number;
        airspace.class_label = number % 2 == 0 ? Label_Class_B : Label_Class_C;
        const double lat = current_airport.lat + (number % 20 - 10) * 0.1;
        const double lon = current_airport.lon + (number % 30 - 15) * 0.1;
        airspace.boundary = {{Boundary_Kind::Point_Center, lat, lon, 0}};
        for (int i = 0; i < 39; ++i) {
            const Fix_Point at = Destination_NM(lat, lon, i * 9, 10 + number % 40);
            const auto kind = i == 0       ? Boundary_Kind::Point_Start
                              : i % 4 != 0 ? Boundary_Kind::Point_Line
                                           : Boundary_Kind::Point_Arc_Cw;
            airspace.boundary.push_back({kind, at.lat, at.lon, 0});
        }
    }
    return airspaces;
}

void Draw_Outlines(benchmark::State& state) {
    const std::vector<Airspace_Info> kept = current_airspaces;
    current_airspaces = Make_Airspaces(state.range(0));
    Zoom_To(static_cast<int>(state.range(1)));
    Measure(
        state, Clock::Processor, state.range(0) == 60 ? 12e-3 : 40e-3, Erase,
        [] { Draw_Airspaces(chart_view.screen); }, Project_Points);
    current_airspaces = kept;
}

}  // namespace

void Add_Chart_Benchmarks() {
    Add("chart/draw_worst", 50, Draw_Worst);
    Add("chart/airspaces", 20, Draw_Outlines)
        ->ArgNames({"count", "zoom"})
        ->ArgsProduct({{60, 300}, {1, 9, 15, 22, 29, 36, 45, 55}});
}

void Load_Databases() {
    app_path = platform::Current_Folder();
    if (Load_Settings(Settings_File) != Load_Result::Loaded)
        Give_Up("no databases in the working folder");
    airport_count = settings.airport_count;
    airspace_file_count = settings.airspace_file_count;
    if (!Read_Airport_Table() || !Read_Airspace_List()) Give_Up("the databases do not read back");
    first_run = false;
    database_ready = true;
}

void Show_Chart() {
    Load_Databases();
    const auto found = std::ranges::find(airport_table, "LFPG", &Airport_Info::icao_id);
    if (found == airport_table.end()) Give_Up("no such airport");
    departure_airport = *found;
    destination_airport = *found;
    Search_Airspaces();
    platform::Show(form4::window);
    platform::SetWindowPos(form4::window, platform::Insert_After::HWND_TOPMOST, 0, 0, 1920, 1080,
                           platform::SWP_NOMOVE);
}

}  // namespace bench
