// The list of files with airspaces. The first two bytes of an input are the count that the settings
// file tells.

#include <algorithm>

#include "scenery/database.h"
#include "tests/fuzz/fuzz.h"

using namespace skerrand;

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size < 2) return 0;
    const auto count = static_cast<std::int16_t>(data[0] | data[1] << 8);
    const std::span<const std::uint8_t> file(data + 2, size - 2);
    std::vector<std::string> files;
    if (!Parse_Airspace_List(file, count, files)) {
        Check(files.empty());
        return 0;
    }
    Check(files.size() == static_cast<std::size_t>(count));
    // But for the last text, which is empty when written, the bytes are those that were read.
    const platform::Bytes written = Airspace_List_Bytes(files);
    Check(written.size() - 2 <= file.size());
    Check(std::equal(written.begin(), written.end() - 2, file.begin()));
    return 0;
}
