#include "scenery/bgl_walk.h"

#include <array>

#include "platform/code_page.h"
#include "scenery/airport_reader.h"
#include "scenery/airspace_reader.h"
#include "scenery/bgl_reader.h"

namespace skerrand {

namespace {

/// The number 0x87654321 at this position marks a BGL file with sections.
constexpr std::size_t Magic_Offset = 0x76;
constexpr std::array<std::uint8_t, 4> Bgl_Magic = {0x21, 0x43, 0x65, 0x87};

// Positions in the header of the file.
constexpr std::int64_t Sections_Mark = 0x90;  // 1, or the file has no sections
constexpr std::int64_t Airport_Section = 0x9C;
constexpr std::int64_t Airspace_Section = 0xA4;

bool Walk_Sections() {
    if (!Can_Read(Sections_Mark, 4)) return false;
    if (Read_Long(Sections_Mark) != 1) return true;
    if (!Can_Read(Airport_Section, 12)) return false;
    const std::int32_t airports = Read_Long(Airport_Section);
    const std::int32_t airspaces = Read_Long(Airspace_Section);
    if (airports > 0 && !Walk_Airport_Section(airports)) return false;
    return airspaces <= 0 || Walk_Airspace_Section(airspaces);
}

}  // namespace

bool Walk_File(const std::string& path) {
    current_file = platform::Lower_Case(path);
    // Much scenery has another format: files of hundreds of megabytes are not read for nothing.
    std::array<std::uint8_t, Bgl_Magic.size()> magic{};
    if (platform::Read_File_Part(path, Magic_Offset, magic) && magic != Bgl_Magic) return true;
    if (!platform::Read_File(path, bgl_bytes, 1)) return false;
    Walk_Bgl();  // a file too short for the magic has no sections either
    return true;
}

void Walk_Bgl() {
    Start_Allowance();
    Walk_Sections();
    End_Allowance();
}

}  // namespace skerrand
