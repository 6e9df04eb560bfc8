#include "tools/airspace_block.h"

#include <algorithm>

namespace world {

namespace {

constexpr std::int32_t Container = 1;
constexpr std::int32_t Group_Kind = 4;
constexpr std::int32_t Airspace_Kind = 5;

constexpr std::int32_t Name_Record = 0x10006;
constexpr std::int32_t Bounds_Record = 0x1000B;
constexpr std::int32_t Frequency_Record = 0x20001;

std::size_t Begin_Container(Bytes& bytes, std::int32_t kind) {
    const std::size_t record = Begin_Record(bytes, Container);
    Put_Long(bytes, kind);
    Put_Zeros(bytes, 4);
    return record;
}

/// The children need an end mark: readers do not count the bytes of a container.
void End_Container(Bytes& bytes, std::size_t record) {
    Put_Chain_End(bytes);
    End_Record(bytes, record);
}

void Put_Bounds(Bytes& bytes, const Position_Box& box) {
    const std::size_t record = Begin_Record(bytes, Bounds_Record);
    for (const Position& corner : {box.south_west, box.north_east}) {
        Put_Long(bytes, Scaled_Latitude(corner.lat));
        Put_Long(bytes, Scaled_Longitude(corner.lon));
    }
    End_Record(bytes, record);
}

void Put_Airspace_Name(Bytes& bytes, const std::string& name) {
    const std::size_t record = Begin_Record(bytes, Name_Record);
    Put_Text(bytes, name);
    End_Record(bytes, record);
}

void Put_Frequency(Bytes& bytes, Frequency frequency, const std::string& facility) {
    const std::size_t record = Begin_Record(bytes, Frequency_Record);
    Put_Long(bytes, Coded_Frequency(frequency));
    Put_Zeros(bytes, 4);
    Put_Text(bytes, facility);
    End_Record(bytes, record);
}

void Put_Outline_Point(Bytes& bytes, const Outline_Point& point, const Airspace_Facts& airspace) {
    const std::size_t record = Begin_Record(bytes, static_cast<std::int32_t>(point.kind));
    if (point.kind == Outline_Kind::Circle) {
        Put_Long(bytes, point.half_diagonal);
        Put_Zeros(bytes, 4);
    } else {
        Put_Latitude(bytes, point.position.lat);
        Put_Longitude(bytes, point.position.lon);
    }
    if (point.kind == Outline_Kind::Circle || point.kind == Outline_Kind::Start) {
        Put_Long(bytes, airspace.low_ft);
        Put_Long(bytes, airspace.high_ft);
    }
    End_Record(bytes, record);
}

void Put_Airspace(Bytes& bytes, const Airspace_Facts& airspace) {
    const std::size_t record = Begin_Container(bytes, Airspace_Kind);
    // Readers pass over what stands ahead of the box.
    Put_Bounds(bytes, airspace.box);
    Put_Airspace_Name(bytes, airspace.name);
    if (airspace.frequency != 0) Put_Frequency(bytes, airspace.frequency, airspace.facility);
    for (const Outline_Point& point : airspace.outline)
        Put_Outline_Point(bytes, point, airspace);
    End_Container(bytes, record);
}

}  // namespace

void Put_Airspace_Section(Bytes& bytes, std::span<const Airspace_Facts> airspaces,
                          std::size_t groups) {
    if (airspaces.empty()) return;
    Begin_Section(bytes, Section::Airspaces);
    const std::size_t of_group = (airspaces.size() + groups - 1) / groups;
    for (std::size_t first = 0; first < airspaces.size(); first += of_group) {
        const std::size_t group = Begin_Container(bytes, Group_Kind);
        const auto rest = airspaces.subspan(first);
        for (const Airspace_Facts& airspace : rest.first(std::min(of_group, rest.size())))
            Put_Airspace(bytes, airspace);
        End_Container(bytes, group);
    }
    Put_Chain_End(bytes);
}

}  // namespace world
