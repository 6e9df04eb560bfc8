// The settings file: a record that reads is written as the same bytes.

#include <algorithm>

#include "app/settings.h"
#include "tests/fuzz/fuzz.h"

using namespace skerrand;

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const platform::Bytes file(data, data + size);
    Settings_Rec record;
    if (!Parse_Settings(file, record)) {
        Check(record == Settings_Rec{});
        return 0;
    }
    Check(record.airport_count >= 0 && record.airspace_file_count >= 0);
    const platform::Bytes written = Settings_Bytes(record);
    Check(written.size() <= size);
    Check(std::equal(written.begin(), written.end(), file.begin()));
    return 0;
}
