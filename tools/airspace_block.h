#pragma once

#include <span>

#include "tools/airspace_facts.h"
#include "tools/bgl_writer.h"

/// Airspaces in the form of scenery files.
namespace world {

/// Appends a section with these airspaces in `groups` groups of about equal size, and lets the
/// header point to it. Nothing is appended without airspaces.
void Put_Airspace_Section(Bytes& bytes, std::span<const Airspace_Facts> airspaces,
                          std::size_t groups);

}  // namespace world
