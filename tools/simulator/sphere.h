#pragma once

/// Points and directions on the Earth as unit vectors, so that neither the date line nor a pole is
/// anything special.
namespace simulator {

/// Of a sphere whose minute of arc is a nautical mile of 1852 m.
inline constexpr double Earth_Radius = 6366707.0194937074;  // metres

struct Vector {
    double x = 0, y = 0, z = 0;
};

Vector operator+(const Vector& a, const Vector& b);
Vector operator-(const Vector& a, const Vector& b);
Vector operator*(double factor, const Vector& a);
double Dot(const Vector& a, const Vector& b);
Vector Cross(const Vector& a, const Vector& b);
double Length(const Vector& a);
/// `a` must not be the null vector.
Vector Unit(const Vector& a);

/// Turned about a unit axis, by radians counted counterclockwise as seen from the axis' tip.
Vector Rotate(const Vector& a, const Vector& axis, double angle);

/// The angle by which that rotation takes `a` to `b`, -pi to pi; of vectors that are not
/// perpendicular to the axis the parts that are count.
double Angle_About(const Vector& axis, const Vector& a, const Vector& b);

/// Degrees, north and east positive; the longitude of an answer is -180 to 180.
struct Place {
    double lat = 0, lon = 0;
};

Vector Point_Of(const Place& place);
Place Place_Of(const Vector& point);

/// Metres over the ground.
double Distance(const Vector& a, const Vector& b);

/// A point and a direction over the ground, both unit vectors.
struct Pose {
    Vector at;
    Vector ahead;
};

Vector Left_Of(const Pose& pose);

/// At `from` with its nose to `to`, which must be elsewhere.
Pose Facing(const Vector& from, const Vector& to);

/// True, 0 to 360 degrees.
double Heading_Of(const Pose& pose);

}  // namespace simulator
