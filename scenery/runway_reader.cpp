#include "scenery/runway_reader.h"

#include <array>
#include <cmath>
#include <string>
#include <utility>

#include "scenery/bgl_reader.h"
#include "scenery/bgl_units.h"
#include "selection/geodesy.h"
#include "selection/rounding.h"

namespace skerrand {

namespace {

/// Reciprocal of a heading, in 65536 parts of the circle.
constexpr double Half_Turn = -32768;
constexpr double Meters_Per_Foot = 0.3048;
constexpr double Meridian_Length = 40007000;  // metres, the whole circle
/// Not the full value: the ends of runways in the database follow from it.
constexpr double Runway_Radians = 0.017453292519943278;
constexpr std::int32_t Ils_Aid = 4;

constexpr std::array<const char*, 5> End_1_Letters{"", "L", "R", "C", "H"};
constexpr std::array<const char*, 5> End_2_Letters{"", "R", "L", "C", "H"};

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

}  // namespace

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

}  // namespace skerrand
