#include "scenery/airspace_reader.h"

#include <array>
#include <iterator>
#include <string>
#include <vector>

#include "app/settings.h"
#include "scenery/bgl_reader.h"
#include "scenery/database.h"
#include "selection/geodesy.h"
#include "selection/picks.h"
#include "selection/rounding.h"

namespace skerrand {

namespace {

// The entries of the section, which have one layout on both levels: the section is a chain of them,
// and so are the children of a group.
constexpr std::int32_t Container = 1;
constexpr std::int32_t Passed_Entry = 0x30001;
constexpr std::int32_t Airspace_Group = 4;
constexpr std::int32_t Airspace_Object = 5;
constexpr std::int64_t Entry_Head = 16;  // from an entry to its first child

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

/// One of the two airports. The last airspace of its table takes the records of the object at hand,
/// once that has enclosed the airport.
struct Side {
    const Airport_Info& airport;
    std::vector<Airspace_Info>& table;
    bool hit = false;
};
using Sides = std::array<Side, 2>;

/// Walks a chain of entries from `start` on, and calls `read` with the position of each container
/// of that kind; a false answer of it ends the walk of the file.
bool Walk_Containers(std::int64_t start, std::int32_t kind, bool (*read)(std::int64_t entry)) {
    std::int64_t entry = start;
    for (;;) {
        if (!Can_Read(entry, 4)) return false;
        const std::int32_t type = Read_Long(entry);
        if (type != Container && type != Passed_Entry) return true;
        if (!Can_Read(entry + 4, type == Container ? 8 : 4)) return false;
        const std::int32_t size = Read_Long(entry + 4);
        if (type == Container && Read_Long(entry + 8) == kind && !read(entry)) return false;
        if (!Step_Over(entry, size)) return false;
    }
}

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

bool Read_Bounds(std::int64_t record, Sides& sides) {
    if (!Can_Read(record + 8, 16)) return false;
    const Bounding_Box box{.south = Latitude_At(record + 8),
                           .west = Longitude_At(record + 12),
                           .north = Latitude_At(record + 16),
                           .east = Longitude_At(record + 20)};
    for (Side& side : sides) {
        if (!Spans(box.south, side.airport.lat, box.north) ||
            !Spans(box.west, side.airport.lon, box.east)) {
            continue;
        }
        if (!Add_Airspace(box, side.table)) return false;
        side.hit = true;
    }
    return true;
}

/// Applies a change to the airspaces that the object has added last. Each grows by about `growth`
/// bytes.
template <typename Change>
bool Change_Hit(const Sides& sides, std::int64_t growth, Change change) {
    for (const Side& side : sides) {
        if (!side.hit) continue;
        if (!Charge(growth)) return false;
        change(side.table.back());
    }
    return true;
}

bool Add_Point(const Boundary_Point& point, const Sides& sides) {
    return Change_Hit(sides, sizeof point,
                      [&point](Airspace_Info& airspace) { airspace.boundary.push_back(point); });
}

/// The last limits count. `pos` is that of the lower one, which the upper one follows.
bool Set_Limits(std::int64_t pos, const Sides& sides) {
    return Change_Hit(sides, 0, [pos](Airspace_Info& airspace) {
        airspace.low_limit = Read_Long(pos);
        airspace.high_limit = Read_Long(pos + 4);
    });
}

bool Read_Point(std::int64_t record, Boundary_Kind kind, const Sides& sides) {
    if (!Can_Read(record + 12, 12)) return false;
    return Add_Point(
        {.kind = kind, .lat = Latitude_At(record + 12), .lon = Longitude_At(record + 20)}, sides);
}

bool Read_Start(std::int64_t record, const Sides& sides) {
    if (!Can_Read(record + 24, 8)) return false;
    return Read_Point(record, Boundary_Kind::Point_Start, sides) && Set_Limits(record + 24, sides);
}

bool Read_Circle(std::int64_t record, const Sides& sides) {
    if (!Can_Read(record + 8, 16)) return false;
    return Add_Point({.kind = Boundary_Kind::Point_Circle, .radius = Read_Long(record + 8)},
                     sides) &&
           Set_Limits(record + 16, sides);
}

bool Read_Airspace_Name(std::int64_t record, std::int32_t size, const Sides& sides) {
    if (!Can_Read(record + 8, size)) return false;
    const std::string text = Read_Text(record + 8, size);
    return Change_Hit(sides, std::ssize(text) + 2, [&text](Airspace_Info& airspace) {
        if (!airspace.name.empty()) airspace.name += "  ";
        airspace.name += text;
    });
}

bool Read_Frequency(std::int64_t record, std::int32_t size, const Sides& sides) {
    const std::int64_t length = std::int64_t{size} - 8;
    if (!Can_Read(record + 8, 4) || !Can_Read(record + 16, length)) return false;
    const std::string frequency = Frequency_Text(Read_Long(record + 8)) + " Mhz  ";
    const std::string facility = Read_Text(record + 16, length);
    const std::int64_t growth = std::ssize(frequency) + std::ssize(facility);
    return Change_Hit(sides, growth, [&](Airspace_Info& airspace) {
        airspace.freq_text += frequency;
        airspace.facility_text = facility;
    });
}

bool Is_Known(std::int32_t type) {
    if (Rec_Center <= type && type <= Rec_Circle) return type != Rec_End;
    return type == Rec_Name || type == Rec_Bounds || type == Rec_Frequency;
}

/// A record other than a bounding box, which counts in an object that encloses an airport.
bool Read_Content(std::int32_t type, std::int64_t record, std::int32_t size, const Sides& sides) {
    if (!sides[0].hit && !sides[1].hit) return true;
    switch (type) {
        case Rec_Name:
            return Read_Airspace_Name(record, size, sides);
        case Rec_Center:
            return Read_Point(record, Boundary_Kind::Point_Center, sides);
        case Rec_Start:
            return Read_Start(record, sides);
        case Rec_Line:
            return Read_Point(record, Boundary_Kind::Point_Line, sides);
        case Rec_Arc_Cw:
            return Read_Point(record, Boundary_Kind::Point_Arc_Cw, sides);
        case Rec_Arc_Ccw:
            return Read_Point(record, Boundary_Kind::Point_Arc_Ccw, sides);
        case Rec_Circle:
            return Read_Circle(record, sides);
        case Rec_Frequency:
            return Read_Frequency(record, size, sides);
        default:
            return true;
    }
}

bool Read_Object(std::int64_t object) {
    Sides sides{
        {{departure_airport, departure_airspaces}, {destination_airport, destination_airspaces}}};
    std::int64_t record = object + Entry_Head;
    for (;;) {
        if (!Can_Read(record, 4)) return false;
        const std::int32_t type = Read_Long(record);
        if (!Is_Known(type)) return true;
        if (!Can_Read(record + 4, 4)) return false;
        const std::int32_t size = Read_Long(record + 4);
        const bool sound = type == Rec_Bounds ? Read_Bounds(record, sides)
                                              : Read_Content(type, record, size, sides);
        if (!sound || !Step_Over(record, size)) return false;
    }
}

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

bool Walk_Airspace_Group(std::int64_t group_offset) {
    return Walk_Containers(group_offset, Airspace_Object, Read_Object);
}

}  // namespace skerrand
