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
#include "scenery/bgl_reader.h"
#include "scenery/bgl_walk.h"
#include "scenery/catalogue.h"
#include "scenery/database.h"
#include "scenery/magnetic.h"
#include "simlink/fsuipc.h"
#include "tests/scenery/bgl_builder.h"
#include "tests/simlink/fake_link.h"
#include "tools/scenery_file.h"

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

/// A table that reads is written as one that reads the same.
template <typename Element, auto Parse, auto Write>
void Check_Table(const Bytes& file, std::int32_t count) {
    std::vector<Element> table, again;
    if (!Parse(file, count, table)) return Check(table.empty());
    Check(std::ssize(table) == count && Parse(Write(table), count, again) && again == table);
}

/// As a start reads them: how much the databases have to hold is told by the settings, the first of
/// them and of the input, which has 64 bytes for them.
void Fuzz_Database(Bytes input) {
    Settings_Rec record;
    const auto tables = input.begin() + std::min<std::ptrdiff_t>(64, std::ssize(input));
    if (!Parse_Settings(Bytes(input.begin(), tables), record)) return;
    input.erase(input.begin(), tables);
    Check_Table<Airport_Info, Parse_Airport_Table, Airport_Table_Bytes>(input,
                                                                        record.airport_count);
    Check_Table<std::string, Parse_Airspace_List, Airspace_List_Bytes>(input,
                                                                       record.airspace_file_count);
}

/// What the simulator writes into the link's block: bytes, each with its place of 16 bits ahead.
/// The first byte of an input tells its deeds: 1 it lets the link be opened first, 2 it replies
/// something else, 4 it goes on writing while its answer is read.
void Fuzz_Link(Bytes input) {
    const int deeds = Take_Count(input);
    const auto write = [&input](std::uint8_t flip) {
        for (std::size_t i = 2; i < input.size(); i += 3)
            fake.block[(input[i - 2] | input[i - 1] << 8) & 0x7FFF] = input[i] ^ flip;
    };
    const auto spoil = [&write](Block) { write(0); };
    platform::simulator::Start("UIPCMAIN");
    fake.server = platform::simulator::Answer_Batch;
    if ((deeds & 1) == 0) fake.server = spoil;
    fake.calls.clear();
    fake.reply = 1;
    std::int32_t result = Link_Ok;
    if (!Open_Link(6, result)) return;
    fake.server = spoil;
    fake.reply = (deeds & 2) == 0;
    const bool goes_on = (deeds & 4) != 0;
    std::atomic<bool> writes = false, read = !goes_on;
    std::thread simulator([&] {
        for (std::uint8_t flip = 0; !read; ++flip, writes = true)
            write(flip);
    });
    while (goes_on && !writes)
        std::this_thread::yield();
    std::array<Bytes, 3> values = {Bytes(4), Bytes(1), Bytes(1000)};
    for (int batch = 0; batch < (goes_on ? 50 : 1); ++batch) {
        for (Bytes& value : values)
            Check(Queue_Read(0, static_cast<std::uint32_t>(value.size()), value.data(), result));
        Check(!Process_Queue(result) || (result == Link_Ok && fake.reply == 1));
    }
    read = true;
    simulator.join();
    Close_Link();
}

constexpr std::pair<std::string_view, void (*)(Bytes)> readers[] = {
    {"bgl", Fuzz_Bgl},       {"database", Fuzz_Database},       {"link", Fuzz_Link},
    {"magdec", Fuzz_Magdec}, {"scenery_cfg", Fuzz_Scenery_Cfg}, {"settings", Fuzz_Settings},
};
void (*reader)(Bytes) = nullptr;

void Write_Samples(const std::string& folder) {
    const world::Airport_Facts airport{
        "LXGB",
        "Rock",
        {45, 90},
        9,
        {{world::Tower_Use, 1213000}},
        {{9, 1, {45, 89.9}, {45, 90.1}, 150, {{"ILS 09", {45, 90.1}, 90, 1095000}}}},
        {{45, 90.1}, {45.1, 90}},
        {{{45, 90}, 12, 5, 12}},
        {{{}, 0, 1, 0, "B"}, {world::Path_Kind::Parking, 1, 0, 0, ""}}};
    const world::Airspace_Facts airspace{"", 0, 9, 1243000, "FIR", {{-9, -9}, {60, 120}}, {{}, {}}};
    const Bytes scenery = Text(world::Scenery_File({&airport, 1}, {&airspace, 1}));
    Load(scenery);
    Walk_Bgl();
    const Bytes airports = Airport_Table_Bytes(std::vector(2, airport_table.at(0)));
    const Bytes list = Airspace_List_Bytes(std::vector<std::string>{"a", "b"});
    Bytes start = Settings_Bytes({"Skerrand v2.0", 1, 1, "/fs2002", 2, 2, 49, 50, 107, 109, 65});
    start.resize(64);
    const Bytes samples[] = {
        Join({start, airports}),
        Join({start, list}),
        Join({{1, 0}, {8, 0, 4, 25, 0, 3, 36, 0, 1}}),
        Join({{5, 0}, {9, 0, 0x7F, 10, 0, 1}}),
        scenery,
        Text("[Area.001]\r\nTitle=T\r\nTexture_ID=1\r\nLocal=Scenery\r\nRemote=\r\nActive=TRUE\r\n"
             "[Area.2]\nLocal=\\\\net\\share\nRequired=\n[Area.001]\n[Area.2]\r\rlocal=c:/fs\r"
             "[[Area.2[] \rTitle=[Area.3]\r[Area.3] x\rLocal= / \r[Area.3]]\r"),
        Join({{0xC5, 0xFE}, Bytes(110), Longs({114})}),  // a grid that ends with its file
        Join({{0xC5, 0xFE}, Bytes(110), Longs({115})}),  // and one that ends behind it
    };
    for (std::size_t i = 0; i < std::size(samples); ++i)
        platform::Write_File(folder + "/built_" + std::to_string(i), samples[i]);
}

}  // namespace

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
