#include "tools/scenery_file.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <initializer_list>
#include <map>

// All numbers are little-endian. A record is a type, the count of the bytes behind the first 8, and
// those bytes; readers step from record to record by that count and stop at a type that they do not
// know.

namespace world {

namespace {

constexpr double Metres_Of_Foot = 0.3048;

// The header.
constexpr std::size_t Header_Size = 176;
constexpr std::size_t Magic_Place = 118;
constexpr std::int32_t Magic = -0x789ABCDF;       // 0x87654321
constexpr std::size_t Sections_Mark_Place = 144;  // 1 says that the section offsets are valid
constexpr std::size_t Airports_Place = 156;
constexpr std::size_t Airspaces_Place = 164;

// magdec.bgl.
constexpr std::size_t Grid_Pointer_Place = 110;
constexpr std::int32_t Grid_Place = 128;

// Types of records.
constexpr std::int32_t Unknown_Record = 0;
constexpr std::int32_t Container = 1;
constexpr std::int32_t Position_Record = 0x10001;
constexpr std::int32_t Runway_Record = 0x10002;
constexpr std::int32_t Aid_Record = 0x10004;
constexpr std::int32_t Name_Record = 0x10006;  // of an airport its identifier
constexpr std::int32_t Bounds_Record = 0x1000B;
constexpr std::int32_t Taxi_Record = 0x11001;
constexpr std::int32_t Frequency_Record = 0x20001;
constexpr std::int32_t List_Record = 0x30001;
constexpr std::int32_t Airport_Entry = 0x30002;

// What stands in some of them.
constexpr std::int32_t Airspace_Group = 4;
constexpr std::int32_t Airspace = 5;
constexpr std::int32_t Aid_Is_Ils = 4;
constexpr std::int32_t Airport_Target = 0x50001;
constexpr std::int32_t Normal_Point = 1;

// Two groups, for readers have to go on from one to the next.
constexpr std::size_t Airspace_Groups = 2;

std::int32_t Whole(double value) {
    return static_cast<std::int32_t>(std::nearbyint(value));
}

/// 90 degrees are 10001750 units, about a metre each.
std::int32_t Latitude(Position position) {
    return Whole(position.lat * 10001750 / 90);
}

/// A whole turn is 2^32 units; any number of turns is taken off, so that 180 reads as -180.
std::int32_t Angle(double degrees) {
    const double units = std::nearbyint(std::remainder(degrees, 360.0) * (4294967296.0 / 360));
    return static_cast<std::int32_t>(static_cast<std::int64_t>(units));
}

std::int32_t Longitude(Position position) {
    return Angle(position.lon);
}

/// Binary-coded decimal: 1213000 gives 0x01213000.
std::int32_t Coded(Frequency frequency) {
    std::uint32_t code = 0;
    for (int shift = 0; frequency > 0; shift += 4, frequency /= 10)
        code |= static_cast<std::uint32_t>(frequency % 10) << shift;
    return static_cast<std::int32_t>(code);
}

void Set_Long(std::string& bytes, std::size_t place, std::int32_t value) {
    for (std::size_t i = 0; i < 4; ++i)
        bytes[place + i] = static_cast<char>(static_cast<std::uint32_t>(value) >> (8 * i));
}

void Put_Longs(std::string& bytes, std::initializer_list<std::int32_t> values) {
    for (const std::int32_t value : values) {
        bytes.resize(bytes.size() + 4);
        Set_Long(bytes, bytes.size() - 4, value);
    }
}

/// Answers the place of the record, to be given to `End_Record` behind its last byte. Records may
/// stand inside records.
std::size_t Begin_Record(std::string& bytes, std::int32_t type,
                         std::initializer_list<std::int32_t> values) {
    const std::size_t record = bytes.size();
    Put_Longs(bytes, {type, 0});
    Put_Longs(bytes, values);
    return record;
}

void End_Record(std::string& bytes, std::size_t record) {
    Set_Long(bytes, record + 4, static_cast<std::int32_t>(bytes.size() - record - 8));
}

void Put_Record(std::string& bytes, std::int32_t type, std::initializer_list<std::int32_t> values,
                const std::string& text = {}) {
    const std::size_t record = Begin_Record(bytes, type, values);
    bytes += text;
    End_Record(bytes, record);
}

void End_Chain(std::string& bytes) {
    Put_Record(bytes, Unknown_Record, {});
}

// A position's coordinates have four bytes of fraction ahead of the whole units, 0 here.

void Put_Runway(std::string& bytes, const Runway_Facts& runway, double elevation_ft) {
    const Runway_Line line = Line_Of_Runway(runway.end_1, runway.end_2);
    Put_Record(
        bytes, Runway_Record,
        {0, Latitude(line.center), 0, Longitude(line.center), 0,
         Whole(elevation_ft * Metres_Of_Foot), Angle(line.heading), 0,
         Whole(line.length_m / Metres_Of_Foot), runway.width_ft, runway.letter, runway.number});
    for (const Ils_Facts& ils : runway.ils) {
        Put_Record(bytes, Aid_Record,
                   {0, Latitude(ils.transmitter), 0, Longitude(ils.transmitter), 0, 0,
                    Angle(ils.course), Coded(ils.frequency), Aid_Is_Ils, 0, 0, 0},
                   ils.ident);
    }
}

/// The label code, the number above its 7 bits, and the kind in the third hexadecimal digit: a
/// small or large ramp, a small, medium or heavy gate.
std::int32_t Packed_Name(const Parking_Facts& parking) {
    const float radius = parking.radius_m;
    const int kind = parking.label < First_Gate ? (radius > 15 ? 4 : 2)
                     : radius > 25              ? 10
                                                : (radius > 15 ? 9 : 8);
    return kind << 20 | (parking.number * 128 + parking.label);
}

/// Paths, then the names that they point to. The first name is empty, for paths without one.
void Put_Paths_And_Names(std::string& bytes, const std::vector<Path_Facts>& paths) {
    std::string names(Taxiway_Name_Length, '\0');
    std::map<std::string, std::int32_t> indexes{{"", 0}};
    Put_Longs(bytes, {static_cast<std::int32_t>(paths.size()), 32});
    for (const Path_Facts& path : paths) {
        const auto next = static_cast<std::int32_t>(indexes.size());
        const auto [name, added] = indexes.try_emplace(path.taxiway, next);
        if (added) names += path.taxiway;
        names.resize(indexes.size() * Taxiway_Name_Length);
        Put_Longs(bytes, {static_cast<std::int32_t>(path.kind), 0, 0, path.start, path.end, 0, 0,
                          path.kind == Path_Kind::Runway ? path.runway : name->second});
    }
    Put_Longs(bytes, {static_cast<std::int32_t>(indexes.size()), Taxiway_Name_Length});
    bytes += names;
}

/// Lists of points, parkings, paths and taxiway names, each with its count and the size of an
/// element; a list without elements is left out.
void Put_Taxi_Network(std::string& bytes, const Airport_Facts& airport) {
    if (airport.points.empty() && airport.parkings.empty()) return;
    // Offsets count from the position that a reader gets, which is rounded to whole units.
    const Position reference{Latitude(airport.position) * 90.0 / 10001750,
                             Longitude(airport.position) * 360.0 / 4294967296.0};
    const auto bits = [](double value) {
        return std::bit_cast<std::int32_t>(static_cast<float>(value));
    };
    const std::size_t record = Begin_Record(bytes, Taxi_Record, {});
    if (!airport.points.empty()) {
        Put_Longs(bytes, {static_cast<std::int32_t>(airport.points.size()), 12});
    }
    for (const Position& point : airport.points) {
        const Local_Metres offset = To_Local(reference, point);
        Put_Longs(bytes, {Normal_Point, bits(offset.east), bits(offset.north)});
    }
    if (!airport.parkings.empty()) {
        Put_Longs(bytes, {static_cast<std::int32_t>(airport.parkings.size()), 20});
    }
    for (const Parking_Facts& parking : airport.parkings) {
        const Local_Metres offset = To_Local(reference, parking.position);
        Put_Longs(bytes, {bits(offset.east), bits(offset.north), bits(parking.radius_m), 0,
                          Packed_Name(parking)});
    }
    if (!airport.paths.empty()) Put_Paths_And_Names(bytes, airport.paths);
    End_Record(bytes, record);
}

void Put_Airport(std::string& bytes, const Airport_Facts& airport) {
    Put_Longs(bytes, {1, 0, 1, 0});
    // Readers let each record act on what stands before it: the taxi network needs the position,
    // and an aid belongs to the runway right ahead of it.
    Put_Record(bytes, Position_Record,
               {0, Latitude(airport.position), 0, Longitude(airport.position)});
    Put_Record(bytes, Name_Record, {}, airport.ident);
    for (const Com_Facts& com : airport.coms)
        Put_Record(bytes, Frequency_Record, {Coded(com.frequency), com.use});
    for (const Runway_Facts& runway : airport.runways)
        Put_Runway(bytes, runway, airport.elevation_ft);
    Put_Taxi_Network(bytes, airport);
    End_Chain(bytes);
}

void Put_Airport_Section(std::string& bytes, std::span<const Airport_Facts> airports) {
    const auto last_entry = static_cast<std::int32_t>(airports.size()) - 1;
    const std::size_t list = Begin_Record(bytes, List_Record, {0, 0, 0, last_entry});
    std::vector<std::size_t> targets;  // places of the offsets of the airports' blocks
    for (const Airport_Facts& airport : airports) {
        targets.push_back(bytes.size() + 12);
        Put_Record(bytes, Airport_Entry, {Airport_Target, 0}, airport.name);
    }
    End_Record(bytes, list);
    End_Chain(bytes);
    for (std::size_t i = 0; i < airports.size(); ++i) {
        Set_Long(bytes, targets[i], static_cast<std::int32_t>(bytes.size()));
        Put_Airport(bytes, airports[i]);
    }
}

void Put_Outline_Point(std::string& bytes, const Outline_Point& point,
                       const Airspace_Facts& airspace) {
    const auto type = static_cast<std::int32_t>(point.kind);
    const std::int32_t lat = Latitude(point.position);
    const std::int32_t lon = Longitude(point.position);
    if (point.kind == Outline_Kind::Circle) {
        Put_Record(bytes, type, {point.half_diagonal, 0, airspace.low_ft, airspace.high_ft});
    } else if (point.kind == Outline_Kind::Start) {
        Put_Record(bytes, type, {0, lat, 0, lon, airspace.low_ft, airspace.high_ft});
    } else {
        Put_Record(bytes, type, {0, lat, 0, lon});
    }
}

void Put_Airspace(std::string& bytes, const Airspace_Facts& airspace) {
    const std::size_t record = Begin_Record(bytes, Container, {Airspace, 0});
    // Readers pass over what stands ahead of the box.
    const auto& [south_west, north_east] = airspace.box;
    Put_Record(
        bytes, Bounds_Record,
        {Latitude(south_west), Longitude(south_west), Latitude(north_east), Longitude(north_east)});
    Put_Record(bytes, Name_Record, {}, airspace.name);
    if (airspace.frequency != 0) {
        Put_Record(bytes, Frequency_Record, {Coded(airspace.frequency), 0}, airspace.facility);
    }
    for (const Outline_Point& point : airspace.outline)
        Put_Outline_Point(bytes, point, airspace);
    // Readers do not count the bytes of a container.
    End_Chain(bytes);
    End_Record(bytes, record);
}

void Put_Airspace_Section(std::string& bytes, std::span<const Airspace_Facts> airspaces) {
    const std::size_t of_group = (airspaces.size() + Airspace_Groups - 1) / Airspace_Groups;
    while (!airspaces.empty()) {
        const std::size_t group = Begin_Record(bytes, Container, {Airspace_Group, 0});
        const std::size_t count = std::min(of_group, airspaces.size());
        for (const Airspace_Facts& airspace : airspaces.first(count))
            Put_Airspace(bytes, airspace);
        End_Chain(bytes);
        End_Record(bytes, group);
        airspaces = airspaces.subspan(count);
    }
    End_Chain(bytes);
}

}  // namespace

std::string Scenery_File(std::span<const Airport_Facts> airports,
                         std::span<const Airspace_Facts> airspaces) {
    std::string bytes(Header_Size, '\0');
    Set_Long(bytes, Magic_Place, Magic);
    Set_Long(bytes, Sections_Mark_Place, 1);
    if (!airports.empty()) {
        Set_Long(bytes, Airports_Place, static_cast<std::int32_t>(bytes.size()));
        Put_Airport_Section(bytes, airports);
    }
    if (!airspaces.empty()) {
        Set_Long(bytes, Airspaces_Place, static_cast<std::int32_t>(bytes.size()));
        Put_Airspace_Section(bytes, airspaces);
    }
    return bytes;
}

std::string Magdec_File(const Coarse_Grid& grid) {
    std::string bytes(Grid_Place + 8, '\0');
    Set_Long(bytes, Grid_Pointer_Place, Grid_Place);
    for (int lon = 0; lon < 360; ++lon) {
        for (int lat = -90; lat <= 90; ++lat) {
            const std::int32_t value = Whole(Variation_At(grid, lat, lon) * 65536 / 360);
            bytes += static_cast<char>(value);  // 16 bits
            bytes += static_cast<char>(value >> 8);
        }
    }
    return bytes;
}

}  // namespace world
