#pragma once

/// What the two timers of the picker do: load the tables from the program's files or, on a first
/// run, build them by a scan of the whole scenery, a BGL file a tick.
namespace skerrand::form3 {

/// Loads the magnetic grid, then the tables, or prepares the scan and starts it. Tables that do not
/// read back whole are scanned anew, and a missing scenery.cfg leads back to setup.
void Read_Sceneries_Paths_Timer();

/// Reads the next BGL file; after the last one, writes the databases and fills the lists. If a file
/// cannot be written the user is told, nothing half-written stays, and the program ends.
void Scan_Bgls_Timer();

/// Adds an entry for each airport of the table to both lists, which are empty.
void Fill_Lists();

}  // namespace skerrand::form3
