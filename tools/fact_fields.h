#pragma once

#include <optional>
#include <string_view>

#include "tools/world_facts.h"

/// The fields of one line of facts, parted by single blanks. Each operation takes the next field
/// away from the front of `rest` and answers nothing if the field is missing or malformed.
namespace world {

struct Fact_Fields {
    std::string_view rest;
};

std::optional<std::string_view> Next_Word(Fact_Fields& fields);
std::optional<double> Next_Number(Fact_Fields& fields, double lowest, double highest);
std::optional<int> Next_Count(Fact_Fields& fields, int highest);  ///< 0 to `highest`
std::optional<Position> Next_Position(Fact_Fields& fields);       ///< on the globe
std::optional<Frequency> Next_Frequency(Fact_Fields& fields);     ///< MHz, 0 to 9999.9999

/// A runway end such as 9, 09 or 34C.
struct Designator {
    int number = 36;
    Runway_Letter letter = Runway_Letter::None;

    friend bool operator==(const Designator&, const Designator&) = default;
};

std::optional<Designator> Next_Designator(Fact_Fields& fields);
Designator Opposite(Designator designator);

/// The label code of a text such as PARKING, GATE or GATE A.
std::optional<int> Label_Code(std::string_view text);

}  // namespace world
