#include "tools/simulator/flight_plan.h"

#include <algorithm>
#include <cmath>

#include "tools/simulator/runway_line.h"
#include "tools/simulator/taxi_off.h"

namespace simulator {

namespace {

constexpr double Gravity = 9.81;        // m/s²
constexpr double Bank_Tangent = 0.466;  // a bank of 25 degrees in the turns
constexpr double Fastest_Landing = 70;  // m/s

// On the ground, m/s and m/s².
constexpr double Runway_Acceleration = 2;
constexpr double Runway_Braking = 2;
constexpr double Roll_Speed = 12;
constexpr double Taxi_Speed = 8;
constexpr double Taxi_Turn_Speed = 4;
constexpr double Taxi_Turn_Radius = 15;  // metres
constexpr double Taxi_Acceleration = 1;

constexpr double Air_Acceleration = 0.7;
constexpr double Climb_Acceleration = 1;

/// What an aircraft can do that takes off, and stops, within half of its runway. m/s and metres.
struct Performance {
    explicit Performance(double runway_length)
        : landing(std::min(Fastest_Landing, std::sqrt(Runway_Acceleration * runway_length))),
          turning(1.3 * landing),
          cruise(3.2 * landing),
          turn_radius(turning * turning / (Gravity * Bank_Tangent)) {}

    double landing, turning, cruise, turn_radius;

    double Climb_Out() const { return 25 * landing; }
    double Final() const { return 80 * landing; }
};

void Add(Flight& flight, const Arc& arc, double speed, double acceleration, double braking) {
    if (arc.length > 0) flight.legs.push_back({arc, speed, acceleration, braking});
}

void Add_Ways(Flight& flight, const std::vector<Arc>& way, double turning, double straight,
              double acceleration) {
    for (std::size_t i = 0; i < way.size(); ++i)
        Add(flight, way[i], i == 1 ? straight : turning, acceleration, acceleration);
}

/// Down the runway and straight on; gives the pose where turns may begin.
Pose Take_Off(Flight& flight, const Runway_Line& line, const Performance& can) {
    const double roll = can.landing * can.landing / 2 / Runway_Acceleration;
    Add(flight, Straight(line.start, roll), can.landing, Runway_Acceleration, Runway_Braking);
    const double rest = line.length - roll + can.Climb_Out();
    Add(flight, Straight(On_Line(line, roll), rest), can.turning, Climb_Acceleration,
        Air_Acceleration);
    return On_Line(line, line.length + can.Climb_Out());
}

Pose Start_Of_Final(const Runway_Line& line, const Performance& can) {
    return On_Line(line, -can.Final());
}

void Leave_Runway(Flight& flight, const skerrand::Airport_Info& airport, const Runway_Line& line,
                  double along) {
    const auto exit = Nearest_Exit(airport, line, along);
    const double rolled = exit ? exit->along : std::min(along + 50, line.length);
    const Pose end_of_roll = On_Line(line, rolled);
    Add(flight, Straight(On_Line(line, along), rolled - along), Roll_Speed, Taxi_Acceleration,
        Taxi_Acceleration);
    if (!exit) return;
    const Pose stand{exit->stand, -1 * Facing(exit->stand, end_of_roll.at).ahead};
    Add_Ways(flight, Shortest_Way(end_of_roll, stand, Taxi_Turn_Radius), Taxi_Turn_Speed,
             Taxi_Speed, Taxi_Acceleration);
}

/// From the start of the final approach to a stand.
void Land(Flight& flight, const skerrand::Airport_Info& airport, const Runway_Line& line,
          const Performance& can) {
    const double touch_down = line.length / 10;
    Add(flight, Straight(Start_Of_Final(line, can), can.Final() + touch_down), can.landing,
        Air_Acceleration, Air_Acceleration);
    const double roll = std::min(Roll_Speed, can.landing / 2);
    const double stopping = (can.landing * can.landing - roll * roll) / 2 / Runway_Braking;
    Add(flight, Straight(On_Line(line, touch_down), stopping), can.landing, Runway_Acceleration,
        Runway_Braking);
    Leave_Runway(flight, airport, line, touch_down + stopping);
}

/// The direction of use that lies nearer to `way`.
Runway_Line Best_Direction(const Runway_Line& line, const Vector& way) {
    return Dot(line.start.ahead, way) < 0 ? Reversed(line) : line;
}

/// Abeam the middle of the runway, at its left, the other way round.
Pose Downwind(const Runway_Line& line, const Performance& can) {
    const Pose middle = On_Line(line, line.length / 2);
    const double aside = 2 * can.turn_radius + 20 * can.landing;
    const Pose out = Pose_At(Straight({middle.at, Left_Of(middle)}, 0), aside);
    return {out.at, Left_Of(out)};
}

}  // namespace

bool Can_Land(const skerrand::Airport_Info& airport) {
    return Longest_Runway(airport).length > 0;
}

Flight Direct_Flight(const skerrand::Airport_Info& departure,
                     const skerrand::Airport_Info& destination) {
    const Runway_Line from = Longest_Runway(departure);
    const Runway_Line to = Longest_Runway(destination);
    const Performance can(std::min(from.length, to.length));
    const Vector way_out = to.start.at - from.start.at;
    const Runway_Line first = Best_Direction(from, way_out);
    const Runway_Line last = Best_Direction(to, way_out);
    Flight flight;
    const Pose climbed = Take_Off(flight, first, can);
    Add_Ways(flight, Shortest_Way(climbed, Start_Of_Final(last, can), can.turn_radius), can.turning,
             can.cruise, Air_Acceleration);
    Land(flight, destination, last, can);
    flight.stretches = Time_Of(flight.legs);
    return flight;
}

Flight Traffic_Pattern(const skerrand::Airport_Info& airport) {
    const Runway_Line line = Longest_Runway(airport);
    const Performance can(line.length);
    const Pose downwind = Downwind(line, can);
    Flight flight;
    const Pose climbed = Take_Off(flight, line, can);
    Add_Ways(flight, Shortest_Way(climbed, downwind, can.turn_radius), can.turning, can.turning,
             Air_Acceleration);
    Add_Ways(flight, Shortest_Way(downwind, Start_Of_Final(line, can), can.turn_radius),
             can.turning, can.turning, Air_Acceleration);
    Land(flight, airport, line, can);
    flight.stretches = Time_Of(flight.legs);
    return flight;
}

}  // namespace simulator
