#include "scenery/airspace_walk.h"

#include "app/settings.h"
#include "scenery/airspace_entries.h"
#include "scenery/airspace_reader.h"
#include "scenery/bgl_reader.h"
#include "scenery/tables.h"

namespace skerrand {

namespace {

constexpr std::int32_t Airspace_Group = 4;

/// A file's groups follow each other, so the last name tells whether the file is listed already.
void List_Current_File() {
    if (!airspace_files.empty() && airspace_files.back() == current_file) return;
    airspace_files.push_back(current_file);
    airspace_file_count = static_cast<std::int32_t>(airspace_files.size());
}

/// While the databases are built a group just puts its file on the list; in the search it is the
/// objects in the group that count.
bool Read_Group(std::int64_t group) {
    const bool searching = !first_run && database_ready;
    if (searching) return Walk_Airspace_Group(group + Entry_Head);
    List_Current_File();
    return true;
}

}  // namespace

bool Walk_Airspace_Section(std::int64_t start) {
    return Walk_Containers(start, Airspace_Group, Read_Group);
}

}  // namespace skerrand
