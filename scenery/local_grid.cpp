#include "scenery/local_grid.h"

#include <cmath>

#include "selection/geodesy.h"
#include "selection/rounding.h"

namespace skerrand {

namespace {

constexpr double Meters_Per_Mile = 1852;
constexpr double Six_Decimals = 1e6;

/// Read at run time, so that the compiler does not work out the sines by a better sine than the
/// one that all other positions use.
Grid_Course Course_Terms(int degrees) {
    const volatile int course = degrees;
    const double bearing = course * Degrees_To_Radians;
    return {std::sin(bearing), std::cos(bearing)};
}

/// The latitude in radians of the point that lies so far along the course.
double Arc_Latitude(const Local_Grid& grid, double sin_angle, double cos_angle,
                    const Grid_Course& course) {
    return Arc_Sin(grid.sin_lat * cos_angle + grid.cos_lat * sin_angle * course.cosine);
}

double Arc_Angle(double meters) {
    return std::abs(meters) / Meters_Per_Mile * Miles_To_Radians;
}

}  // namespace

Local_Grid Make_Local_Grid(double lat, double lon) {
    const double north = lat * Degrees_To_Radians;
    Local_Grid grid;
    grid.lat = lat;
    grid.lon = lon;
    grid.sin_lat = std::sin(north);
    grid.cos_lat = std::cos(north);
    grid.west = -lon * Degrees_To_Radians;
    grid.north_course = Course_Terms(0);
    grid.east_course = Course_Terms(90);
    grid.south_course = Course_Terms(180);
    grid.west_course = Course_Terms(270);
    return grid;
}

double Grid_Longitude(const Local_Grid& grid, double x) {
    if (x == 0) return grid.lon;
    const Grid_Course& course = x > 0 ? grid.east_course : grid.west_course;
    const double angle = Arc_Angle(x);
    const double sin_angle = std::sin(angle);
    const double cos_lat = std::cos(Arc_Latitude(grid, sin_angle, std::cos(angle), course));
    double west = grid.west;
    if (cos_lat != 0) {
        const double turn = Arc_Sin(course.sine * sin_angle / cos_lat);
        west = Float_Mod(west - turn + Pi, Two_Pi) - Pi;
    }
    return Round_Decimals(-west * Radians_To_Degrees, Six_Decimals);
}

double Grid_Latitude(const Local_Grid& grid, double z) {
    if (z == 0) return grid.lat;
    const Grid_Course& course = z > 0 ? grid.north_course : grid.south_course;
    const double angle = Arc_Angle(z);
    const double lat = Arc_Latitude(grid, std::sin(angle), std::cos(angle), course);
    return Round_Decimals(lat * Radians_To_Degrees, Six_Decimals);
}

}  // namespace skerrand
