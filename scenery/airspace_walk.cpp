#include "scenery/airspace_walk.h"

#include "app/settings.h"
#include "scenery/bgl_reader.h"
#include "scenery/tables.h"

namespace skerrand {

namespace {

constexpr std::int32_t Container_Entry = 1;
constexpr std::int32_t Passed_Entry = 0x30001;
constexpr std::int32_t Airspace_Group = 4;

/// A file's groups follow each other, so the last name tells whether the file is listed already.
void List_Current_File() {
    if (!airspace_files.empty() && airspace_files.back() == current_file) return;
    airspace_files.push_back(current_file);
    airspace_file_count = static_cast<std::int32_t>(airspace_files.size());
}

/// While the databases are built a group just puts its file on the list; in the search it is the
/// objects in the group that count.
bool Read_Group() {
    const bool searching = !first_run && database_ready;
    if (searching) return true;
    List_Current_File();
    return true;
}

}  // namespace

bool Walk_Airspace_Section(std::int64_t start) {
    std::int64_t entry = start;
    for (;;) {
        if (!Can_Read(entry, 4)) return false;
        const std::int32_t type = Read_Long(entry);
        if (type != Container_Entry && type != Passed_Entry) return true;
        if (!Can_Read(entry + 4, type == Container_Entry ? 8 : 4)) return false;
        const std::int32_t size = Read_Long(entry + 4);
        const bool is_group = type == Container_Entry && Read_Long(entry + 8) == Airspace_Group;
        if (is_group && !Read_Group()) return false;
        if (!Step_Over(entry, size)) return false;
    }
}

}  // namespace skerrand
