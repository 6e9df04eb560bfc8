#include "scenery/airspace_reader.h"

#include <cstring>
#include <iterator>
#include <string>
#include <vector>

#include "scenery/airspace_entries.h"
#include "scenery/airspace_info.h"
#include "scenery/bgl_reader.h"
#include "scenery/bgl_units.h"
#include "selection/geodesy.h"
#include "selection/picks.h"
#include "selection/rounding.h"

namespace skerrand {

namespace {

constexpr std::int32_t Airspace_Object = 5;

constexpr std::int32_t Rec_Name = 0x10006;
constexpr std::int32_t Rec_Bounds = 0x1000B;
constexpr std::int32_t Rec_Center = 0x12001;
constexpr std::int32_t Rec_Start = 0x12002;
constexpr std::int32_t Rec_End = 0x12004;  // ends the object, like a type from outside the list
constexpr std::int32_t Rec_Line = 0x12005;
constexpr std::int32_t Rec_Arc_Cw = 0x12006;
constexpr std::int32_t Rec_Arc_Ccw = 0x12007;
constexpr std::int32_t Rec_Circle = 0x12008;
constexpr std::int32_t Rec_Frequency = 0x20001;

/// Which tables the object at hand has added to. The last airspace there takes its records.
struct Hits {
    bool departure = false;
    bool destination = false;

    bool Any() const { return departure || destination; }
};

/// Degrees.
struct Bounding_Box {
    double south = 0;
    double west = 0;
    double north = 0;
    double east = 0;
};

/// Airspaces lie on a grid of four decimals, in the box test too.
double Latitude_At(std::int64_t pos) {
    return Round_Decimals(Latitude_Degrees(Read_Long(pos)), 1e4);
}

double Longitude_At(std::int64_t pos) {
    return Round_Decimals(Longitude_Degrees(Read_Long(pos)), 1e4);
}

/// Strictly: an airport on an edge is outside.
bool Spans(double low, double value, double high) {
    return low < value && value < high;
}

/// The centre lies half way along the box's diagonal, in whole miles. The magnetic course is taken
/// for the true one.
bool Add_Airspace(const Bounding_Box& box, std::vector<Airspace_Info>& table) {
    if (!Charge(sizeof(Airspace_Info))) return false;
    const auto [south, west, north, east] = box;
    const std::int16_t half = Round_To_Integer(Distance_NM(north, west, south, east) / 2.0);
    const std::int16_t course = Magnetic_Course(north, west, south, east);
    const Fix_Point center = Destination_NM(north, west, course, half);
    Airspace_Info& airspace = table.emplace_back();
    airspace.center_lat = center.lat;
    airspace.center_lon = center.lon;
    return true;
}

bool Read_Bounds(std::int64_t record, Hits& hits) {
    if (!In_Image(record + 8, 16)) return false;
    Bounding_Box box{.south = Latitude_At(record + 8), .north = Latitude_At(record + 16)};
    const bool at_departure = Spans(box.south, departure_airport.lat, box.north);
    const bool at_destination = Spans(box.south, destination_airport.lat, box.north);
    if (!at_departure && !at_destination) return true;

    box.west = Longitude_At(record + 12);
    box.east = Longitude_At(record + 20);
    if (at_departure && Spans(box.west, departure_airport.lon, box.east)) {
        if (!Add_Airspace(box, departure_airspaces)) return false;
        hits.departure = true;
    }
    if (at_destination && Spans(box.west, destination_airport.lon, box.east)) {
        if (!Add_Airspace(box, destination_airspaces)) return false;
        hits.destination = true;
    }
    return true;
}

/// Applies a change to the airspaces that the object has added last. Each grows by about `growth`
/// bytes.
template <typename Change>
bool Change_Hit(Hits hits, std::int64_t growth, Change change) {
    if (hits.departure) {
        if (!Charge(growth)) return false;
        change(departure_airspaces.back());
    }
    if (hits.destination) {
        if (!Charge(growth)) return false;
        change(destination_airspaces.back());
    }
    return true;
}

bool Add_Point(const Boundary_Point& point, Hits hits) {
    return Change_Hit(hits, sizeof point,
                      [&point](Airspace_Info& airspace) { airspace.boundary.push_back(point); });
}

/// The last limits count. `pos` is that of the lower one, which the upper one follows.
bool Set_Limits(std::int64_t pos, Hits hits) {
    return Change_Hit(hits, 0, [pos](Airspace_Info& airspace) {
        airspace.low_limit = Read_Long(pos);
        airspace.high_limit = Read_Long(pos + 4);
    });
}

bool Read_Point(std::int64_t record, Boundary_Kind kind, Hits hits) {
    if (!Can_Read(record + 12, 12)) return false;
    return Add_Point(
        {.kind = kind, .lat = Latitude_At(record + 12), .lon = Longitude_At(record + 20)}, hits);
}

bool Read_Start(std::int64_t record, Hits hits) {
    if (!Can_Read(record + 24, 8)) return false;
    return Read_Point(record, Boundary_Kind::Point_Start, hits) && Set_Limits(record + 24, hits);
}

bool Read_Circle(std::int64_t record, Hits hits) {
    if (!Can_Read(record + 8, 16)) return false;
    return Add_Point({.kind = Boundary_Kind::Point_Circle, .radius = Read_Long(record + 8)},
                     hits) &&
           Set_Limits(record + 16, hits);
}

bool Read_Airspace_Name(std::int64_t record, std::int32_t size, Hits hits) {
    if (!Can_Read(record + 8, size)) return false;
    const std::string text = Read_Text(record + 8, size);
    return Change_Hit(hits, std::ssize(text) + 2, [&text](Airspace_Info& airspace) {
        if (!airspace.name.empty()) airspace.name += "  ";
        airspace.name += text;
    });
}

bool Read_Frequency(std::int64_t record, std::int32_t size, Hits hits) {
    const std::int64_t length = std::int64_t{size} - 8;
    if (!Can_Read(record + 8, 4) || !Can_Read(record + 16, length)) return false;
    const std::string frequency = Frequency_Text(Read_Long(record + 8)) + " Mhz  ";
    const std::string facility = Read_Text(record + 16, length);
    const std::int64_t growth = std::ssize(frequency) + std::ssize(facility);
    return Change_Hit(hits, growth, [&](Airspace_Info& airspace) {
        airspace.freq_text += frequency;
        airspace.facility_text = facility;
    });
}

bool Is_Known(std::int32_t type) {
    if (Rec_Center <= type && type <= Rec_Circle) return type != Rec_End;
    return type == Rec_Name || type == Rec_Bounds || type == Rec_Frequency;
}

/// Whether a whole head of a record stands there whose type is known and no bounding box.
bool Is_Passed(std::int64_t record) {
    if (!In_Image(record, 8)) return false;
    const std::int32_t type = Read_Long(record);
    return type != Rec_Bounds && Is_Known(type);
}

/// Type and size at the head of a record, as one number to compare.
std::uint64_t Head_At(std::int64_t record) {
    std::uint64_t head = 0;
    std::memcpy(&head, bgl_bytes.data() + record, sizeof head);
    return head;
}

/// Moves over the records of an object that encloses no airport so far, as nearly all do, up to the
/// first one that has to be looked at.
void Pass_To_Bounds(std::int64_t& record) {
    while (Is_Passed(record)) {
        const std::int32_t size = Read_Long(record + 4);
        const std::uint64_t head = Head_At(record);
        // An outline's records are mostly of one type and size. Stepping by a size that is known
        // already, the processor need not wait for each record to tell where the next one stands.
        do {
            if (!Step_Over(record, size)) return;
        } while (In_Image(record, 8) &&
                 (Head_At(record) == head || (Is_Passed(record) && Read_Long(record + 4) == size)));
    }
}

/// A record other than a bounding box, in an object that encloses an airport.
bool Read_Content(std::int32_t type, std::int64_t record, std::int32_t size, Hits hits) {
    switch (type) {
        case Rec_Name:
            return Read_Airspace_Name(record, size, hits);
        case Rec_Center:
            return Read_Point(record, Boundary_Kind::Point_Center, hits);
        case Rec_Start:
            return Read_Start(record, hits);
        case Rec_Line:
            return Read_Point(record, Boundary_Kind::Point_Line, hits);
        case Rec_Arc_Cw:
            return Read_Point(record, Boundary_Kind::Point_Arc_Cw, hits);
        case Rec_Arc_Ccw:
            return Read_Point(record, Boundary_Kind::Point_Arc_Ccw, hits);
        case Rec_Circle:
            return Read_Circle(record, hits);
        case Rec_Frequency:
            return Read_Frequency(record, size, hits);
        default:
            return true;
    }
}

}  // namespace

bool Walk_Airspace_Group(std::int64_t group_offset) {
    return Walk_Containers(group_offset, Airspace_Object, Read_Airspace_Object);
}

bool Read_Airspace_Object(std::int64_t object_offset) {
    Hits hits;
    std::int64_t record = object_offset + Entry_Head;
    for (;;) {
        if (!hits.Any()) Pass_To_Bounds(record);
        if (!In_Image(record, 4)) return false;
        const std::int32_t type = Read_Long(record);
        if (!Is_Known(type)) return Charge(record - object_offset);
        if (!In_Image(record + 4, 4)) return false;
        const std::int32_t size = Read_Long(record + 4);
        if (type == Rec_Bounds) {
            if (!Read_Bounds(record, hits)) return false;
        } else if (hits.Any() && !Read_Content(type, record, size, hits)) {
            return false;
        }
        if (!Step_Over(record, size)) return false;
    }
}

}  // namespace skerrand
