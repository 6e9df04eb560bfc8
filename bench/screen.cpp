#include <chrono>
#include <thread>

#include "app/settings.h"
#include "bench/measure.h"
#include "chart/airspace_layer.h"
#include "chart/chart_view.h"
#include "chart/current_chart.h"
#include "chart/draw_chart.h"
#include "chart/form4.h"
#include "chart/printing.h"
#include "platform/controls.h"
#include "platform/printer.h"
#include "platform/program.h"
#include "platform/timers.h"
#include "platform/window.h"
#include "scenery/database.h"
#include "selection/airspace_search.h"
#include "selection/form3.h"
#include "selection/form3_load.h"
#include "selection/geodesy.h"
#include "selection/picks.h"
#include "simlink/fsuipc.h"

// skerrand_bench_screen [start]: the chart on the screen, with the databases of the demonstration
// world in the working folder, a simulator at the other end of the link and a default printer; or
// the start with such databases.

namespace {

using namespace bench;
using namespace skerrand;

/// As at a start.
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

/// The one tick that reads the databases and fills the lists, beside the reading alone.
void Measure_Start() {
    Load_Databases();
    Measure(
        "later start", 15, Processor, 0.1,
        [] {
            form3::Set_Status("");  // closing the picker is no wish to end now
            platform::Unload(form3::window);
            Release_Airport_Table();
            platform::Show(form3::window);
        },
        form3::Read_Sceneries_Paths_Timer,
        [] {
            Release_Airport_Table();
            Read_Airport_Table();
        });
    if (platform::Entry_Count(form3::Combo2) == 0) Give_Up("no airport in the lists");
    platform::End_Program();
}

/// A value read from the simulator, beside a thread that is started and waited for.
void Measure_Batch() {
    std::int32_t value = 0;
    std::int32_t result = 0;
    Measure(
        "batch", 2000, Wall, 300e-6, [] {},
        [&] {
            Queue_Read(0x0564, sizeof value, &value, result);
            if (!Process_Queue(result)) Give_Up("the link broke");
        },
        [] { std::thread([] {}).join(); });
}

/// The chart, beside a page with nothing on it.
void Measure_Print() {
    Measure(
        "print", 9, Wall, 1, [] {}, form4::print_cht1_Click,
        [] {
            if (!platform::Start_Page("Nothing") || !platform::End_Document())
                Give_Up("no page is printed");
        });
}

void Zoom_To(int rate) {
    while (chart_view.zoom_rate < rate)
        Zoom_In();
    while (chart_view.zoom_rate > rate)
        Zoom_Out();
}

void Erase() {
    platform::Erase(form4::window);
}

/// At the zoom where it takes longest, beside all points of the airport through the projection.
void Measure_Drawing(const std::string& name, int farthest, int nearest, double limit,
                     void (*draw)()) {
    int worst = 0;
    double longest = 0;
    for (int zoom = farthest; zoom <= nearest; ++zoom) {
        Zoom_To(zoom);
        double shortest = 1;
        for (int i = 0; i < 5; ++i) {
            Erase();
            shortest = std::min(shortest, Time_Of(Processor, draw));
        }
        if (shortest <= longest) continue;
        worst = zoom;
        longest = shortest;
    }
    Zoom_To(worst);
    Measure(name + ", zoom " + std::to_string(worst), 50, Processor, limit, Erase, draw, [] {
        static volatile std::int32_t sum = 0;
        for (const Taxi_Point& point : current_airport.taxi_points)
            sum = sum ^ Project(chart_view.screen, point.lat, point.lon).x;
    });
}

/// Outlines of 40 points, one in four of them the end of an arc, each of its own size, place and
/// centre within the first view.
void Make_Airspaces(std::size_t count) {
    current_airspaces.assign(count, {});
    for (int number = 0; Airspace_Info & airspace : current_airspaces) {
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
}

void Draw_Outlines() {
    Draw_Airspaces(chart_view.screen);
}

void Show_Chart() {
    Load_Databases();
    const auto found = std::ranges::find(airport_table, "LFPG", &Airport_Info::icao_id);
    if (found == airport_table.end()) Give_Up("no such airport");
    departure_airport = *found;
    destination_airport = *found;
    Search_Airspaces();
    std::int32_t result = 0;
    while (!Open_Link(6, result))
        std::this_thread::sleep_for(std::chrono::milliseconds(100));
    Close_Link();
    platform::Show(form4::window);
    platform::SetWindowPos(form4::window, platform::Insert_After::HWND_TOPMOST, 0, 0, 1920, 1080,
                           platform::SWP_NOMOVE);
}

void Leave_Alone();
void Measure_Chart();

constexpr platform::Control controls[] = {
    {.name = "Settled",
     .kind = platform::Control_Kind::Timer,
     .handler = Leave_Alone,
     .interval = 2000},
    {.name = "Left_Alone",
     .kind = platform::Control_Kind::Timer,
     .handler = Measure_Chart,
     .interval = 20'000,
     .enabled = false},
};
/// Small, beside the chart.
constexpr platform::Window clocks = {.name = "Clocks",
                                     .caption = "Clocks",
                                     .client_width = 1500,
                                     .client_height = 600,
                                     .controls = controls};

double begun = 0;
double used = 0;

void Leave_Alone() {
    platform::Stop_Timer(platform::Find_Control(clocks, "Settled"));
    platform::Start_Timer(platform::Find_Control(clocks, "Left_Alone"));
    begun = Now(Wall);
    used = Now(CLOCK_PROCESS_CPUTIME_ID);
}

/// First what the program takes of a processor while nothing but its timers runs.
void Measure_Chart() {
    std::printf("left alone %22.2f %% of a processor; the limit is 1 %%\n",
                100 * (Now(CLOCK_PROCESS_CPUTIME_ID) - used) / (Now(Wall) - begun));
    Measure_Batch();
    Measure_Drawing("chart", Zoom_Airport, Zoom_Nearest, 10e-3,
                    [] { Draw_Chart(chart_view.screen); });
    const std::vector<Airspace_Info> kept = current_airspaces;
    Make_Airspaces(60);
    Measure_Drawing("60 airspaces", Zoom_Farthest, Zoom_Airport - 1, 12e-3, Draw_Outlines);
    Make_Airspaces(300);
    Measure_Drawing("300 airspaces", Zoom_Farthest, Zoom_Airport - 1, 40e-3, Draw_Outlines);
    current_airspaces = kept;
    Measure_Print();  // last, for it minimises the window
    platform::End_Program();
}

}  // namespace

int main(int argc, char** argv) {
    return platform::Run(
        argc, argv, argc > 1 ? Measure_Start : [] {
            platform::Show(clocks);
            Show_Chart();
        });
}
