#pragma once

/// Positions on the globe, and lengths and directions between them. Degrees, north and east
/// positive; courses are true and may have any number of turns.
namespace world {

struct Position {
    double lat = 0;
    double lon = 0;
};

/// Metres along a meridian and along the great circle that leaves due east, 1852 to the minute of
/// arc. Taxi points and parkings stand so in scenery files, relative to their airport.
struct Local_Metres {
    double east = 0;
    double north = 0;
};

/// Of a position within a quarter of the globe of the reference, which is no pole.
Local_Metres To_Local(Position reference, Position position);

/// A runway by its middle, as scenery files have it, on an Earth 40,007 km round.
struct Runway_Line {
    Position center;
    double heading = 0;   ///< true, of end 1 towards end 2, degrees, -180 to 180
    double length_m = 0;  ///< of the pavement, end to end
};

Runway_Line Line_Of_Runway(Position end_1, Position end_2);

/// The place that lies so many nautical miles, minutes of arc, on the great circle that leaves on
/// that course.
Position Place_From(Position from, double course, double miles);

}  // namespace world
