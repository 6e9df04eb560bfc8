#pragma once

#include <cstdint>
#include <string>
#include <vector>

/// One airport as the database and the chart hold it. Positions are degrees, north and east
/// positive. All texts are Windows-1252, and at most 65535 bytes long, the most that the database
/// can hold. The tables hold just the elements in use; the spare element that the database file
/// carries behind runways and ILS exists in the file alone.
namespace skerrand {

struct Runway_Info {
    /// Designator of the end from which the true heading is flown: number without a leading zero,
    /// then L, R, C, H or nothing.
    std::string id_1;
    std::string id_2;  ///< of the opposite end
    double lat_1 = 0, lon_1 = 0;
    double lat_2 = 0, lon_2 = 0;
    std::int32_t altitude_ft = 0;
    std::int16_t mag_heading_1 = 0;  ///< whole degrees, 0 to 360
    std::int16_t mag_heading_2 = 0;
    std::int32_t length_ft = 0;
    std::int32_t width_ft = 0;

    friend bool operator==(const Runway_Info&, const Runway_Info&) = default;
};

struct Ils_Info {
    std::string name;
    double lat = 0, lon = 0;  ///< the runway end that the beam serves, else the transmitter
    std::int16_t mag_course = 0;
    std::string freq;  ///< MHz in shortest decimal form

    friend bool operator==(const Ils_Info&, const Ils_Info&) = default;
};

struct Taxi_Point {
    std::int32_t kind = 0;  ///< as the scenery file has it
    double lat = 0, lon = 0;

    friend bool operator==(const Taxi_Point&, const Taxi_Point&) = default;
};

struct Parking_Info {
    std::string name;  ///< label in upper case, a blank and the number
    double lat = 0, lon = 0;
    std::int32_t radius_ft = 0;

    friend bool operator==(const Parking_Info&, const Parking_Info&) = default;
};

/// Values of `Taxi_Path::kind`; a file may hold others.
inline constexpr std::int32_t Path_Taxiway = 0;
inline constexpr std::int32_t Path_Runway = 1;
inline constexpr std::int32_t Path_Parking = 2;  ///< ends at a parking

struct Taxi_Path {
    std::int32_t kind = 0;
    std::int32_t start_point = 0;  ///< index into `taxi_points`, not checked
    std::int32_t end_point = 0;    ///< the same; of a `Path_Parking` into `parkings`
    std::string name;

    friend bool operator==(const Taxi_Path&, const Taxi_Path&) = default;
};

struct Airport_Info {
    std::string airport_name;
    std::string icao_id;
    double lat = 0, lon = 0;
    /// MHz in shortest decimal form; empty where the airport has none.
    std::string clearance_freq;
    std::string ground_freq;
    std::string tower_freq;
    std::string departure_freq;
    std::string approach_freq;
    std::string center_freq;
    std::string atis_freq;
    std::vector<Runway_Info> runways;
    std::vector<Ils_Info> ils;
    std::vector<Taxi_Point> taxi_points;
    std::vector<Parking_Info> parkings;
    std::vector<Taxi_Path> taxi_paths;

    friend bool operator==(const Airport_Info&, const Airport_Info&) = default;
};

}  // namespace skerrand
