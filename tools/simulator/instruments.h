#pragma once

#include <cstdint>

#include "tools/simulator/flight.h"

/// The simulator's state area, as far as clients look at it.
namespace simulator {

/// A simulator that has just started, with its window of that class.
void Start(const char* window_class, std::uint32_t fs_version);

/// Position and heading.
void Show(const Aircraft& aircraft);

/// The altimeter setting in millibars, 0 to 4095; clients see sixteenths.
void Show_Altimeter(double millibars);

}  // namespace simulator
