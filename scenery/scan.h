#pragma once

/// The two timers of the picker: loading the tables from the program's files or, on a first run,
/// building them by a scan of the whole scenery, a BGL file a tick.
namespace skerrand {

/// Loads the magnetic grid, then the tables, or prepares the scan and starts it.
void Read_Sceneries_Paths_Timer();

/// Reads the next BGL file; after the last one, writes the databases and fills the lists.
void Scan_Bgls_Timer();

}  // namespace skerrand
