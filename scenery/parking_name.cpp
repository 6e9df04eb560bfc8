#include "scenery/parking_name.h"

#include <array>

#include "selection/rounding.h"

namespace skerrand {

namespace {

/// By label code, from 1 on.
constexpr std::array<std::string_view, 37> Labels{
    "PARKING",   "N PARKING",  "NE PARKING", "E PARKING", "SE PARKING", "S PARKING", "SW PARKING",
    "W PARKING", "NW PARKING", "GATE",       "DOCK",      "GATE A",     "GATE B",    "GATE C",
    "GATE D",    "GATE E",     "GATE F",     "GATE G",    "GATE H",     "GATE I",    "GATE J",
    "GATE K",    "GATE L",     "GATE M",     "GATE N",    "GATE O",     "GATE P",    "GATE Q",
    "GATE R",    "GATE S",     "GATE T",     "GATE U",    "GATE V",     "GATE W",    "GATE X",
    "GATE Y",    "GATE Z"};

constexpr std::int32_t Label_Field = 0xFFFFF;  // number and code; above them the kind of parking
constexpr std::int32_t Number_Step = 128;

}  // namespace

std::string Parking_Name(std::int32_t packed, std::string_view& label) {
    const std::int32_t field = packed & Label_Field;
    // Rounded, not cut, so that a code above half a step counts as a negative one of the next.
    const std::int32_t number = Round_To_Long(static_cast<double>(field) / Number_Step);
    const std::int32_t code = field - number * Number_Step;
    if (code >= 1 && code <= std::ssize(Labels)) label = Labels[static_cast<std::size_t>(code - 1)];
    std::string name(label);
    name += ' ';
    name += std::to_string(number);
    return name;
}

}  // namespace skerrand
