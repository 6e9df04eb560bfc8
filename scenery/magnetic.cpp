#include "scenery/magnetic.h"

#include "platform/files.h"
#include "scenery/bgl_reader.h"

namespace skerrand {

std::array<std::int16_t, Grid_Values + 1> magnetic_table{};

namespace {

constexpr std::int64_t Section_Field =
    110;  ///< offset of the field that tells the section's offset
constexpr std::int64_t Grid_In_Section = 8;  ///< the section starts with 8 bytes of its own

}  // namespace

Magdec_Result Take_Grid() {
    const std::int64_t length = static_cast<std::int64_t>(bgl_bytes.size()) - 1;  // of the file
    if (length < Section_Field + 4) return Magdec_Result::Damaged;
    const std::int64_t section = Read_Long(Section_Field);
    if (section <= 0) return Magdec_Result::No_Grid;
    const std::int64_t grid = section + Grid_In_Section;
    if (length - grid < std::int64_t{2 * Grid_Values}) return Magdec_Result::Damaged;
    for (std::size_t i = 0; i < Grid_Values; ++i) {
        magnetic_table[i] = Read_Word(grid + 2 * static_cast<std::int64_t>(i));
    }
    return Magdec_Result::Loaded;
}

Magdec_Result Load_Magdec(std::string_view path) {
    if (!platform::Read_File(path, bgl_bytes, 1)) return Magdec_Result::Missing;
    return Take_Grid();
}

}  // namespace skerrand
