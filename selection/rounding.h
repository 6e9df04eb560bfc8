#pragma once

#include <cmath>
#include <cstdint>
#include <limits>

/// Rounding to the nearest, a tie going to the even neighbour, which is what std::nearbyint does in
/// the rounding mode that the program never changes. A value too large for the width takes the
/// width's end, and one that is no number counts as 0.
namespace skerrand {

template <typename Integer>
Integer Round_To(double value) {
    using Limits = std::numeric_limits<Integer>;
    const double rounded = std::nearbyint(value);
    if (std::isnan(rounded)) return 0;
    if (rounded <= static_cast<double>(Limits::min())) return Limits::min();
    if (rounded >= static_cast<double>(Limits::max())) return Limits::max();
    return static_cast<Integer>(rounded);
}

inline std::int32_t Round_To_Long(double value) {
    return Round_To<std::int32_t>(value);
}
inline std::int16_t Round_To_Integer(double value) {
    return Round_To<std::int16_t>(value);
}

/// To a number of decimals given as its power of ten: 1e6 for six.
inline double Round_Decimals(double value, double power) {
    return std::nearbyint(value * power) / power;
}

}  // namespace skerrand
