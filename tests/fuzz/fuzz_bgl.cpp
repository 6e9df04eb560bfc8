#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "app/settings.h"
#include "scenery/bgl_reader.h"
#include "scenery/bgl_walk.h"
#include "scenery/tables.h"

using namespace skerrand;

/// The bytes are a BGL file: scanned for the database first, then searched for airspaces.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    bgl_bytes.assign(data, data + size);
    bgl_bytes.push_back(0);
    current_file = "a.bgl";
    airport_table.clear();
    airport_count = 0;
    airspace_files.clear();
    airspace_file_count = 0;

    first_run = true;
    database_ready = false;
    Walk_Bgl();
    if (static_cast<std::size_t>(airport_count) != airport_table.size()) std::abort();
    if (airspace_files.size() > 1) std::abort();

    first_run = false;
    database_ready = true;
    Walk_Bgl();
    if (static_cast<std::size_t>(airport_count) != airport_table.size()) std::abort();
    return 0;
}
