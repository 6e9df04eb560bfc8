// The airport database. The first two bytes of an input are the count that the settings file tells.

#include "scenery/database.h"
#include "tests/fuzz/fuzz.h"

using namespace skerrand;

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size < 2) return 0;
    const auto count = static_cast<std::int16_t>(data[0] | data[1] << 8);
    const std::span<const std::uint8_t> file(data + 2, size - 2);
    std::vector<Airport_Info> airports;
    if (!Parse_Airport_Table(file, count, airports)) {
        Check(airports.empty());
        return 0;
    }
    Check(airports.size() == static_cast<std::size_t>(count));
    const platform::Bytes written = Airport_Table_Bytes(airports);
    std::vector<Airport_Info> again;
    Check(Parse_Airport_Table(written, count, again));
    Check(again == airports);
    Check(Airport_Table_Bytes(again) == written);
    return 0;
}
