#include <chrono>
#include <cmath>
#include <cstdio>
#include <cstdlib>

#include "app/settings.h"
#include "platform/code_page.h"
#include "platform/simulator/server.h"
#include "platform/simulator/simulator.h"
#include "scenery/database.h"
#include "tools/simulator/flight.h"
#include "tools/simulator/options.h"

// skerrand-simulator: the other end of the link, where no simulator is at hand.

namespace {

using namespace simulator;
namespace server = platform::simulator;
using Clock = std::chrono::steady_clock;

constexpr int Failed = 1;
constexpr int Wrong_Command_Line = 2;
constexpr int Died = 3;
constexpr int Look_Again = 100;  // milliseconds between two looks for the database

/// Reads what Skerrand has found; false if it is not there, not whole, or holds no airport.
bool Load_Airports() {
    if (skerrand::Load_Settings(skerrand::Own_File(skerrand::Settings_File)) !=
        skerrand::Load_Result::Loaded) {
        return false;
    }
    skerrand::airport_count = skerrand::settings.airport_count;
    return skerrand::Read_Airport_Table() && !skerrand::airport_table.empty();
}

/// The airport of that code in any letter case that has a runway, of an empty code the first one;
/// null with `fault` if there is none.
const skerrand::Airport_Info* Find_Airport(const std::string& icao_id, std::string& fault) {
    const std::string wanted = platform::Upper_Case(icao_id);
    for (const skerrand::Airport_Info& airport : skerrand::airport_table) {
        if (!wanted.empty() && platform::Upper_Case(airport.icao_id) != wanted) continue;
        if (Longest_Runway(airport).angle > 0) return &airport;
    }
    fault = "the database has no airport " + wanted + " with a runway";
    return nullptr;
}

/// Empty, or why there is no such flight.
std::string Plan(const Options& options, std::vector<Leg>& flight) {
    std::string fault;
    const skerrand::Airport_Info* const departure = Find_Airport(options.departure, fault);
    const skerrand::Airport_Info* destination = nullptr;
    if (!options.destination.empty()) destination = Find_Airport(options.destination, fault);
    if (!fault.empty()) return fault;
    flight = Plan_Flight(*departure, destination);
    const std::string way = destination == nullptr ? " straight on" : " to " + destination->icao_id;
    std::printf("%s%s, %.0f minutes\n", departure->icao_id.c_str(), way.c_str(),
                Duration(flight) / 60);
    std::fflush(stdout);
    return "";
}

/// Puts position and heading where clients read them. The upper bits of a full circle fall off.
void Show(const Aircraft& aircraft) {
    constexpr double Quarter_Meridian = 10001750, Full_Circle = 4294967296;
    server::Put(0x0564, std::llround(aircraft.lat / 90 * Quarter_Meridian), 4);
    server::Put(0x056C, std::llround(aircraft.lon / 360 * Full_Circle), 4);
    server::Put(0x0580, std::llround(aircraft.heading / 360 * Full_Circle), 4);
}

/// Answers batches with the state of the moment, or with the fault that the user wants to see.
void Fly(const Options& options, const std::vector<Leg>& flight) {
    int answers = 0;
    Clock::time_point start;
    server::Serve([&](std::span<std::uint8_t> block) {
        if (answers == options.answers) std::_Exit(Died);
        if (options.late > 0) server::Wait(static_cast<int>(options.late));
        if (options.refuse) return std::uint32_t{0};
        if (answers == 0) start = Clock::now();
        const std::chrono::duration<double> passed = Clock::now() - start;
        Show(Aircraft_At(flight, passed.count() * options.speed_up));
        const std::uint32_t reply = server::Answer_Batch(block);
        answers += reply == 1 ? 1 : 0;
        return reply;
    });
}

/// Empty, or why it could not be done.
std::string Run(const Options& options) {
    const auto folder = platform::From_Utf8(options.folder);
    if (!folder) return "cannot enter " + options.folder;
    skerrand::app_path = *folder;
    if (options.follow > 0 && !server::Follow(static_cast<int>(options.follow))) {
        return "there is no process to follow";
    }
    // Clients that come while the database is awaited find the window, and wait for its answer.
    const char* const window_class = options.fs98 ? "FS98MAIN" : "UIPCMAIN";
    std::string fault = server::Open_Window(window_class);
    if (!fault.empty()) return fault;
    while (!Load_Airports()) {
        if (!options.wait) return "no database of airports in " + options.folder;
        if (!server::Wait(Look_Again)) return "";
    }
    std::vector<Leg> flight;
    fault = Plan(options, flight);
    if (!fault.empty()) return fault;
    server::Start(window_class);
    server::Put(0x3308, static_cast<std::int64_t>(options.version), 4);
    server::Put(0x0EC6, std::llround(options.altimeter * 16), 2);
    Fly(options, flight);
    return "";
}

}  // namespace

int main(int argc, char** argv) {
    Options options;
    std::string fault = Parse_Options(argc, argv, options);
    if (!fault.empty()) {
        std::fprintf(stderr, "skerrand-simulator: %s\nskerrand-simulator --help tells more.\n",
                     fault.c_str());
        return Wrong_Command_Line;
    }
    if (options.help) return std::fputs(Help_Text, stdout) < 0 ? Failed : 0;
    fault = Run(options);
    if (fault.empty()) return 0;
    std::fprintf(stderr, "skerrand-simulator: %s\n", fault.c_str());
    return Failed;
}
