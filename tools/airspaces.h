#pragma once

#include <string>
#include <vector>

#include "tools/airport_facts.h"

/// Airspaces before they take the form of scenery files. None are real ones.
namespace world {

/// What a point of an outline does, by the number of its record in scenery files.
enum class Outline_Kind : std::int32_t {
    Center = 0x12001,  ///< of the arcs and circles that follow
    Start = 0x12002,
    Line = 0x12005,  ///< from the last point to here
    Arc_Cw = 0x12006,
    Arc_Ccw = 0x12007,
    Circle = 0x12008,  ///< has no place of its own
};

struct Outline_Point {
    Outline_Kind kind = Outline_Kind::Start;
    Position position;
    int half_diagonal = 0;  ///< of the square round a circle, nautical miles
};

using Outline = std::vector<Outline_Point>;

/// The box in which scenery files tell an airspace to be. It never crosses the date line.
struct Position_Box {
    Position south_west;
    Position north_east;
};

struct Airspace_Facts {
    std::string name;
    int low_ft = 0;
    int high_ft = 0;
    Frequency frequency = 0;    ///< 0: none
    std::string facility = {};  ///< who answers on that frequency
    Position_Box box;
    Outline outline;
};

/// A table of large areas, then those that each airport with a tower has by the length of all its
/// runways together: it is large (7.5 km; class B), middle (4 km; class C) or small (class D). All
/// parts of one airport's airspace share the box of the whole, so that whoever finds one finds all,
/// and are turned to its longest runway.
std::vector<Airspace_Facts> Airspaces_Of(const std::vector<Airport_Facts>& airports);

}  // namespace world
