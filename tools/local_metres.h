#pragma once

#include "tools/world_facts.h"

/// The measures round one airport, in the two ways in which scenery files have them.
namespace world {

/// Metres along a meridian and along the great circle that leaves due east, 1852 to the minute of
/// arc. Taxi points and parkings stand so, relative to their airport.
struct Local_Metres {
    double east = 0;
    double north = 0;
};

/// Of a position within a quarter of the globe of the reference, which is no pole.
Local_Metres To_Local(Position reference, Position position);
Position From_Local(Position reference, Local_Metres offset);

/// A runway by its middle, as scenery files have it, on an Earth 40,007 km round.
struct Runway_Line {
    Position center;
    double heading = 0;   ///< true, of end 1 towards end 2, degrees, -180 to 180
    double length_m = 0;  ///< of the pavement, end to end
};

Runway_Line Line_Of_Runway(Position end_1, Position end_2);

/// A position as it comes back from the whole units of a scenery file.
Position As_Stored(Position position);

/// The difference of two longitudes, brought to -180 to 180.
double Longitude_Between(double from, double to);

}  // namespace world
