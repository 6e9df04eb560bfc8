#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

/// What a world is made from: airports as facts, before they take the form of scenery files.
/// Positions are degrees, north and east positive. Texts are Windows-1252.
namespace world {

struct Position {
    double lat = 0;
    double lon = 0;
};

/// A radio frequency in units of 100 Hz: 121.3 MHz is 1213000.
using Frequency = std::int32_t;

/// Uses of a frequency, by their numbers in scenery files.
enum class Com_Use : std::int32_t {
    Atis = 1,
    Unicom = 3,
    Ground = 5,
    Tower = 6,
    Clearance = 7,
    Approach = 8,
    Departure = 9,
};

struct Com_Facts {
    Com_Use use = Com_Use::Tower;
    Frequency frequency = 0;
};

struct Ils_Facts {
    std::string ident;
    Position transmitter;
    double course = 0;  ///< true, degrees
    Frequency frequency = 0;
};

/// Letters of a runway's end, by their numbers in scenery files; of the opposite end L and R
/// change places.
enum class Runway_Letter : std::int32_t { None = 0, Left = 1, Right = 2, Center = 3, Helipad = 4 };

struct Runway_Facts {
    int number = 36;  ///< of end 1, 1 to 36
    Runway_Letter letter = Runway_Letter::None;
    Position end_1;  ///< the pavement's end, where `number` is painted
    Position end_2;
    int width_ft = 0;
    std::vector<Ils_Facts> ils;  ///< of both ends
};

/// Label codes of parkings in scenery files.
inline constexpr int Label_Parking = 1;
inline constexpr int Label_Gate = 10;
inline constexpr int Label_Gate_A = 12;  ///< up to Gate Z in the order of the alphabet
inline constexpr int Label_Gate_Z = 37;

struct Parking_Facts {
    Position position;
    float radius_m = 0;
    int number = 0;  ///< 0 to 8191
    int label = Label_Parking;
};

enum class Path_Kind : std::int32_t { Taxiway = 0, Runway = 1, Parking = 2 };

struct Path_Facts {
    Path_Kind kind = Path_Kind::Taxiway;
    int start = 0;        ///< a taxi point
    int end = 0;          ///< a taxi point, or a parking for `Path_Kind::Parking`
    int runway = 0;       ///< the runway of a `Path_Kind::Runway`
    std::string taxiway;  ///< at most `Taxiway_Name_Length` bytes, may be empty
};

inline constexpr std::size_t Taxiway_Name_Length = 8;

struct Airport_Facts {
    std::string ident;
    std::string name;
    Position position;
    double elevation_ft = 0;
    std::vector<Com_Facts> coms;
    std::vector<Runway_Facts> runways;
    std::vector<Position> points;
    std::vector<Parking_Facts> parkings;
    std::vector<Path_Facts> paths;
};

}  // namespace world
