#include <benchmark/benchmark.h>
#include <cmath>
#include <string>
#include <vector>

#include "bench/groups.h"
#include "bench/timing.h"
#include "chart/airspace_layer.h"
#include "chart/chart_view.h"
#include "chart/current_chart.h"
#include "chart/form4.h"
#include "selection/airspace_search.h"
#include "selection/geodesy.h"

namespace bench {

namespace {

using namespace skerrand;

constexpr int Airspaces = 300;
constexpr int Points = 40;
constexpr int First_View = 9;
constexpr int Near_View = 22;  ///< most outlines fill much of the window

/// What every `arc_each`th point of an outline is; the others are lines.
constexpr int All_Arcs = 1;
constexpr int Some_Arcs = 4;

/// An outline of its own size, place and centre within the view.
Airspace_Info Make_Airspace(int number, int arc_each) {
    Airspace_Info airspace;
    airspace.class_label = number % 2 == 0 ? Label_Class_B : Label_Class_C;
    const double lat = current_airport.lat + (number % 20 - 10) * 0.1;
    const double lon = current_airport.lon + (number % 30 - 15) * 0.1;
    const int miles = 10 + number % 40;
    const auto at = [&](int point) { return Destination_NM(lat, lon, point * 9, miles); };
    airspace.boundary = {{Boundary_Kind::Point_Center, lat, lon, 0}};
    for (int i = 0; i < Points - 1; ++i) {
        const Fix_Point place = at(i);
        const auto kind = i == 0              ? Boundary_Kind::Point_Start
                          : i % arc_each != 0 ? Boundary_Kind::Point_Line
                                              : Boundary_Kind::Point_Arc_Cw;
        airspace.boundary.push_back({kind, place.lat, place.lon, 0});
    }
    return airspace;
}

void Draw(benchmark::State& state) {
    Zoom_To(static_cast<int>(state.range(1)));
    const std::vector<Airspace_Info> kept = std::move(current_airspaces);
    current_airspaces.clear();
    for (int i = 0; i < Airspaces; ++i)
        current_airspaces.push_back(Make_Airspace(i, static_cast<int>(state.range(0))));
    for (auto _ : state) {
        platform::Erase(form4::window);
        Time(state, [] { Draw_Airspaces(chart_view.screen); });
    }
    current_airspaces = kept;
}

}  // namespace

void Register_Airspace_Drawing() {
    Register("airspaces/draw", Draw)
        ->ArgsProduct({{Some_Arcs, All_Arcs}, {First_View, Near_View}})
        ->Unit(benchmark::kMicrosecond)
        ->Iterations(20);
}

void Add_Airspace_Drawing_Rows(const Results& results, double limit, std::vector<Row>& rows) {
    const std::string title =
        "draw " + std::to_string(Airspaces) + " airspaces of " + std::to_string(Points) + " points";
    for (const int zoom : {First_View, Near_View}) {
        const auto median = [&results, zoom](int arc_each) {
            return results.Median("airspaces/draw/" + std::to_string(arc_each) + "/" +
                                  std::to_string(zoom));
        };
        rows.push_back(Limited(title + " at zoom " + std::to_string(zoom) + ", one in " +
                                   std::to_string(Some_Arcs) + " an arc",
                               median(Some_Arcs), limit));
        rows.push_back(Limited("  all of them arcs", median(All_Arcs), limit));
    }
}

}  // namespace bench
