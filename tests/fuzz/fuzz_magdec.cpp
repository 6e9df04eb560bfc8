// The magnetic grid. The first two bytes of an input, times 2, are the length of the file; the
// others are its start, behind which every byte is the low byte of its own offset times 7.

#include <algorithm>

#include "scenery/bgl_reader.h"
#include "scenery/magnetic.h"
#include "tests/fuzz/fuzz.h"

using namespace skerrand;

namespace {

constexpr std::int16_t Untouched = 0x5A5A;

auto Untouched_Grid() {
    decltype(magnetic_table) grid;
    grid.fill(Untouched);
    return grid;
}

/// The bytes behind an input.
platform::Bytes Pattern() {
    platform::Bytes bytes(2 * 65535);
    for (std::size_t i = 0; i < bytes.size(); ++i)
        bytes[i] = static_cast<std::uint8_t>(7 * i);
    return bytes;
}

void Check_Loaded(std::size_t length) {
    const auto section = static_cast<std::size_t>(Read_Long(110));
    Check(section + 8 + 2 * Grid_Values <= length);
    const std::uint8_t* last = bgl_bytes.data() + section + 8 + 2 * (Grid_Values - 1);
    Check(magnetic_table[Grid_Values - 1] == static_cast<std::int16_t>(last[0] + 256 * last[1]));
    Check(magnetic_table[Grid_Values] == Untouched);
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size < 2) return 0;
    const std::size_t length = std::size_t{2} * static_cast<std::size_t>(data[0] | data[1] << 8);
    static const platform::Bytes pattern = Pattern();
    bgl_bytes.assign(pattern.begin(), pattern.begin() + static_cast<std::ptrdiff_t>(length));
    bgl_bytes.push_back(0);
    std::copy_n(data + 2, std::min(size - 2, length), bgl_bytes.begin());
    static const auto untouched = Untouched_Grid();
    magnetic_table = untouched;
    const Magdec_Result result = Take_Grid();
    if (result == Magdec_Result::Loaded) {
        Check_Loaded(length);
    } else {
        Check(magnetic_table == untouched);
    }
    return 0;
}
