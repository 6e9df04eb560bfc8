#pragma once

#include <string>

#include "scenery/airport_info.h"
#include "tools/simulator/flight.h"

/// Flights between the airports of the database, by their longest runways. The shorter of the two
/// decides how fast the aircraft is: a jet from 2450 m on, slower ones below.
namespace simulator {

/// Whether the airport has a runway of 100 m or more whose ends are places on the Earth.
bool Can_Land(const skerrand::Airport_Info& airport);

/// From a runway's end along the great circle to a runway of the destination, both flown in the
/// direction that lies nearer to the way; and off that runway to the nearest taxi point or parking,
/// if it has one, else to a stand on the runway. Both airports must be such that one can land.
Flight Direct_Flight(const skerrand::Airport_Info& departure,
                     const skerrand::Airport_Info& destination);

/// Once round the airport, with left turns.
Flight Traffic_Pattern(const skerrand::Airport_Info& airport);

}  // namespace simulator
