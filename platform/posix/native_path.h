#pragma once

#include <string>
#include <string_view>

/// The way from the program's paths to the file system's, for the back-ends on POSIX systems.
namespace platform::posix {

/// The path as the file system takes it: UTF-8, parted by single "/", none at the end but a root's,
/// each name in the letter case that stands there. From the first name on that is not found the
/// names stand as they were given. An empty path is ".", the working folder. Empty for a path with
/// a zero byte in it, which no file can have.
std::string Native_Path(std::string_view path);

}  // namespace platform::posix
