#include <cmath>

// Sine, cosine and arc tangent in place of the C library's: the system's own differ between the
// versions of Windows, and the compiler's reduce an angle by too short a pi. These compute in the
// processor's 80 bits and round to a double at the end.

namespace {

// A quarter turn in three parts, of which the first two are short enough for exact multiples.
constexpr long double Quarter_High = 0x1.921fb544p0L;
constexpr long double Quarter_Middle = 0x1.0b4611a6p-34L;
constexpr long double Quarter_Low = 0x1.3198a2e037073p-69L;

/// Sine of an angle and so many quarter turns. For angles up to 2^32.
double Sine(double angle, long long quarters) {
    const long long nearest = std::llrint(angle / Quarter_High);
    const auto count = static_cast<long double>(nearest);
    const long double rest =
        angle - count * Quarter_High - count * Quarter_Middle - count * Quarter_Low;
    quarters += nearest;
    const long double sine = (quarters & 1) == 0 ? std::sin(rest) : std::cos(rest);
    return static_cast<double>((quarters & 2) == 0 ? sine : -sine);
}

}  // namespace

extern "C" {

double sin(double angle) {
    return Sine(angle, 0);
}

double cos(double angle) {
    return Sine(angle, 1);
}

/// What the compiler makes of both for the same angle.
void sincos(double angle, double* sine, double* cosine) {
    *sine = Sine(angle, 0);
    *cosine = Sine(angle, 1);
}

double atan(double tangent) {
    return static_cast<double>(std::atan(static_cast<long double>(tangent)));
}

}  // extern "C"
