#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "tools/measures.h"

/// Airports as facts, before they take the form of scenery files, and the reader of the text that
/// tells them (`data/README.md` has its lines). All texts are Windows-1252.
namespace world {

/// A radio frequency in units of 100 Hz: 121.3 MHz is 1213000.
using Frequency = std::int32_t;

struct Com_Facts {
    int use = 0;  ///< by its number in scenery files
    Frequency frequency = 0;
};

inline constexpr int Tower_Use = 6;

struct Ils_Facts {
    std::string ident;
    Position transmitter;
    double course = 0;  ///< true, degrees
    Frequency frequency = 0;
};

struct Runway_Facts {
    int number = 36;  ///< of end 1, 1 to 36
    int letter = 0;   ///< of end 1, by its place in `Runway_Letters`
    Position end_1;   ///< the pavement's end, where `number` is painted
    Position end_2;
    int width_ft = 0;
    std::vector<Ils_Facts> ils = {};  ///< of both ends
};

/// None, left, right, center, helipad.
inline constexpr std::string_view Runway_Letters = " LRCH";

struct Parking_Facts {
    Position position;
    float radius_m = 0;
    int number = 0;  ///< 0 to 8191
    int label = 1;   ///< its code in scenery files: `First_Gate` and up are gates and a dock
};

inline constexpr int First_Gate = 10;

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
    std::vector<Com_Facts> coms = {};
    std::vector<Runway_Facts> runways = {};
    std::vector<Position> points = {};
    std::vector<Parking_Facts> parkings = {};
    std::vector<Path_Facts> paths = {};
};

/// Reads the whole text. Answers an empty text, or what is wrong in which line ("line 12: ...").
std::string Parse_Airports(std::string_view text, std::vector<Airport_Facts>& airports);

}  // namespace world
