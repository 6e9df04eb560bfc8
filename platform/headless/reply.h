#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

/// The answer to a command while it is put together.
namespace platform::headless {

struct Reply {
    std::string lines;    ///< UTF-8, escaped, each with its line feed
    std::string failure;  ///< reason, empty if there is none
};

/// UTF-8 text with `\r`, `\n`, `\t` and `\\` for the characters that the wire parts things by.
std::string Escaped(std::string_view text);

/// Adds a line of Windows-1252 text.
void Add_Line(Reply& reply, std::string_view text);

/// Adds a line of several texts, parted by tabs.
void Add_Fields(Reply& reply, std::initializer_list<std::string_view> texts);

/// Makes the answer an error. The reason is UTF-8.
void Fail(Reply& reply, std::string_view reason);

/// The whole answer.
std::string Finished(const Reply& reply);

}  // namespace platform::headless
