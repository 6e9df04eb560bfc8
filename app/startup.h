#pragma once

namespace skerrand {

/// The start-up decision: takes the working folder, and leaves the splash for setup or, if all
/// three of the program's files are there, for the picker. The three files live and die together:
/// if one is missing, or the settings cannot be read, the others are deleted.
void Decide_Start();

}  // namespace skerrand
