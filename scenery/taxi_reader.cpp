#include "scenery/taxi_reader.h"

#include <string>
#include <vector>

#include "scenery/bgl_reader.h"
#include "scenery/local_grid.h"
#include "scenery/parking_name.h"
#include "scenery/taxi_names.h"
#include "selection/rounding.h"

namespace skerrand {

namespace {

// The kinds of list are told apart by the size of their elements.
constexpr std::int32_t Name_Size = 8;
constexpr std::int32_t Point_Size = 12;
constexpr std::int32_t Parking_Size = 20;
constexpr std::int32_t Path_Size = 32;

constexpr double Meters_Per_Foot = 0.3048;

/// No list is longer, while the types of records, which look like counts, are all above it.
constexpr std::int32_t Longest_List = 32767;

double Read_Single(std::int64_t pos) {
    return Bits_To_Single(Read_Long(pos));
}

/// Whether a list of `count` elements can be read and put in place of what `elements` holds.
template <typename Element>
bool Make_Room(std::int64_t pos, std::int32_t count, std::int32_t size,
               std::vector<Element>& elements) {
    const std::int64_t room = std::int64_t{count} * static_cast<std::int64_t>(sizeof(Element));
    if (!Can_Read(pos, std::int64_t{count} * size) || !Charge(room)) return false;
    elements.assign(static_cast<std::size_t>(count), Element{});
    return true;
}

bool Read_Points(std::int64_t pos, std::int32_t count, const Local_Grid& grid,
                 std::vector<Taxi_Point>& points) {
    if (!Make_Room(pos, count, Point_Size, points)) return false;
    for (Taxi_Point& point : points) {
        point.kind = Read_Long(pos);
        point.lon = Grid_Longitude(grid, Read_Single(pos + 4));
        point.lat = Grid_Latitude(grid, Read_Single(pos + 8));
        pos += Point_Size;
    }
    return true;
}

bool Read_Parkings(std::int64_t pos, std::int32_t count, const Local_Grid& grid,
                   std::vector<Parking_Info>& parkings, std::string_view& label) {
    if (!Make_Room(pos, count, Parking_Size, parkings)) return false;
    for (Parking_Info& parking : parkings) {
        parking.lon = Grid_Longitude(grid, Read_Single(pos));
        parking.lat = Grid_Latitude(grid, Read_Single(pos + 4));
        parking.radius_ft = Round_To_Long(Read_Single(pos + 8) / Meters_Per_Foot);
        parking.name = Parking_Name(Read_Long(pos + 16), label);
        pos += Parking_Size;
    }
    return true;
}

bool Read_Paths(std::int64_t pos, std::int32_t count, std::vector<Taxi_Path>& paths) {
    if (!Make_Room(pos, count, Path_Size, paths)) return false;
    for (Taxi_Path& path : paths) {
        path.kind = Read_Long(pos);
        path.start_point = Read_Long(pos + 12);
        path.end_point = Read_Long(pos + 16);
        path.name = std::to_string(Read_Long(pos + 28));
        pos += Path_Size;
    }
    return true;
}

bool Read_Names(std::int64_t pos, std::int32_t count, Airport_Info& airport) {
    std::vector<std::string> names;
    const auto paths = static_cast<std::int64_t>(airport.taxi_paths.size());
    if (!Charge(paths * Path_Size)) return false;
    if (count > 0 && !Make_Room(pos, count, Name_Size, names)) return false;
    for (std::string& name : names) {
        name = Read_Text(pos, Name_Size);
        pos += Name_Size;
    }
    Name_Taxiways(names, airport.taxi_paths);
    Name_Runway_Paths(airport.runways, airport.taxi_paths);
    return true;
}

}  // namespace

bool Read_Taxi_Block(std::int64_t record, std::int32_t size, Airport_Info& airport,
                     std::string_view& parking_label) {
    const std::int64_t record_end = record + 8 + size;
    const Local_Grid grid = Make_Local_Grid(airport.lat, airport.lon);
    std::int64_t list = record + 8;
    for (;;) {
        if (!Can_Read(list, 4)) return false;
        const std::int32_t count = Read_Long(list);
        // Lists are read by their looks alone, also behind the record, unless it is plainly the
        // next record that stands there.
        if (list >= record_end && count > Longest_List) return true;
        if (!Can_Read(list + 4, 4)) return false;
        const std::int32_t element = Read_Long(list + 4);
        list += 8;

        bool sound = true;
        switch (element) {
            case Name_Size:
                return Read_Names(list, count, airport);
            case Point_Size:
                sound = count < 1 || Read_Points(list, count, grid, airport.taxi_points);
                break;
            case Parking_Size:
                sound =
                    count < 1 || Read_Parkings(list, count, grid, airport.parkings, parking_label);
                break;
            case Path_Size:
                sound = count < 1 || Read_Paths(list, count, airport.taxi_paths);
                break;
            default:
                return true;
        }
        if (!sound) return false;
        if (count > 0) list += std::int64_t{count} * element;
    }
}

}  // namespace skerrand
