#include "app/settings.h"

#include <algorithm>
#include <array>

#include "app/fields.h"

namespace skerrand {

std::string app_path;
std::string fs_root;
std::uint8_t sim_version = 0;
bool first_run = false;
bool database_ready = false;
Settings_Rec settings;

namespace {

constexpr std::array Own_Files = {Settings_File, Airports_File, Airspaces_File};

template <typename File, typename Record>
void Record_Fields(File& file, Record& record) {
    Fields(file, record.signature, record.format_mark, record.sim_version, record.fs_path,
           record.airport_count, record.airspace_file_count, record.key_departure,
           record.key_destination, record.key_zoom_in, record.key_zoom_out, record.key_pause);
}

}  // namespace

void Set_App_Path(std::string folder) {
    if (folder.ends_with('\\') || folder.ends_with('/')) folder.pop_back();
    app_path = folder;
}

std::string Own_File(const char* name) {
    return app_path + "\\" + name;
}

bool All_Own_Files_Exist() {
    return std::all_of(Own_Files.begin(), Own_Files.end(),
                       [](const char* name) { return platform::File_Exists(Own_File(name)); });
}

void Delete_Own_Files() {
    for (const char* name : Own_Files)
        platform::Delete_File(Own_File(name));
}

bool Parse_Settings(const platform::Bytes& bytes, Settings_Rec& record) {
    Field_Reader file{bytes};
    Settings_Rec read;
    Record_Fields(file, read);
    if (!file.ok || read.airport_count < 0 || read.airspace_file_count < 0) return false;
    record = read;
    return true;
}

platform::Bytes Settings_Bytes(const Settings_Rec& record) {
    Field_Writer file;
    Record_Fields(file, record);
    return file.bytes;
}

bool Load_Settings(const std::string& file) {
    platform::Bytes bytes;
    return platform::Read_File(file, bytes) && Take_Settings(bytes);
}

bool Take_Settings(const platform::Bytes& bytes) {
    if (!Parse_Settings(bytes, settings)) return false;
    sim_version = settings.sim_version;
    fs_root = settings.fs_path;
    return true;
}

std::string Save_Settings() {
    platform::Bytes bytes = Settings_Bytes(settings);
    platform::Bytes old;
    // The record is laid over the file, which is not cut: a longer old record leaves its end.
    if (platform::Read_File(Own_File(Settings_File), old) && old.size() > bytes.size()) {
        bytes.insert(bytes.end(), old.begin() + static_cast<std::ptrdiff_t>(bytes.size()),
                     old.end());
    }
    return platform::Write_File(Own_File(Settings_File), bytes);
}

}  // namespace skerrand
