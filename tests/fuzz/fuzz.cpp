// The readers of files that nobody vouches for, varied by libFuzzer until a promise breaks:
//   fuzz FOLDER [OPTION]...
// FOLDER bears the name of the reader, and takes the samples to begin with and what is found.

#include <algorithm>
#include <array>
#include <atomic>
#include <cstdlib>
#include <filesystem>
#include <span>
#include <string>
#include <thread>

#include "app/settings.h"
#include "platform/code_page.h"
#include "platform/link.h"
#include "scenery/bgl_reader.h"
#include "scenery/bgl_walk.h"
#include "scenery/catalogue.h"
#include "scenery/database.h"
#include "scenery/magnetic.h"
#include "simlink/fsuipc.h"
#include "tests/scenery/bgl_builder.h"

using namespace skerrand;
using namespace skerrand::bgl;

namespace {

void Check(bool promise) {
    if (!promise) std::abort();
}

/// What the settings file tells of a database: the first two bytes of an input.
std::int16_t Take_Count(Bytes& input) {
    input.resize(std::max<std::size_t>(input.size(), 2));
    const auto count = static_cast<std::int16_t>(input[0] | input[1] << 8);
    input.erase(input.begin(), input.begin() + 2);
    return count;
}

/// A table that reads is written as one that reads the same.
template <typename Element, auto Parse, auto Write>
void Fuzz_Table(Bytes file) {
    const std::int16_t count = Take_Count(file);
    std::vector<Element> table, again;
    if (!Parse(file, count, table)) return Check(table.empty());
    Check(std::ssize(table) == count && Parse(Write(table), count, again) && again == table);
}

/// Scanned for the database first, then searched for airspaces.
void Fuzz_Bgl(Bytes file) {
    Load(file);
    for (const bool search : {false, true}) {
        first_run = !search;
        database_ready = search;
        Walk_Bgl();
        Check(airport_count == std::ssize(airport_table) && airspace_files.size() <= 1);
    }
}

/// The first two bytes, times 2, are the length of a file that is 0 behind the others.
void Fuzz_Magdec(Bytes file) {
    constexpr std::int16_t Untouched = 0x5A5A;
    const std::size_t length = std::size_t{2} * static_cast<std::uint16_t>(Take_Count(file));
    file.resize(length);
    bgl_bytes = Join({file, {0}});
    magnetic_table.fill(Untouched);
    if (Take_Grid() != Magdec_Result::Loaded)
        return Check(std::ranges::count(magnetic_table, Untouched) == std::ssize(magnetic_table));
    Check(static_cast<std::size_t>(Read_Long(110)) + 8 + 2 * Grid_Values <= length);
    Check(magnetic_table[Grid_Values] == Untouched);
}

void Fuzz_Scenery_Cfg(Bytes file) {
    const std::string text(file.begin(), file.end());
    scenery_areas = Parse_Scenery_Cfg(text);
    // Each resolving asks the file system some questions, so that many areas would take long.
    scenery_areas.resize(std::min<std::size_t>(scenery_areas.size(), 2));
    const std::string drives[] = {"x: ", "y: " + text.substr(0, 3)};
    Resolve_Local_Paths(drives);
    for (const Scenery_Area& area : scenery_areas) {
        Check((area.title + area.local).find('\n') == std::string::npos);
        Check(area.local == platform::Lower_Case(area.local));
        Check(area.local.empty() || platform::Folder_Exists(area.local));
    }
}

/// A record that reads is written as the same bytes.
void Fuzz_Settings(Bytes file) {
    Settings_Rec record;
    if (!Parse_Settings(file, record)) return Check(record == Settings_Rec{});
    const Bytes written = Settings_Bytes(record);
    file.resize(std::min(file.size(), written.size()));
    Check(written == file && record.airport_count >= 0 && record.airspace_file_count >= 0);
}

/// As a start reads them: the settings tell how much the two databases have to hold. Ahead of the
/// first two files stand their sizes, of 16 bits.
void Fuzz_Database(Bytes input) {
    const auto take_file = [&input] {
        const auto size = static_cast<std::uint16_t>(Take_Count(input));
        const auto end = input.begin() + std::min<std::ptrdiff_t>(size, std::ssize(input));
        const Bytes file(input.begin(), end);
        input.erase(input.begin(), end);
        return file;
    };
    Settings_Rec record;
    if (!Parse_Settings(take_file(), record)) return;
    std::vector<Airport_Info> airports;
    std::vector<std::string> files;
    Check(Parse_Airport_Table(take_file(), record.airport_count, airports)
              ? std::ssize(airports) == record.airport_count
              : airports.empty());
    Check(Parse_Airspace_List(input, record.airspace_file_count, files)
              ? std::ssize(files) == record.airspace_file_count
              : files.empty());
}

/// The simulator's end of the link: bytes, each with its place of 16 bits ahead, that it writes
/// into the block before it replies.
std::array<std::uint8_t, 0x8000> block;
Bytes answer;
std::uint32_t reply = 0;
bool opening = false;

void Write_Answer(std::uint8_t flip = 0) {
    for (std::size_t i = 2; i < answer.size(); i += 3)
        block[(answer[i - 2] | std::size_t{answer[i - 1]} << 8) % block.size()] = answer[i] ^ flip;
}

/// The first byte of an input tells what the simulator does: 1 it is sound while the link is
/// opened, 2 it replies something else, 4 it goes on writing while its answer is read.
void Fuzz_Link(Bytes input) {
    const int deeds = Take_Count(input);
    answer.clear();
    reply = opening = true;
    if ((deeds & 1) == 0) answer = input;
    Clear_Link();
    std::int32_t result = Link_Ok;
    if (!Open_Link(6, result)) return;
    answer = input;
    opening = false;
    reply = (deeds & 2) == 0;
    std::array<Bytes, 4> values = {Bytes(4), Bytes(2), Bytes(1), Bytes(1000)};
    for (Bytes& value : values)
        Check(Queue_Read(0x564, static_cast<std::uint32_t>(value.size()), value.data(), result));
    std::atomic<bool> read = (deeds & 4) == 0;
    std::thread simulator([&read] {
        for (std::uint8_t flip = 0; !read; ++flip)
            Write_Answer(flip);
    });
    Check(!Process_Queue(result) || (result == Link_Ok && reply == 1));
    read = true;
    simulator.join();
    Close_Link();
}

constexpr std::pair<std::string_view, void (*)(Bytes)> readers[] = {
    {"airports", Fuzz_Table<Airport_Info, Parse_Airport_Table, Airport_Table_Bytes>},
    {"airspaces", Fuzz_Table<std::string, Parse_Airspace_List, Airspace_List_Bytes>},
    {"bgl", Fuzz_Bgl},
    {"database", Fuzz_Database},
    {"link", Fuzz_Link},
    {"magdec", Fuzz_Magdec},
    {"scenery_cfg", Fuzz_Scenery_Cfg},
    {"settings", Fuzz_Settings},
};
void (*reader)(Bytes) = nullptr;

/// What is hard to guess: types of records, marks and words, as a dictionary of the fuzzer's.
std::string Dictionary() {
    std::vector<Bytes> words;
    for (const char* text : {"[Area.", "Title=", "Local=", "Active=", "x:", "Skerrand v2.0"})
        words.push_back(Text(text));
    for (const std::int64_t number :
         {1,       2,       0x7F00,  0x7FFF,  0x8000,  0x10001, 0x10002,     0x10004,
          0x10006, 0x1000B, 0x11001, 0x12001, 0x12002, 0x12004, 0x12005,     0x12006,
          0x12007, 0x12008, 0x20001, 0x30001, 0x30002, 0x50001, -0x789ABCDF, -1})
        words.push_back(Longs({number}));
    std::string lines;
    for (const Bytes& word : words) {
        lines += '"';
        for (const std::uint8_t byte : word) {
            constexpr const char* Digits = "0123456789abcdef";
            lines += {'\\', 'x', Digits[byte >> 4], Digits[byte & 15]};
        }
        lines += "\"\n";
    }
    return lines;
}

constexpr std::string_view areas =
    "[Area.001]\r\nTitle=T\r\nTexture_ID=1\r\nLocal=Scenery\r\nRemote=\r\nActive=TRUE\r\n"
    "[Area.2]\nLocal=\\\\net\\share\nRequired=\n[Area.001]\n[Area.2]\r\rlocal=c:/fs\r[[Area.2[] \r"
    "Title=[Area.3]\r[Area.3] x\rLocal= / \r[Area.3]]\r";

/// The start of a file of that length whose grid's section stands at that place.
Bytes Magdec(std::int64_t length, std::int64_t section) {
    return Join({Prefix(Longs({length / 2}), 2), Bytes(110), Longs({section})});
}

void Write_Samples(const std::string& folder) {
    Load(Sample());
    Walk_Bgl();
    const Bytes airports = Airport_Table_Bytes(std::span(airport_table).first(2));
    const Settings_Rec texts{"Skerrand v2.0", 1, 1, "/fs2002", 27000, 12, 49, 50, 107, 109, 65};
    const Bytes settings_bytes = Settings_Bytes({"", 1, 1, "/fs2002", 2, 2});
    const auto size = [](const Bytes& file) { return Prefix(Longs({std::ssize(file)}), 2); };
    const Bytes list = Airspace_List_Bytes(std::vector<std::string>{"a", "b"});
    const Bytes samples[] = {
        Join({size(settings_bytes), settings_bytes, size(airports), airports, list}),
        Join({{1, 0}, {8, 0, 4, 25, 0, 3, 36, 0, 1}}),
        Join({{5, 0}, {9, 0, 0x7F, 10, 0, 1}}),
        Join({{2, 0}, airports}),
        Join({{2, 0}, list}),
        Sample(),
        Image({}, Join({Group(), Group(5), Group()})),
        Image({{"A", Record(0x10003, {}, -8)}}),
        Text(areas),
        Join({Settings_Bytes(texts), {7}}),
        Magdec(130442, 114),
        Magdec(130442, 115),
    };
    for (std::size_t i = 0; i < std::size(samples); ++i)
        platform::Write_File(folder + "/built_" + std::to_string(i), samples[i]);
    platform::Write_File(folder + ".dict", Text(Dictionary()));
}

}  // namespace

namespace platform {

Window_Handle FindWindowExA(const char*) {
    return 1;
}
Message_Id RegisterWindowMessageA(const char*) {
    return 1;
}
Atom GlobalAddAtomA(const char*) {
    return 1;
}
void GlobalDeleteAtom(Atom) {}
Mapping_Handle CreateFileMappingA(std::uint32_t, const char*) {
    return 1;
}
void CloseHandle(Mapping_Handle) {}
std::uint8_t* MapViewOfFile(Mapping_Handle) {
    return block.data();
}
void UnmapViewOfFile(std::uint8_t*) {}
// Its versions first, where the batch of the opening has them.
bool SendMessageTimeoutA(Window_Handle, Message_Id, std::int32_t, std::uint32_t,
                         std::uint32_t& replied) {
    if (opening) std::ranges::copy(Longs({0x31230002}), &block[16]);
    if (opening) std::ranges::copy(Longs({0xFADE0006}), &block[36]);
    Write_Answer();
    replied = reply;
    return true;
}
std::uint32_t GetLastError() {
    return 0;
}
std::uint32_t GetCurrentProcessId() {
    return 1;
}
void Sleep(std::uint32_t) {}

}  // namespace platform

extern "C" int LLVMFuzzerInitialize(int* count, char*** arguments) {
    const std::filesystem::path folder = *count > 1 ? (*arguments)[1] : "";
    for (const auto& [name, read] : readers)
        if (name == folder.filename()) reader = read;
    Check(reader != nullptr);
    Write_Samples(folder);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    reader({data, data + size});
    return 0;
}
