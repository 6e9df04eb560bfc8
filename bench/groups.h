#pragma once

#include <string>
#include <vector>

#include "bench/summary.h"

/// The groups of benchmarks. Each has one operation that registers its benchmarks, all named
/// GROUP/..., one that brings the program into the state that they need, and one that adds their
/// rows to the closing table.
namespace bench {

/// Absolute paths in the file system's own way.
struct Folders {
    std::string world;  ///< the generated world of 27,000 airports
    std::string demo;   ///< the demonstration world
    std::string work;   ///< an empty folder for the program's own files
};

/// Ends the process with a message.
[[noreturn]] void Give_Up(const std::string& message);

/// Runs setup and scan on the world, in the working folder; leaves the picker ready.
void First_Run(const Folders& folders);

/// Walking all scenery files in memory.
void Register_Scan();
void Prepare_Scan(const Folders& folders);
void Add_Scan_Rows(const Results& results, std::vector<Row>& rows);

/// The database files. These and the two groups behind them need the first run behind them.
void Register_Database();
void Prepare_Database(const Folders& folders);
void Add_Database_Rows(const Results& results, std::vector<Row>& rows);

/// The lists of the picker.
void Register_Lists();
void Prepare_Lists(const Folders& folders);
void Add_List_Rows(const Results& results, std::vector<Row>& rows);

/// A later start of the program.
void Register_Start();
void Add_Start_Rows(const Results& results, std::vector<Row>& rows);

/// The chart of the largest airport of the demonstration world, on any back-end. `Show_Chart` runs
/// inside a handler or ahead of the first event.
void Register_Chart();
void Show_Chart(const Folders& folders);
void Open_Chart();  ///< once more, with a new link
void Zoom_To(int rate);
void Add_Chart_Rows(const Results& results, double limit, std::vector<Row>& rows);

/// The chart's tick, all of it; needs the link to a simulator whose aircraft is at the airport.
void Register_Tick();
void Add_Tick_Row(const Results& results, std::vector<Row>& rows);

/// The search for airspaces; needs the first run behind it.
void Register_Airspace_Search();
void Prepare_Airspace_Search(const Folders& folders);
void Add_Airspace_Search_Rows(const Results& results, std::vector<Row>& rows);

/// The airspaces of a chart, on any back-end; needs `Show_Chart` behind it.
void Register_Airspace_Drawing();
void Add_Airspace_Drawing_Rows(const Results& results, double limit, std::vector<Row>& rows);

/// Runs the benchmarks of a group, or of a part of one ("airspaces/draw").
void Run_Group(const char* name, Results& results);

/// Hands the options of the command line to the benchmark library, with this project's defaults
/// ahead of them, and takes them off `arguments`.
void Take_Options(std::vector<std::string>& arguments);

}  // namespace bench
