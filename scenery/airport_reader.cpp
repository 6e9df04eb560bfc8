#include "scenery/airport_reader.h"

#include <array>
#include <cmath>
#include <string>
#include <string_view>
#include <utility>

#include "app/settings.h"
#include "platform/code_page.h"
#include "scenery/bgl_reader.h"
#include "scenery/database.h"
#include "scenery/taxi_reader.h"
#include "selection/geodesy.h"
#include "selection/rounding.h"

namespace skerrand {

namespace {

constexpr std::int32_t List_Record = 0x30001;
constexpr std::int32_t Airport_Entry = 0x30002;
constexpr std::int32_t Airport_Target = 0x50001;

constexpr std::int32_t Rec_Position = 0x10001;
constexpr std::int32_t Rec_Runway = 0x10002;
constexpr std::int32_t Rec_Passed_1 = 0x10003;
constexpr std::int32_t Rec_Aid = 0x10004;
constexpr std::int32_t Rec_Passed_2 = 0x10005;
constexpr std::int32_t Rec_Icao = 0x10006;
constexpr std::int32_t Rec_Taxi = 0x11001;
constexpr std::int32_t Rec_Com = 0x20001;

constexpr std::int64_t Block_Head = 16;

/// Reciprocal of a heading, in 65536 parts of the circle.
constexpr double Half_Turn = -32768;
constexpr double Meters_Per_Foot = 0.3048;
constexpr double Meridian_Length = 40007000;  // metres, the whole circle
/// Not the full value: the ends of runways in the database follow from it.
constexpr double Runway_Radians = 0.017453292519943278;
constexpr std::int32_t Ils_Aid = 4;

constexpr std::array<const char*, 5> End_1_Letters{"", "L", "R", "C", "H"};
constexpr std::array<const char*, 5> End_2_Letters{"", "R", "L", "C", "H"};

/// True headings of a runway, degrees. The reciprocal is half a turn less than the heading, not
/// brought back into the same range.
struct Runway_Headings {
    double heading_1 = 0;  ///< -180 to 180
    double heading_2 = 0;  ///< -360 to 0
};

/// What a record leaves to those behind it, beside the airport itself.
struct Reading {
    bool behind_runway = false;  ///< only runway aids since the last runway
    Runway_Headings headings;    ///< of that runway
    std::string_view parking_label;
};

bool Is_Known(std::int32_t type) {
    return (type >= Rec_Position && type <= Rec_Icao) || type == Rec_Taxi || type == Rec_Com;
}

bool Read_Position(std::int64_t record, Airport_Info& airport) {
    if (!Can_Read(record + 8, 16)) return false;
    airport.lat = Latitude_Degrees(Read_Long(record + 12));
    airport.lon = Longitude_Degrees(Read_Long(record + 20));
    return true;
}

bool Read_Icao(std::int64_t record, std::int32_t size, Airport_Info& airport) {
    if (!Can_Read(record + 8, size)) return false;
    airport.icao_id = platform::Upper_Case(Read_Name(record + 8, size));
    return true;
}

std::string* Frequency_Field(std::int32_t com_type, Airport_Info& airport) {
    switch (com_type) {
        case 1:
            return &airport.atis_freq;
        case 5:
            return &airport.ground_freq;
        case 6:
            return &airport.tower_freq;
        case 7:
            return &airport.clearance_freq;
        case 8:
            return &airport.approach_freq;
        case 9:
            return &airport.departure_freq;
        case 10:
            return &airport.center_freq;
        default:
            return nullptr;
    }
}

/// The first frequency of a kind stays.
bool Read_Com(std::int64_t record, Airport_Info& airport) {
    if (!Can_Read(record + 8, 8)) return false;
    std::string* field = Frequency_Field(Read_Long(record + 12), airport);
    if (field && field->empty()) *field = Frequency_Text(Read_Long(record + 8));
    return true;
}

double Wrap_Longitude(double lon) {
    if (lon > 180) return lon - 360;
    if (lon < -180) return lon + 360;
    return lon;
}

void Place_Ends(double lat, double lon, double heading, Runway_Info& runway) {
    double length_m = runway.length_ft * Meters_Per_Foot;
    if (length_m > 300) length_m -= 60;
    const double north = std::cos(heading * Runway_Radians) * length_m;
    const double east = std::sin(heading * Runway_Radians) * length_m;
    const double dlat = (north * 360 * 0.5) / Meridian_Length;
    const double dlon = (east * 360 * 0.5) / (std::cos(lat * Runway_Radians) * Meridian_Length);
    runway.lat_1 = lat - dlat;
    runway.lon_1 = Wrap_Longitude(lon - dlon);
    runway.lat_2 = lat + dlat;
    runway.lon_2 = Wrap_Longitude(lon + dlon);
}

void Name_Ends(std::int32_t number, std::int32_t designator, Airport_Info& airport,
               Runway_Info& runway) {
    if (number > 36 || designator < 0 || designator >= std::ssize(End_1_Letters)) {
        if (airport.runways.empty()) return;
        runway.id_1 = airport.runways.back().id_1;
        runway.id_2 = airport.runways.back().id_2;
        return;
    }
    const std::int32_t opposite = number + 18 > 36 ? number - 18 : number + 18;
    const auto letter = static_cast<std::size_t>(designator);
    runway.id_1 = std::to_string(number) + End_1_Letters[letter];
    runway.id_2 = std::to_string(opposite) + End_2_Letters[letter];
}

bool Read_Runway(std::int64_t record, Airport_Info& airport, Runway_Headings& headings) {
    if (!Can_Read(record + 8, 48) || !Charge(sizeof(Runway_Info))) return false;
    headings.heading_1 = Heading_Degrees(Read_Long(record + 32));
    headings.heading_2 = Heading_Degrees(Read_Long(record + 32), Half_Turn);

    Runway_Info runway;
    runway.altitude_ft = Round_To_Long(Read_Long(record + 28) / Meters_Per_Foot);
    runway.length_ft = Read_Long(record + 40);
    runway.width_ft = Read_Long(record + 44);
    Place_Ends(Latitude_Degrees(Read_Long(record + 12)), Longitude_Degrees(Read_Long(record + 20)),
               headings.heading_1, runway);
    Name_Ends(Read_Long(record + 52), Read_Long(record + 48), airport, runway);
    runway.mag_heading_1 =
        True_To_Magnetic(Round_To_Integer(headings.heading_1), runway.lat_1, runway.lon_1);
    runway.mag_heading_2 =
        True_To_Magnetic(Round_To_Integer(headings.heading_2), runway.lat_2, runway.lon_2);
    airport.runways.push_back(std::move(runway));
    return true;
}

bool Read_Aid(std::int64_t record, std::int32_t size, const Runway_Headings& headings,
              Airport_Info& airport) {
    if (!Can_Read(record + 8, 36)) return false;
    if (Read_Long(record + 40) != Ils_Aid) return true;
    const std::int64_t name_length = std::int64_t{size} - 48;
    if (!Can_Read(record + 56, name_length) || !Charge(sizeof(Ils_Info))) return false;

    Ils_Info ils;
    ils.name = Read_Name(record + 56, name_length);
    ils.lat = Latitude_Degrees(Read_Long(record + 12));
    ils.lon = Longitude_Degrees(Read_Long(record + 20));
    ils.freq = Frequency_Text(Read_Long(record + 36));
    const std::int16_t course = Round_To_Integer(Heading_Degrees(Read_Long(record + 32)));
    ils.mag_course = True_To_Magnetic(course, ils.lat, ils.lon);

    const Runway_Info& runway = airport.runways.back();
    if (course == Round_To_Integer(headings.heading_1)) {
        ils.lat = runway.lat_1;
        ils.lon = runway.lon_1;
    }
    // The reciprocal of a negative heading is below -180, where no course lies: such a beam keeps
    // its transmitter's place.
    if (course == Round_To_Integer(headings.heading_2)) {
        ils.lat = runway.lat_2;
        ils.lon = runway.lon_2;
    }
    airport.ils.push_back(std::move(ils));
    return true;
}

bool Read_Record(std::int32_t type, std::int64_t record, std::int32_t size, Reading& reading,
                 Airport_Info& airport) {
    const bool behind_runway = reading.behind_runway;
    reading.behind_runway = type == Rec_Runway || (type == Rec_Aid && behind_runway);
    switch (type) {
        case Rec_Position:
            return Read_Position(record, airport);
        case Rec_Runway:
            return Read_Runway(record, airport, reading.headings);
        case Rec_Aid:
            return !behind_runway || Read_Aid(record, size, reading.headings, airport);
        case Rec_Icao:
            return Read_Icao(record, size, airport);
        case Rec_Taxi:
            return Read_Taxi_Block(record, size, airport, reading.parking_label);
        case Rec_Com:
            return Read_Com(record, airport);
        case Rec_Passed_1:
        case Rec_Passed_2:
        default:
            return true;
    }
}

bool Add_Airport(std::string name, std::int64_t block) {
    if (!Charge(sizeof(Airport_Info))) return false;
    Airport_Info& airport = airport_table.emplace_back();
    airport_count = static_cast<std::int32_t>(airport_table.size());
    airport.airport_name = std::move(name);
    return Read_Airport(block, airport);
}

bool Read_Entry(std::int64_t entry, std::int32_t size) {
    const std::int64_t name_length = std::int64_t{size} - 8;
    if (!Can_Read(entry + 16, name_length)) return false;
    const std::int32_t target_type = Read_Long(entry + 8);
    const std::int32_t target = Read_Long(entry + 12);
    if (target_type != Airport_Target || target <= 0) return true;
    if (!Can_Read(target, 12)) return false;
    if (Read_Long(target) != 1 || Read_Long(target + 8) != 1 || database_ready) return true;
    return Add_Airport(Read_Name(entry + 16, name_length), target);
}

bool Walk_Entries(std::int64_t list) {
    if (!Can_Read(list + 20, 4)) return false;
    const std::int32_t last = Read_Long(list + 20);
    std::int64_t entry = list + 24;
    for (std::int64_t number = 0; number <= last; ++number) {
        if (!Can_Read(entry, 16)) return false;
        const std::int32_t size = Read_Long(entry + 4);
        if (Read_Long(entry) == Airport_Entry && !Read_Entry(entry, size)) return false;
        if (!Step_Over(entry, size)) return false;
    }
    return true;
}

}  // namespace

bool Walk_Airport_Section(std::int64_t start) {
    std::int64_t list = start;
    for (;;) {
        if (!Can_Read(list, 8)) return false;
        if (Read_Long(list) != List_Record) return true;
        const std::int32_t size = Read_Long(list + 4);
        if (!Walk_Entries(list)) return false;
        if (!Step_Over(list, size)) return false;
    }
}

bool Read_Airport(std::int64_t block_offset, Airport_Info& airport) {
    Reading reading;
    std::int64_t record = block_offset + Block_Head;
    for (;;) {
        if (!Can_Read(record, 4)) return false;
        const std::int32_t type = Read_Long(record);
        if (!Is_Known(type)) return true;
        if (!Can_Read(record + 4, 4)) return false;
        const std::int32_t size = Read_Long(record + 4);
        if (!Read_Record(type, record, size, reading, airport)) return false;
        if (!Step_Over(record, size)) return false;
    }
}

}  // namespace skerrand
