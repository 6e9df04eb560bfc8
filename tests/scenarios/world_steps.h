#pragma once

#include <filesystem>
#include <string>
#include <vector>

/// The steps of a scenario that prepare or look at files, by their names:
///
///     make_world FOLDER OPTION...   runs the build's tool of that name
///     copy FROM TO                  a file or a whole folder
///     remove PATH                   the same
///     folder PATH                   makes a folder, and those above it
///     write FILE TEXT               a file with that text and no line end
///     truncate FILE SIZE
///     ln -s TARGET LINK
///     exists PATH, missing PATH, same FILE FILE
///
/// A text has words parted by one blank. Answers an empty text, or what went wrong.
std::string Do_File_Step(const std::vector<std::string>& words,
                         const std::filesystem::path& make_world);
