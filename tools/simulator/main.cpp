#include <chrono>
#include <cstdlib>
#include <iostream>
#include <unistd.h>

#include "platform/headless/simulator.h"
#include "tools/simulator/airports.h"
#include "tools/simulator/flight_plan.h"
#include "tools/simulator/instruments.h"
#include "tools/simulator/options.h"
#include "tools/simulator/server.h"
#include "tools/simulator/stop_signs.h"

// skerrand-simulator: the other end of the link, where no simulator is at hand.

namespace {

using namespace simulator;
using Clock = std::chrono::steady_clock;

constexpr int Failed = 1;
constexpr int Wrong_Command_Line = 2;
constexpr int Died = 3;
constexpr int Look_Again = 100;  // milliseconds between two looks for the database

/// False if the database is not there, or the program is to end before it is.
bool Load(const Options& options, const Stop_Signs& signs) {
    while (!Load_Airports()) {
        if (!options.wait || !signs.Wait(Look_Again)) return false;
    }
    return true;
}

/// Empty, or why there is no such flight.
std::string Plan(const Options& options, Flight& flight) {
    std::string fault;
    const skerrand::Airport_Info* const departure = Find_Airport(options.departure, fault);
    if (departure == nullptr) return fault;
    const skerrand::Airport_Info* destination = departure;
    if (!options.destination.empty()) destination = Find_Airport(options.destination, fault);
    if (destination == nullptr) return fault;
    flight = destination == departure ? Traffic_Pattern(*departure)
                                      : Direct_Flight(*departure, *destination);
    std::cout << departure->icao_id << " to " << destination->icao_id << ", "
              << static_cast<int>(Duration(flight) / 60) << " minutes" << std::endl;
    return "";
}

/// Answers a batch with the state of the moment, or with the fault that the user wants to see.
class Cockpit {
  public:
    Cockpit(const Options& options, const Stop_Signs& signs, const Flight& flight)
        : options_(options), signs_(signs), flight_(flight) {}

    std::uint32_t operator()(std::span<std::uint8_t> block) {
        if (options_.answers && answers_ == *options_.answers) std::_Exit(Died);
        if (options_.late > 0) signs_.Wait(options_.late);
        if (options_.refuse) return 0;
        if (answers_ == 0) start_ = Clock::now();
        const std::chrono::duration<double> passed = Clock::now() - start_;
        Show(Aircraft_At(flight_, passed.count() * options_.speed_up));
        const std::uint32_t reply = platform::headless::Answer_Batch(block);
        if (reply == 1) ++answers_;
        return reply;
    }

  private:
    const Options& options_;
    const Stop_Signs& signs_;
    const Flight& flight_;
    Clock::time_point start_;
    int answers_ = 0;
};

int Fail(const std::string& fault) {
    std::cerr << "skerrand-simulator: " << fault << "\n";
    return Failed;
}

int Run(const Options& options) {
    const Stop_Signs signs(options.follow);
    if (!signs.Are_Set()) return Fail("there is no process " + std::to_string(*options.follow));
    if (chdir(options.folder.c_str()) != 0) return Fail("cannot enter " + options.folder);
    // Clients that come while the database is awaited find the window, and wait for its answer.
    std::string fault;
    const std::unique_ptr<Server> server = Open_Server(options.window_class, fault);
    if (server == nullptr) return Fail(fault);
    if (!Load(options, signs)) {
        return options.wait ? 0 : Fail("no database of airports in " + options.folder);
    }
    Flight flight;
    fault = Plan(options, flight);
    if (!fault.empty()) return Fail(fault);
    Start(options.window_class, options.version);
    Show_Altimeter(options.altimeter);
    Serve(*server, signs.Ends(), Cockpit(options, signs, flight));
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    Options options;
    const std::string fault = Parse_Options(argc, argv, options);
    if (!fault.empty()) {
        std::cerr << "skerrand-simulator: " << fault << "\nskerrand-simulator --help tells more.\n";
        return Wrong_Command_Line;
    }
    if (options.help) {
        std::cout << Help_Text;
        return 0;
    }
    return Run(options);
}
