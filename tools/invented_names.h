#pragma once

#include <string>

#include "tools/random.h"

/// Names for airports that do not exist.
namespace world {

/// Four letters, different for each index from 0 to 26^4 - 1.
std::string Nth_Ident(int index);

/// 4 to 30 letters and blanks.
std::string Invent_Name(Random& random);

/// Capital letters.
std::string Invent_Letters(Random& random, int count);

}  // namespace world
