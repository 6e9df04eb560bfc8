#include "app/settings.h"
#include "scenery/database.h"
#include "scenery/tables.h"

namespace skerrand {

std::string Write_Airport_Table() {
    return platform::Write_File(Own_File(Airports_File), Airport_Table_Bytes(airport_table));
}

std::string Write_Airspace_List() {
    return platform::Write_File(Own_File(Airspaces_File), Airspace_List_Bytes(airspace_files));
}

bool Read_Airport_Table() {
    platform::Bytes bytes;
    Release_Airport_Table();
    return platform::Read_File(Own_File(Airports_File), bytes) &&
           Parse_Airport_Table(bytes, airport_count, airport_table);
}

bool Read_Airspace_List() {
    platform::Bytes bytes;
    Release_Airspace_Files();
    return platform::Read_File(Own_File(Airspaces_File), bytes) &&
           Parse_Airspace_List(bytes, airspace_file_count, airspace_files);
}

}  // namespace skerrand
