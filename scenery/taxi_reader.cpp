#include "scenery/taxi_reader.h"

#include <array>
#include <charconv>
#include <cstddef>

#include "scenery/bgl_reader.h"
#include "selection/geodesy.h"
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

/// By label code, from 1 on.
constexpr std::array<std::string_view, 37> Labels{
    "PARKING",   "N PARKING",  "NE PARKING", "E PARKING", "SE PARKING", "S PARKING", "SW PARKING",
    "W PARKING", "NW PARKING", "GATE",       "DOCK",      "GATE A",     "GATE B",    "GATE C",
    "GATE D",    "GATE E",     "GATE F",     "GATE G",    "GATE H",     "GATE I",    "GATE J",
    "GATE K",    "GATE L",     "GATE M",     "GATE N",    "GATE O",     "GATE P",    "GATE Q",
    "GATE R",    "GATE S",     "GATE T",     "GATE U",    "GATE V",     "GATE W",    "GATE X",
    "GATE Y",    "GATE Z"};

constexpr std::int32_t Label_Field = 0xFFFFF;  // number and code; above them the kind of parking
constexpr std::int32_t Number_Step = 128;

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

/// The place that lies so many metres east and north of the airport. What is 0 stays exactly the
/// airport's own, while anything else goes through the rounding of the calculation.
template <typename Place>
void Set_Place(Place& place, const Airport_Info& airport, double x, double z) {
    const auto towards = [&airport](int course, int opposite, double meters) {
        return Destination_Meters(airport.lat, airport.lon, meters > 0 ? course : opposite, meters);
    };
    place.lon = x == 0 ? airport.lon : towards(90, 270, x).lon;
    place.lat = z == 0 ? airport.lat : towards(0, 180, z).lat;
}

bool Read_Points(std::int64_t pos, std::int32_t count, Airport_Info& airport) {
    if (!Make_Room(pos, count, Point_Size, airport.taxi_points)) return false;
    for (Taxi_Point& point : airport.taxi_points) {
        point.kind = Read_Long(pos);
        Set_Place(point, airport, Read_Single(pos + 4), Read_Single(pos + 8));
        pos += Point_Size;
    }
    return true;
}

bool Read_Parkings(std::int64_t pos, std::int32_t count, Airport_Info& airport,
                   std::string_view& label) {
    if (!Make_Room(pos, count, Parking_Size, airport.parkings)) return false;
    for (Parking_Info& parking : airport.parkings) {
        Set_Place(parking, airport, Read_Single(pos), Read_Single(pos + 4));
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

/// The number below `end` that has this text as its decimal form, or `end` if there is none.
std::size_t Decimal_Number(const std::string& text, std::size_t end) {
    std::size_t number = end;
    std::from_chars(text.data(), text.data() + text.size(), number);
    return number < end && std::to_string(number) == text ? number : end;
}

/// A path of the kind `Path_Runway` is named after the first identifier of the runway with its
/// number. The number behind the last runway gives an empty identifier; a name that is no such
/// number stays, and so do all where there are no runways.
void Name_Runway_Paths(const std::vector<Runway_Info>& runways, std::vector<Taxi_Path>& paths) {
    if (runways.empty()) return;
    for (Taxi_Path& path : paths) {
        if (path.kind != Path_Runway) continue;
        const std::size_t number = Decimal_Number(path.name, runways.size() + 1);
        if (number > runways.size()) continue;
        path.name = "Runway ";
        if (number < runways.size()) path.name += runways[number].id_1;
    }
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
                sound = count < 1 || Read_Points(list, count, airport);
                break;
            case Parking_Size:
                sound = count < 1 || Read_Parkings(list, count, airport, parking_label);
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

std::string Parking_Name(std::int32_t packed, std::string_view& label) {
    const std::int32_t field = packed & Label_Field;
    // Rounded, not cut, so that a code above half a step counts as a negative one of the next.
    const std::int32_t number = Round_To_Long(static_cast<double>(field) / Number_Step);
    const std::int32_t code = field - number * Number_Step;
    if (code >= 1 && code <= std::ssize(Labels)) label = Labels[static_cast<std::size_t>(code - 1)];
    std::string name(label);
    name += ' ';
    name += std::to_string(number);
    return name;
}

void Name_Taxiways(const std::vector<std::string>& names, std::vector<Taxi_Path>& paths) {
    // What each name leads to in the end; those behind it are known already.
    std::vector<const std::string*> last(names.size());
    for (std::size_t i = names.size(); i-- > 0;) {
        const std::size_t next = Decimal_Number(names[i], names.size());
        last[i] = next > i && next < names.size() ? last[next] : &names[i];
    }
    for (Taxi_Path& path : paths) {
        const std::size_t number = Decimal_Number(path.name, names.size());
        if (path.kind == Path_Taxiway && number < names.size()) path.name = *last[number];
    }
}

}  // namespace skerrand
