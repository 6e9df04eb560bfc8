#include "scenery/bgl_walk.h"

#include <utility>

#include "app/settings.h"
#include "scenery/airport_reader.h"
#include "scenery/airspace_walk.h"
#include "scenery/bgl_reader.h"
#include "scenery/tables.h"

namespace skerrand {

namespace {

// Positions in the header of the file.
constexpr std::int64_t Sections_Mark = 0x90;  // 1, or the file has no sections
constexpr std::int64_t Airport_Section = 0x9C;
constexpr std::int64_t Airspace_Section = 0xA4;

constexpr std::int32_t List_Record = 0x30001;
constexpr std::int32_t Airport_Entry = 0x30002;
constexpr std::int32_t Airport_Target = 0x50001;

bool Walk_Sections() {
    if (!Can_Read(Sections_Mark, 4)) return false;
    if (Read_Long(Sections_Mark) != 1) return true;
    if (!Can_Read(Airport_Section, 12)) return false;
    const std::int32_t airports = Read_Long(Airport_Section);
    const std::int32_t airspaces = Read_Long(Airspace_Section);
    if (airports > 0 && !Walk_Airport_Section(airports)) return false;
    return airspaces <= 0 || Walk_Airspace_Section(airspaces);
}

bool Add_Airport(std::string name, std::int64_t block) {
    if (!Charge(sizeof(Airport_Info))) return false;
    Airport_Info& airport = airport_table.emplace_back();
    airport_count = static_cast<std::int32_t>(airport_table.size());
    airport.airport_name = std::move(name);
    return Read_Airport(block, airport);
}

bool Read_Entry(std::int64_t entry, std::int32_t size) {
    const std::int64_t name_length = std::int64_t{size} - 8;
    if (!Can_Read(entry + 16, name_length)) return false;
    const std::int32_t target_type = Read_Long(entry + 8);
    const std::int32_t target = Read_Long(entry + 12);
    if (target_type != Airport_Target || target <= 0) return true;
    if (!Can_Read(target, 12)) return false;
    if (Read_Long(target) != 1 || Read_Long(target + 8) != 1 || database_ready) return true;
    return Add_Airport(Read_Name(entry + 16, name_length), target);
}

bool Walk_Entries(std::int64_t list) {
    if (!Can_Read(list + 20, 4)) return false;
    const std::int32_t last = Read_Long(list + 20);
    std::int64_t entry = list + 24;
    for (std::int64_t number = 0; number <= last; ++number) {
        if (!Can_Read(entry, 16)) return false;
        const std::int32_t size = Read_Long(entry + 4);
        if (Read_Long(entry) == Airport_Entry && !Read_Entry(entry, size)) return false;
        if (!Step_Over(entry, size)) return false;
    }
    return true;
}

}  // namespace

void Walk_Bgl() {
    Start_Allowance();
    Walk_Sections();
    End_Allowance();
}

bool Walk_Airport_Section(std::int64_t start) {
    std::int64_t list = start;
    for (;;) {
        if (!Can_Read(list, 8)) return false;
        if (Read_Long(list) != List_Record) return true;
        const std::int32_t size = Read_Long(list + 4);
        if (!Walk_Entries(list)) return false;
        if (!Step_Over(list, size)) return false;
    }
}

}  // namespace skerrand
