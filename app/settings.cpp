#include "app/settings.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace skerrand {

std::string app_path;
std::string fs_root;
std::uint8_t sim_version = 0;
bool first_run = false;
bool database_ready = false;
Settings_Rec settings;

namespace {

constexpr std::array Own_Files = {Settings_File, Airports_File, Airspaces_File};

/// Reads little-endian fields one after the other; once one is missing, all further ones are.
class Field_Reader {
  public:
    explicit Field_Reader(const platform::Bytes& bytes) : bytes_(bytes) {}

    bool Ok() const { return ok_; }

    std::uint32_t Unsigned(std::size_t width) {
        std::uint32_t value = 0;
        if (!Take(width)) return 0;
        for (std::size_t i = 0; i < width; ++i) {
            value |= static_cast<std::uint32_t>(bytes_[next_ - width + i]) << (8 * i);
        }
        return value;
    }

    std::int32_t Long() { return static_cast<std::int32_t>(Unsigned(4)); }

    std::uint8_t Byte() { return static_cast<std::uint8_t>(Unsigned(1)); }

    std::string Text() {
        const std::size_t length = Unsigned(2);
        if (!Take(length)) return {};
        const auto start = bytes_.begin() + static_cast<std::ptrdiff_t>(next_ - length);
        return {start, start + static_cast<std::ptrdiff_t>(length)};
    }

  private:
    bool Take(std::size_t count) {
        ok_ = ok_ && count <= bytes_.size() - next_;
        if (ok_) next_ += count;
        return ok_;
    }

    const platform::Bytes& bytes_;
    std::size_t next_ = 0;
    bool ok_ = true;
};

void Put_Unsigned(platform::Bytes& bytes, std::uint32_t value, std::size_t width) {
    for (std::size_t i = 0; i < width; ++i) {
        bytes.push_back(static_cast<std::uint8_t>(value >> (8 * i)));
    }
}

void Put_Long(platform::Bytes& bytes, std::int32_t value) {
    Put_Unsigned(bytes, static_cast<std::uint32_t>(value), 4);
}

void Put_Text(platform::Bytes& bytes, const std::string& text) {
    const std::size_t length = std::min<std::size_t>(text.size(), 65535);
    Put_Unsigned(bytes, static_cast<std::uint32_t>(length), 2);
    bytes.insert(bytes.end(), text.begin(), text.begin() + static_cast<std::ptrdiff_t>(length));
}

}  // namespace

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
    Field_Reader reader(bytes);
    Settings_Rec read;
    read.signature = reader.Text();
    read.format_mark = reader.Byte();
    read.sim_version = reader.Byte();
    read.fs_path = reader.Text();
    read.airport_count = reader.Long();
    read.airspace_file_count = reader.Long();
    read.key_departure = reader.Long();
    read.key_destination = reader.Long();
    read.key_zoom_in = reader.Long();
    read.key_zoom_out = reader.Long();
    read.key_pause = reader.Long();
    if (!reader.Ok() || read.airport_count < 0 || read.airspace_file_count < 0) return false;
    record = read;
    return true;
}

platform::Bytes Settings_Bytes(const Settings_Rec& record) {
    platform::Bytes bytes;
    Put_Text(bytes, record.signature);
    bytes.push_back(record.format_mark);
    bytes.push_back(record.sim_version);
    Put_Text(bytes, record.fs_path);
    for (const std::int32_t number :
         {record.airport_count, record.airspace_file_count, record.key_departure,
          record.key_destination, record.key_zoom_in, record.key_zoom_out, record.key_pause}) {
        Put_Long(bytes, number);
    }
    return bytes;
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
