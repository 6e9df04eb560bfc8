#include "scenery/tables.h"

namespace skerrand {

std::vector<Airport_Info> airport_table;
std::int32_t airport_count = 0;

std::vector<std::string> airspace_files;
std::int32_t airspace_file_count = 0;

void Release_Airport_Table() {
    std::vector<Airport_Info>().swap(airport_table);
}

void Release_Airspace_Files() {
    std::vector<std::string>().swap(airspace_files);
}

}  // namespace skerrand
