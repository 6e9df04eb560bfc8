#pragma once

#include <string>

#include "scenery/airport_info.h"

/// The airports that Skerrand has found, from its files in the working folder.
namespace simulator {

/// Reads settings and database of the current folder into `airport_table`. False if they are not
/// there, not whole, or hold no airport.
bool Load_Airports();

/// The airport of that code in any letter case that has a runway; null with `fault` if none is. An
/// empty code is the first airport with a runway.
const skerrand::Airport_Info* Find_Airport(const std::string& icao_id, std::string& fault);

}  // namespace simulator
