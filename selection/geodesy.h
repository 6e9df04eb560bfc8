#pragma once

#include <cstdint>

/// Calculations on a spherical Earth whose unit is the nautical mile, one minute of arc. Latitude
/// and longitude are degrees, north and east positive; courses are whole degrees clockwise from
/// north. Nothing here fails: an argument out of range for an inverse sine or cosine gives 0, and
/// results too large for their width take the width's end.
namespace skerrand {

struct Fix_Point {
    double lat = 0;
    double lon = 0;
};

/// Radians, -pi/2 to pi/2; 0 for |x| > 1.
double Arc_Sin(double x);

/// Radians, 0 to pi; 0 for |x| > 1.
double Arc_Cos(double x);

/// y modulo x, never negative for a positive x.
double Float_Mod(double y, double x);

/// Takes one turn off a heading above 360 or adds one to a negative one; 360 stays 360.
std::int16_t Wrap_Degrees(int heading);

/// A heading less, or plus, the variation at a place: 0 to 360 for headings within one turn.
/// Outside the grid of the variation (a damaged position) the variation is 0.
std::int16_t True_To_Magnetic(int heading, double lat, double lon);
std::int16_t Magnetic_To_True(int heading, double lat, double lon);

/// Magnetic course from point 1 to point 2, 0 to 360. Two equal points give the magnetic value of
/// 360. Undefined courses (from a pole) count as that too.
std::int16_t Magnetic_Course(double lat1, double lon1, double lat2, double lon2);

/// Whole nautical miles, at most 32767.
std::int16_t Distance_NM(double lat1, double lon1, double lat2, double lon2);

/// Whole feet, 6080 to the mile, at most 32767 (about 5.4 miles).
std::int16_t Distance_Feet(double lat1, double lon1, double lat2, double lon2);

/// The point that lies `distance` along a true course of any sign. Metres, 1852 to the mile, count
/// by their absolute value and give 6 decimals; miles and feet below 0 count as 0 and give 5.
Fix_Point Destination_Meters(double lat, double lon, int course, double distance);
Fix_Point Destination_NM(double lat, double lon, int course, int distance);
Fix_Point Destination_Feet(double lat, double lon, int course, int distance);

}  // namespace skerrand
