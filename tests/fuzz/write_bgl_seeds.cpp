#include <fstream>
#include <iostream>
#include <iterator>
#include <string>

#include "tests/scenery/bgl_builder.h"

using namespace skerrand::bgl;

/// Writes the seeds of the BGL fuzz target into the folder named.
int main(int count, char** arguments) {
    if (count != 2) return std::cerr << "write_bgl_seeds FOLDER\n", 1;
    const Bytes taxi_in_part = Taxi({Points({Point(1, 1, 1)}), Longs({2, 20})});
    const struct {
        const char* name;
        Bytes file;
    } seeds[] = {
        {"sound.bgl", Sample()},
        {"airspaces.bgl", Image({}, Join({Group(), Group(5), Group()}))},
        {"no_step.bgl", Image({{"A", Record(0x10003, {}, -8)}})},
        {"cut_taxi_block.bgl", Image({{"A", taxi_in_part}, {"B", Icao("B")}})},
        {"chained_names.bgl", Image({{"A", Taxi({Paths({Path(0, 0, 0, 0), Path(1, 0, 0, 1)}),
                                                 Names({"1", "2", "0"})})}})},
    };
    for (const auto& seed : seeds) {
        std::ofstream file(std::string(arguments[1]) + '/' + seed.name, std::ios::binary);
        file.write(reinterpret_cast<const char*>(seed.file.data()), std::ssize(seed.file));
        if (!file.flush()) return std::cerr << "cannot write " << seed.name << '\n', 1;
    }
}
