#pragma once

#include "tools/airspace_facts.h"

/// Outlines of the shapes that airspaces have. Courses are true, in degrees of any number of turns;
/// lengths are nautical miles, minutes of arc.
namespace world {

/// The place that lies so far on the great circle that leaves on that course.
Position Place_From(Position from, double course, double miles);

Outline Disc(Position center, double radius);

/// A disc without what lies clockwise between two courses beyond `notch` from its centre.
Outline Notched_Disc(Position center, double radius, double notch, double from, double to);

/// A disc cut straight along the chord between two courses, which it goes round clockwise from
/// `from` to `to`.
Outline Cut_Disc(Position center, double radius, double from, double to);

/// The part of a ring clockwise between two courses.
Outline Ring_Sector(Position center, double inner, double outer, double from, double to);

/// A box with rounded corners, but the south-western one is bitten off.
Outline Rounded_Box(const Position_Box& box, double radius);

/// A polygon of `corners` corners, each second one drawn in to nine tenths of the radius.
Outline Jagged_Polygon(Position center, double radius, int corners);

/// The box of everything within `miles` of a place, but for what lies beyond the date line.
Position_Box Box_Round(Position center, double miles);

}  // namespace world
