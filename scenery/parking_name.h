#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace skerrand {

/// A parking's name, such as "GATE A 12", from its packed value. `label` is the label of the
/// parking before it, empty for the first: it stands in for an unknown code, else it becomes the
/// new label.
std::string Parking_Name(std::int32_t packed, std::string_view& label);

}  // namespace skerrand
