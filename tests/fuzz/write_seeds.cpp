// Writes the samples that fuzz targets start from, built by the same hands as those of the tests:
//   write_seeds FOLDER
// FOLDER has a folder for each of the targets.

#include <fstream>
#include <string>

#include "scenery/bgl_walk.h"
#include "scenery/database.h"
#include "tests/scenery/bgl_builder.h"

using namespace skerrand;
using namespace skerrand::bgl;

int main(int count, char** arguments) {
    if (count != 2) return 2;
    Load(Sample());
    Walk_Bgl();
    const Bytes two = {2, 0};
    const Bytes one_list = Taxi({List(12, {Point(1, 1, 1)}), Longs({2, 20})});
    const Bytes chain =
        Taxi({List(32, {Path(0, 0, 0, 0), Path(1, 0, 0, 1)}), Names({"1", "2", "0"})});
    const std::pair<const char*, Bytes> seeds[] = {
        {"airports/none", {0, 0}},
        {"airports/two", Join({two, Airport_Table_Bytes(std::span(airport_table).first(2))})},
        {"airspaces/none", {0, 0}},
        {"airspaces/two",
         Join({two, Airspace_List_Bytes(std::vector<std::string>{"a.bgl", "b.bgl"})})},
        {"bgl/sound", Sample()},
        {"bgl/airspaces", Image({}, Join({Group(), Group(5), Group()}))},
        {"bgl/no_step", Image({{"A", Record(0x10003, {}, -8)}})},
        {"bgl/cut_taxi_block", Image({{"A", one_list}, {"B", Icao("B")}})},
        {"bgl/chained_names", Image({{"A", chain}})},
    };
    for (const auto& [name, bytes] : seeds) {
        std::ofstream file(std::string(arguments[1]) + "/" + name, std::ios::binary);
        file.write(reinterpret_cast<const char*>(bytes.data()), std::ssize(bytes));
        if (!file.flush()) return 1;
    }
}
