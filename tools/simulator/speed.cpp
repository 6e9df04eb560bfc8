#include "tools/simulator/speed.h"

#include <algorithm>
#include <cmath>

namespace simulator {

namespace {

/// After `length` metres of speeding up.
double Faster(double speed, double acceleration, double length) {
    return std::sqrt(speed * speed + 2 * acceleration * length);
}

/// Speeds at the starts of all legs and at the end of the last.
std::vector<double> Speeds_Between(std::span<const Leg> legs) {
    std::vector<double> speeds(legs.size() + 1, 0);
    for (std::size_t i = 1; i < legs.size(); ++i) {
        const Leg& before = legs[i - 1];
        speeds[i] = std::min({before.speed, legs[i].speed,
                              Faster(speeds[i - 1], before.acceleration, before.arc.length)});
    }
    for (std::size_t i = legs.size(); i-- > 0;) {
        speeds[i] = std::min(speeds[i], Faster(speeds[i + 1], legs[i].braking, legs[i].arc.length));
    }
    return speeds;
}

/// The highest speed on a leg that starts and ends with these.
double Peak(const Leg& leg, double first, double last) {
    const double square = (2 * leg.acceleration * leg.braking * leg.arc.length +
                           leg.braking * first * first + leg.acceleration * last * last) /
                          (leg.acceleration + leg.braking);
    return std::clamp(std::sqrt(square), std::max(first, last), std::max({leg.speed, first, last}));
}

void Add(std::vector<Stretch>& stretches, double speed, double acceleration, double duration) {
    Stretch next{0, 0, speed, acceleration, duration};
    if (!(duration > 0)) return;
    if (!stretches.empty()) {
        const Stretch& last = stretches.back();
        next.start = last.start + last.duration;
        next.distance = Progress_At({&last, 1}, next.start).distance;
    }
    stretches.push_back(next);
}

}  // namespace

std::vector<Stretch> Time_Of(std::span<const Leg> legs) {
    const std::vector<double> speeds = Speeds_Between(legs);
    std::vector<Stretch> stretches;
    for (std::size_t i = 0; i < legs.size(); ++i) {
        const Leg& leg = legs[i];
        const double first = speeds[i];
        const double last = speeds[i + 1];
        const double peak = Peak(leg, first, last);
        const double gaining = (peak * peak - first * first) / 2 / leg.acceleration;
        const double losing = (peak * peak - last * last) / 2 / leg.braking;
        Add(stretches, first, leg.acceleration, (peak - first) / leg.acceleration);
        if (peak > 0) Add(stretches, peak, 0, (leg.arc.length - gaining - losing) / peak);
        Add(stretches, peak, -leg.braking, (peak - last) / leg.braking);
    }
    return stretches;
}

Progress Progress_At(std::span<const Stretch> stretches, double seconds) {
    const auto after =
        std::upper_bound(stretches.begin(), stretches.end(), seconds,
                         [](double time, const Stretch& stretch) { return time < stretch.start; });
    if (after == stretches.begin()) return {};
    const Stretch& now = *std::prev(after);
    const double passed = std::min(seconds - now.start, now.duration);
    return {now.distance + (now.speed + now.acceleration * passed / 2) * passed,
            now.speed + now.acceleration * passed};
}

}  // namespace simulator
