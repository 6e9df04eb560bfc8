#include "tools/simulator/flight.h"

#include <algorithm>

namespace simulator {

Aircraft Aircraft_At(const Flight& flight, double seconds) {
    const Progress progress = Progress_At(flight.stretches, seconds);
    double left = progress.distance;
    for (std::size_t i = 0; i < flight.legs.size(); ++i) {
        const Arc& arc = flight.legs[i].arc;
        if (left > arc.length && i + 1 < flight.legs.size()) {
            left -= arc.length;
            continue;
        }
        const Pose pose = Pose_At(arc, std::min(left, arc.length));
        const Place place = Place_Of(pose.at);
        return {place.lat, place.lon, Heading_Of(pose), progress.speed};
    }
    return {};
}

double Duration(const Flight& flight) {
    if (flight.stretches.empty()) return 0;
    return flight.stretches.back().start + flight.stretches.back().duration;
}

}  // namespace simulator
