#include "platform/desktop/dashes.h"

#include <algorithm>
#include <cmath>

namespace platform::desktop {

namespace {

/// Dash and gap in pixels at the dash scale of 1; short enough to show on short lines too.
constexpr double Dash = 5;
constexpr double Gap = 4;

}  // namespace

Dash_Pattern Dashes_Of(const Device_Context& device) {
    return {Dash * device.dash_scale, (Dash + Gap) * device.dash_scale};
}

double Place_In_Period(const Dash_Pattern& pattern, double way) {
    const double place = way - pattern.period * std::floor(way / pattern.period);
    return place < pattern.period ? place : 0;
}

void Add_Dashes(const Dash_Pattern& pattern, const Way_Point& from, const Way_Point& to,
                Dash_Lines& dashes) {
    const double length = to.way - from.way;
    if (!(length > 0)) return;
    const QPointF step = (to.at - from.at) / length;
    for (double at = -Place_In_Period(pattern, from.way); at < length; at += pattern.period) {
        const double start = std::max(at, 0.0);
        const double end = std::min(at + pattern.dash, length);
        if (start < end) dashes.append(QLineF(from.at + step * start, from.at + step * end));
    }
}

}  // namespace platform::desktop
