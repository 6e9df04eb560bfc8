#pragma once

#include <span>

#include "tools/bgl_writer.h"
#include "tools/world_facts.h"

/// Airports in the form of scenery files.
namespace world {

/// A whole scenery file with these airports, in their order. Texts and counts have to fit the
/// format: at most 32767 points, parkings and paths each, names within `world_facts.h`.
Bytes Airports_File(std::span<const Airport_Facts> airports);

/// Appends the block of one airport: its head, its records and the end of their chain.
void Put_Airport_Block(Bytes& bytes, const Airport_Facts& airport);

/// Appends the record of a taxi network: lists of points, parkings, paths and taxiway names.
/// Nothing is appended for an airport without any of them.
void Put_Taxi_Block(Bytes& bytes, const Airport_Facts& airport);

}  // namespace world
