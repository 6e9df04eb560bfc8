#include "scenery/bgl_walk.h"

#include <algorithm>
#include <climits>
#include <gtest/gtest.h>

#include "scenery/airspace_reader.h"
#include "scenery/magnetic.h"
#include "tests/scenery/bgl_builder.h"

using namespace skerrand;

using namespace bgl;

TEST(Bgl_Reader, Number_Or_Text_Misread) {
    const std::pair<std::uint32_t, double> singles[] = {
        {0x00000000, 0.0},        {0x3F800000, 1.0},
        {0x80000000, -0x1p-127},  {0xC2F6E979, -123.45600128173828},
        {0x00400000, 0x1.8p-127}, {0x7F7FFFFF, 3.4028234663852886e38},
        {0x7F800000, 0.0},        {0xFFC00001, 0.0}};
    for (const auto& [bits, value] : singles)
        EXPECT_EQ(Bits_To_Single(static_cast<std::int32_t>(bits)), value) << bits;
    std::string frequencies;
    for (const std::uint32_t code : {0x01213000U, 0x01180000U, 0x01213500U, 0x01200050U,
                                     0x99999999U, 0U, 0x5000U, 0x0121A000U, 0xA0000000U})
        frequencies += Frequency_Text(static_cast<std::int32_t>(code)) + ' ';
    EXPECT_EQ(frequencies, "121.3 118 121.35 120.005 9999.9999 0 0.5   ");
    Load({'A', 0, 'B', 0xE9});
    EXPECT_EQ(Read_Text(0, 5) + Read_Text(0, -3), "AB\xE9");
    EXPECT_EQ(Read_Long(1), 0x00E94200) << "with the spare byte";
    EXPECT_FALSE(In_Image(2, 4) || In_Image(-1, 1) || In_Image(INT64_MAX, 4));
    EXPECT_TRUE(In_Image(99, 0));
}

static std::string Walked_Names(const Bytes& file) {
    Load(file);
    Walk_Bgl();
    std::string names;
    for (const Airport_Info& airport : airport_table)
        names += airport.airport_name + ' ';
    EXPECT_EQ(airport_count, std::ssize(airport_table));
    return names + std::to_string(airspace_file_count);
}

/// Top-level entry of the airspace section.
constexpr auto Group = [](int kind = 4) { return Record(1, Longs({kind, 0, 0x99999, 0})); };

/// A file of one airport section, from position 256 on, with two airport blocks at 176 and 196, the
/// second of which has the wrong head, and a group of airspaces at 216.
static Bytes Section_File(const Bytes& section) {
    Bytes file;
    Put(file, 0x90, Longs({1, 0, 0, 256, 0, 216}));
    Put(file, 176, Longs({1, 9, 1, 9, 0, 1, 9, 2, 9, 0}));
    Put(file, 216, Join({Group(), Longs({0})}));
    Put(file, 256, Join({section, Longs({0, 0, 0, 0})}));
    return file;
}

static Bytes Entry(std::string_view name, std::int32_t target = 176,
                   std::int32_t target_type = 0x50001, std::int32_t type = 0x30002) {
    return Record(type, Join({Longs({target_type, target}), Text(name)}));
}

static Bytes Entries(std::int32_t last, const Bytes& entries, std::int32_t type = 0x30001) {
    return Record(type, Join({Longs({0, 0, 0, last}), entries}));
}

TEST(Bgl_Walk, Sections_Of_The_Header_Confused) {
    const std::tuple<std::size_t, std::uint8_t, const char*> cases[] = {
        {0x90, 1, "A 1"},    {0x90, 2, "0"},    {0x9D, 0, "1"},  // no airports
        {0x9F, 0x80, "1"},                                       // their offset negative
        {0xA7, 0x80, "A 0"}, {0x9F, 0x40, "0"},  // airports outside the file: no airspaces
    };
    for (const auto& [pos, value, names] : cases) {
        Bytes file = Section_File(Entries(0, Entry("A")));
        file[pos] = value;
        EXPECT_EQ(Walked_Names(file), names) << pos;
    }
    EXPECT_EQ(Walked_Names({}), "0");
}

TEST(Bgl_Walk, Wrong_Entry_Read_Or_Left_Out) {
    const Bytes a = Entry("A");
    const Bytes b = Entry("B");
    const std::tuple<const char*, Bytes, const char*> cases[] = {
        {"the last number is no count", Entries(1, Join({a, b, Entry("C")})), "A B 1"},
        {"a negative last number walks none", Entries(-1, a), "1"},
        {"two lists are one section", Join({Entries(0, a), Entries(0, b)}), "A B 1"},
        {"a gap ends it", Join({Entries(0, a), Entries(0, a, 0x30003), Entries(0, b)}), "A 1"},
        {"another entry costs nothing", Entries(1, Join({Entry("A", 176, 0x50001, 0x30004), b})),
         "B 1"},
        {"no airport as target", Entries(1, Join({Entry("A", 176, 0x50002), b})), "B 1"},
        {"no target", Entries(1, Join({Entry("A", -5), b})), "B 1"},
        {"block without its ones", Entries(1, Join({Entry("A", 196), b})), "B 1"},
        {"target outside", Entries(2, Join({a, Entry("A", 999999), b})), "A 0"},
        {"entry that does not move on", Entries(5, Join({Record(0x30004, Longs({0, 0}), -8), a})),
         "0"},
        {"entry outside", Entries(5, Join({a, Record(0x30004, Longs({0, 0}), INT32_MAX)})), "A 0"},
    };
    for (const auto& [fault, section, names] : cases)
        EXPECT_EQ(Walked_Names(Section_File(section)), names) << fault;
    const Bytes long_name = Section_File(Entries(0, Entry(std::string(70000, 'x'))));
    EXPECT_EQ(Walked_Names(long_name).size(), 65535U + 2) << "the database can hold no more";
}

TEST(Bgl_Walk, Shared_Bytes_Multiply) {
    // All entries point at one long block, which lies behind the section.
    const Bytes points = List(12, std::vector<Bytes>(20000, Point(1, 2, 3)));
    const std::vector<Bytes> entries(200, Entry("A", 256 + 24 + 200 * 17 + 16));
    Walked_Names(Join({Section_File(Entries(199, Join(entries))), Longs({1, 0, 1, 0}),
                       Taxi({points}), Longs({0x11002})}));
    EXPECT_GT(airport_count, 3) << "a few airports may well share a block";
    EXPECT_LT(airport_count, 20) << "each costs memory and work of the block's size";
}

TEST(Airspace_Walk, File_Missed_Or_Listed_Without_Airspaces) {
    const std::tuple<const char*, Bytes, std::int32_t, bool> cases[] = {
        {"two groups are one file", Join({Group(), Group(), Longs({0})}), 1, true},
        {"group behind others", Join({Record(0x30001, Longs({4})), Group(2), Group(), Longs({5})}),
         1, true},
        {"objects are no groups", Join({Group(5), Longs({2})}), 0, true},
        {"another first entry ends it", Join({Longs({2, 0}), Group(), Longs({0})}), 0, true},
        {"a group ahead of the fault", Join({Group(), Record(1, Longs({3}), 9999)}), 1, false},
        {"an entry that does not move on", Join({Record(0x30001, {}, -8), Group()}), 0, false},
        {"cut in an entry", Longs({1, 0}), 0, false},
    };
    for (const auto& [fault, section, files, sound] : cases) {
        Load(section);
        EXPECT_EQ(Walk_Airspace_Section(0), sound) << fault;
        EXPECT_EQ(airspace_file_count, files) << fault;
    }
}

TEST(Magnetic, BadGridSpoilsTheTableOrTheMemory) {
    using enum Magdec_Result;
    constexpr std::size_t whole = 114 + 8 + 130320;  // with the section right behind its field
    const std::tuple<std::size_t, std::int32_t, Magdec_Result> cases[] = {
        {0, 0, Damaged},           {113, 0, Damaged},     {114, 0, No_Grid},
        {whole, -1, No_Grid},      {whole, 115, Damaged}, {whole - 1, 114, Damaged},
        {whole, INT_MAX, Damaged}, {whole, 114, Loaded},  {whole + 5, 119, Loaded}};
    for (const auto& [length, section, result] : cases) {
        SCOPED_TRACE(testing::Message() << length << " bytes, section " << section);
        bgl_bytes.assign(length + 1, 7);
        if (length > 113) Put(bgl_bytes, 110, Longs({section}));
        magnetic_table.fill(77);
        EXPECT_EQ(Take_Grid(), result);
        EXPECT_EQ(std::ranges::count(magnetic_table, 77), result == Loaded ? 1 : 65161);
        EXPECT_EQ(magnetic_table[65160], 77) << "the spare one stays";
    }
    magnetic_table.fill(0);  // as other tests find it
}
