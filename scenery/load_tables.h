#pragma once

/// The ways in which the tables come to stand: read back from the program's files, or built by the
/// scan and stored.
namespace skerrand {

/// Reads `scenery.cfg`, counts the files and starts the scan; `tell_first_run` shows the message
/// of a first run. A missing `scenery.cfg` leads back to setup.
void Prepare_Scan(bool tell_first_run);

/// Adds an entry for each airport of the table to both lists of the picker, which are empty.
void Fill_Lists();

/// The end of the scan: writes both databases and the counts, and fills the lists. If a file cannot
/// be written the user is told, nothing half-written stays, and the program ends: false.
bool Store_Tables();

}  // namespace skerrand
