#pragma once

#include <string>
#include <vector>

/// Whether an answer is the expected one, line by line. An expected line "..." stands for any
/// number of lines, one that ends with "..." for every line that starts so, two quotation marks for
/// an empty line, and an empty line for one or none, since it also parts the exchanges.
bool Matches(const std::vector<std::string>& expected, const std::vector<std::string>& answer);

/// Both, without what they share at the start and the end: expected lines behind "-", others
/// behind "+".
std::string Difference(const std::vector<std::string>& expected,
                       const std::vector<std::string>& answer);
