// The magnetic grid. The first two bytes of an input, times 2, are the length of the file; the
// others are its start, behind which every byte is 0.

#include <algorithm>

#include "scenery/bgl_reader.h"
#include "scenery/magnetic.h"
#include "tests/fuzz/fuzz.h"

using namespace skerrand;

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size < 2) return 0;
    const std::size_t length = std::size_t{2} * static_cast<std::size_t>(data[0] | data[1] << 8);
    bgl_bytes.assign(length + 1, 0);
    std::copy_n(data + 2, std::min(size - 2, length), bgl_bytes.begin());
    constexpr std::int16_t Untouched = 0x5A5A;
    magnetic_table.fill(Untouched);
    if (Take_Grid() == Magdec_Result::Loaded) {
        Check(static_cast<std::size_t>(Read_Long(110)) + 8 + 2 * Grid_Values <= length);
        Check(magnetic_table[Grid_Values] == Untouched);
    } else {
        Check(std::ranges::count(magnetic_table, Untouched) == std::ssize(magnetic_table));
    }
    return 0;
}
