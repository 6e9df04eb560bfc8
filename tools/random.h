#pragma once

#include <cstdint>
#include <random>

/// Random numbers that are the same everywhere for a seed: the standard fixes the engine's numbers,
/// but leaves its distributions to each library.
namespace world {

struct Random {
    std::mt19937_64 engine;
};

/// 0 to 1, 1 not included.
inline double Fraction(Random& random) {
    return static_cast<double>(random.engine() >> 11) * 0x1p-53;
}

/// `lowest` to `highest`, both included.
inline int Between(Random& random, int lowest, int highest) {
    const auto span = static_cast<std::uint64_t>(highest - lowest) + 1;
    return lowest + static_cast<int>(random.engine() % span);
}

inline bool Chance(Random& random, double probability) {
    return Fraction(random) < probability;
}

}  // namespace world
