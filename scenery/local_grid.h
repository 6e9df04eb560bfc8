#pragma once

/// Positions near a reference point from metres east and north of it.
namespace skerrand {

struct Grid_Course {
    double sine = 0, cosine = 0;
};

/// What the positions round one reference point have in common.
struct Local_Grid {
    double lat = 0, lon = 0;  ///< degrees, as given
    double sin_lat = 0, cos_lat = 0;
    double west = 0;  ///< radians, west positive
    Grid_Course north_course, east_course, south_course, west_course;
};

Local_Grid Make_Local_Grid(double lat, double lon);

/// Degrees, the same to the bit as the longitude of `Destination_Meters` along course 90, or 270
/// for a negative x; exactly the reference's own for 0, without rounding.
double Grid_Longitude(const Local_Grid& grid, double x);

/// The same with the latitude along course 0, or 180 for a negative z.
double Grid_Latitude(const Local_Grid& grid, double z);

}  // namespace skerrand
