#pragma once

#include <cstdint>
#include <string>

#include "platform/files.h"

/// Where things lie, what runs, and the settings file.
namespace skerrand {

/// The record of the settings file, in the order of the file.
struct Settings_Rec {
    std::string signature;         ///< "Skerrand v2.0" when written, not compared when read
    std::uint8_t format_mark = 0;  ///< 1 when written, not looked at when read
    std::uint8_t sim_version = 0;  ///< 1 is FS2002
    std::string fs_path;           ///< the simulator's main folder
    std::int32_t airport_count = 0;
    std::int32_t airspace_file_count = 0;
    /// Virtual-key codes of the five events.
    std::int32_t key_departure = 0;
    std::int32_t key_destination = 0;
    std::int32_t key_zoom_in = 0;
    std::int32_t key_zoom_out = 0;
    std::int32_t key_pause = 0;

    friend bool operator==(const Settings_Rec&, const Settings_Rec&) = default;
};

inline constexpr const char* Settings_File = "skerrand_config.cfg";
inline constexpr const char* Airports_File = "all_fs_airports.dat";
inline constexpr const char* Airspaces_File = "world_airspaces.lst";

inline constexpr std::uint8_t Version_FS2002 = 1;

extern std::string app_path;      ///< working folder at start-up; no separator at its end
extern std::string fs_root;       ///< the simulator's main folder, as the user gave it
extern std::uint8_t sim_version;  ///< 1 is FS2002, the only value ever set
extern bool first_run;            ///< the databases have to be built
extern bool database_ready;       ///< the tables are complete
extern Settings_Rec settings;     ///< as last read or written

/// Takes the working folder as `app_path`; one separator at its end goes, also that of a root.
void Set_App_Path(std::string folder);

/// Whether settings and databases are all there.
bool All_Own_Files_Exist();

/// Full path of one of the program's own files.
std::string Own_File(const char* name);

/// Reads the record from the start of a file's bytes; bytes behind it are passed over. False if
/// the bytes end inside the record or a count in it is negative; `record` is then as it was.
bool Parse_Settings(const platform::Bytes& bytes, Settings_Rec& record);

/// The record's bytes. A text longer than 65535 bytes is cut there.
platform::Bytes Settings_Bytes(const Settings_Rec& record);

/// Reads the file into `settings` and takes the simulator's version and folder from it; the sizes
/// of the tables are the caller's to take. A bare name lies in the working folder. False, with
/// nothing changed, if the file cannot be read or does not hold a whole record.
bool Load_Settings(const std::string& file);

/// The same from the file's bytes.
bool Take_Settings(const platform::Bytes& bytes);

/// Deletes the three files that live and die together; failures are ignored.
void Delete_Own_Files();

/// Writes `settings` over the start of the settings file; bytes behind the record stay. Answers an
/// empty text or the reason of the failure.
std::string Save_Settings();

}  // namespace skerrand
