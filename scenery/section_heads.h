#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace skerrand {

/// Whether a line of scenery.cfg heads a section: once the blanks round it are gone, its first "["
/// is its first character and its first "]" its last.
bool Is_Section_Head(std::string_view line);

/// For each head the offset of its first occurrence in `text`, be it a line of its own or part of
/// another one. `heads` are section heads, each of which stands in `text`. Takes time in proportion
/// to the length of the text, unless many heads differ in nothing but the blanks round them.
std::vector<std::size_t> First_Places(std::string_view text,
                                      const std::vector<std::string_view>& heads);

}  // namespace skerrand
