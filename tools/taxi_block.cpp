#include <map>

#include "tools/airport_block.h"
#include "tools/local_metres.h"

namespace world {

namespace {

constexpr std::int32_t Taxi_Record = 0x11001;
constexpr std::int32_t Normal_Point = 1;

// Kinds of parkings, the third hexadecimal digit of a packed name.
constexpr std::uint32_t Ramp_Small = 2;
constexpr std::uint32_t Ramp_Large = 4;
constexpr std::uint32_t Gate_Small = 8;
constexpr std::uint32_t Gate_Medium = 9;
constexpr std::uint32_t Gate_Heavy = 10;

std::uint32_t Kind_Of(const Parking_Facts& parking) {
    if (parking.label < Label_Gate) return parking.radius_m > 15 ? Ramp_Large : Ramp_Small;
    if (parking.radius_m > 25) return Gate_Heavy;
    return parking.radius_m > 15 ? Gate_Medium : Gate_Small;
}

std::int32_t Packed_Name(const Parking_Facts& parking) {
    const auto number = static_cast<std::uint32_t>(parking.number);
    const auto label = static_cast<std::uint32_t>(parking.label);
    return static_cast<std::int32_t>(Kind_Of(parking) << 20 | (number * 128 + label));
}

void Put_List_Head(Bytes& bytes, std::size_t count, std::int32_t element_size) {
    Put_Long(bytes, static_cast<std::int32_t>(count));
    Put_Long(bytes, element_size);
}

void Put_Offset(Bytes& bytes, Position reference, Position position) {
    const Local_Metres offset = To_Local(reference, position);
    Put_Single(bytes, static_cast<float>(offset.east));
    Put_Single(bytes, static_cast<float>(offset.north));
}

void Put_Points(Bytes& bytes, const Airport_Facts& airport, Position reference) {
    Put_List_Head(bytes, airport.points.size(), 12);
    for (const Position& point : airport.points) {
        Put_Long(bytes, Normal_Point);
        Put_Offset(bytes, reference, point);
    }
}

void Put_Parkings(Bytes& bytes, const Airport_Facts& airport, Position reference) {
    Put_List_Head(bytes, airport.parkings.size(), 20);
    for (const Parking_Facts& parking : airport.parkings) {
        Put_Offset(bytes, reference, parking.position);
        Put_Single(bytes, parking.radius_m);
        Put_Zeros(bytes, 4);
        Put_Long(bytes, Packed_Name(parking));
    }
}

void Put_Path(Bytes& bytes, const Path_Facts& path, std::int32_t name_index) {
    Put_Long(bytes, static_cast<std::int32_t>(path.kind));
    Put_Zeros(bytes, 8);
    Put_Long(bytes, path.start);
    Put_Long(bytes, path.end);
    Put_Zeros(bytes, 8);
    Put_Long(bytes, name_index);
}

// Paths, then the names that they point to. The first name is empty, for paths without one.
void Put_Paths_And_Names(Bytes& bytes, const Airport_Facts& airport) {
    std::vector<std::string> names{""};
    std::map<std::string, std::int32_t> indexes{{"", 0}};
    Put_List_Head(bytes, airport.paths.size(), 32);
    for (const Path_Facts& path : airport.paths) {
        const auto next = static_cast<std::int32_t>(names.size());
        const auto [place, added] = indexes.try_emplace(path.taxiway, next);
        if (added) names.push_back(path.taxiway);
        Put_Path(bytes, path, path.kind == Path_Kind::Runway ? path.runway : place->second);
    }
    Put_List_Head(bytes, names.size(), Taxiway_Name_Length);
    for (std::string& name : names) {
        name.resize(Taxiway_Name_Length);
        Put_Text(bytes, name);
    }
}

}  // namespace

void Put_Taxi_Block(Bytes& bytes, const Airport_Facts& airport) {
    if (airport.points.empty() && airport.parkings.empty() && airport.paths.empty()) return;
    // Offsets count from the position that a reader gets, which is rounded to whole units.
    const Position reference = As_Stored(airport.position);
    const std::size_t record = Begin_Record(bytes, Taxi_Record);
    if (!airport.points.empty()) Put_Points(bytes, airport, reference);
    if (!airport.parkings.empty()) Put_Parkings(bytes, airport, reference);
    if (!airport.paths.empty()) Put_Paths_And_Names(bytes, airport);
    End_Record(bytes, record);
}

}  // namespace world
