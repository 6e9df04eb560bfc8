// A BGL file: scanned for the database first, then searched for airspaces.

#include "scenery/bgl_walk.h"
#include "tests/fuzz/fuzz.h"
#include "tests/scenery/bgl_builder.h"

using namespace skerrand;

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    bgl::Load({data, data + size});
    Walk_Bgl();
    Check(static_cast<std::size_t>(airport_count) == airport_table.size());
    Check(airspace_files.size() <= 1);
    first_run = false;
    database_ready = true;
    Walk_Bgl();
    Check(static_cast<std::size_t>(airport_count) == airport_table.size());
    return 0;
}
