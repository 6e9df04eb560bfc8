#include "scenery/bgl_walk.h"

#include <cmath>
#include <gtest/gtest.h>

#include "scenery/airspace_reader.h"
#include "scenery/bgl_reader.h"
#include "tests/scenery/bgl_builder.h"

namespace skerrand {
namespace {

using namespace bgl;

TEST(Bgl_Reader, Single_Bits_Misread) {
    const std::pair<std::uint32_t, double> cases[] = {{0x00000000, 0.0},
                                                      {0x3F800000, 1.0},
                                                      {0xC2F6E979, -123.45600128173828},
                                                      {0x7F7FFFFF, 3.4028234663852886e38},
                                                      {0x80000000, -std::ldexp(1.0, -127)},
                                                      {0x00400000, std::ldexp(1.5, -127)},
                                                      {0x7F800000, 0.0},
                                                      {0xFFC00001, 0.0}};
    for (const auto& [bits, value] : cases)
        EXPECT_EQ(Bits_To_Single(static_cast<std::int32_t>(bits)), value) << bits;
}

TEST(Bgl_Reader, Read_Leaves_The_Image) {
    Load({1, 2, 3});
    EXPECT_TRUE(In_Image(0, 4));  // with the spare byte
    EXPECT_EQ(Read_Long(0), 0x00030201);
    EXPECT_FALSE(In_Image(1, 4));
    EXPECT_FALSE(In_Image(-1, 1));
    EXPECT_FALSE(In_Image(0x7FFFFFFFFFFFFFFF, 4));
    EXPECT_TRUE(In_Image(99, 0));
}

TEST(Bgl_Reader, Zero_Byte_Ends_A_Text) {
    Load({'A', 0, 'B', 0xE9, 0});
    EXPECT_EQ(Read_Text(0, 5), "AB\xE9");
    EXPECT_EQ(Read_Text(0, -3), "");
}

TEST(Bgl_Units, Frequency_Not_In_Shortest_Form) {
    const std::pair<std::uint32_t, const char*> cases[] = {
        {0x01213000, "121.3"},   {0x01180000, "118"},       {0x01213500, "121.35"},
        {0x01200050, "120.005"}, {0x99999999, "9999.9999"}, {0, "0"},
        {0x00005000, "0.5"},     {0x0121A000, ""},          {0xA0000000, ""}};
    for (const auto& [code, text] : cases)
        EXPECT_EQ(Frequency_Text(static_cast<std::int32_t>(code)), text) << code;
}

std::string Walked_Names(const Bytes& file) {
    Load(file);
    Walk_Bgl();
    std::string names;
    for (const Airport_Info& airport : airport_table)
        names += airport.airport_name + ' ';
    EXPECT_EQ(airport_count, std::ssize(airport_table));
    return names + std::to_string(airspace_file_count);
}

/// A file of one airport section, from position 300 on, with two airport blocks at 200 and 220, the
/// second of which has the wrong head.
Bytes Section_File(const Bytes& section) {
    Bytes file;
    Put(file, 0x90, Longs({1, 0, 0, 300, 0, 0}));
    Put(file, 200, Longs({1, 9, 1, 9, 0, 1, 9, 2, 9, 0}));
    Put(file, 300, Join({section, Longs({0, 0, 0, 0})}));
    return file;
}

Bytes Entry(std::string_view name, std::int32_t target = 200, std::int32_t target_type = 0x50001,
            std::int32_t type = 0x30002) {
    return Record(type, Join({Longs({target_type, target}), Text(name)}));
}

Bytes Entries(std::int32_t last, const Bytes& entries, std::int32_t type = 0x30001) {
    return Record(type, Join({Longs({0, 0, 0, last}), entries}));
}

TEST(Bgl_Walk, Sections_Of_The_Header_Confused) {
    const Bytes sample = Sample();
    const auto with = [&sample](std::size_t pos, std::uint8_t value) {
        Bytes file = sample;
        file[pos] = value;
        return file;
    };
    EXPECT_EQ(Walked_Names(sample), "North Front Strip Nothing 1");
    EXPECT_EQ(Walked_Names(with(0x90, 2)), "0");
    EXPECT_EQ(Walked_Names(with(0x9F, 0x80)), "1") << "negative offset of the airports";
    EXPECT_EQ(Walked_Names(with(0xA7, 0x80)), "North Front Strip Nothing 0");
    EXPECT_EQ(Walked_Names(with(0x9F, 0x40)), "0") << "airports outside the file: no airspaces";
    EXPECT_EQ(Walked_Names(Image({}, Group())), "1");
    EXPECT_EQ(Walked_Names({}), "0");
}

TEST(Bgl_Walk, Wrong_Entry_Read_Or_Left_Out) {
    const Bytes a = Entry("A");
    const Bytes b = Entry("B");
    const std::tuple<const char*, Bytes, const char*> cases[] = {
        {"the last number is no count", Entries(1, Join({a, b, Entry("C")})), "A B 0"},
        {"a negative last number walks none", Entries(-1, a), "0"},
        {"two lists are one section", Join({Entries(0, a), Entries(0, b)}), "A B 0"},
        {"a gap ends it", Join({Entries(0, a), Entries(0, a, 0x30003), Entries(0, b)}), "A 0"},
        {"another first type ends it", Entries(0, a, 0x30000), "0"},
        {"another entry costs nothing", Entries(1, Join({Entry("A", 200, 0x50001, 0x30004), b})),
         "B 0"},
        {"no airport as target", Entries(1, Join({Entry("A", 200, 0x50002), b})), "B 0"},
        {"no target", Entries(1, Join({Entry("A", -5), b})), "B 0"},
        {"block without its ones", Entries(1, Join({Entry("A", 220), b})), "B 0"},
        {"target outside", Entries(2, Join({a, Entry("A", 999999), b})), "A 0"},
        {"the same airport twice", Entries(1, Join({a, a})), "A A 0"},
        {"zero byte in a name", Entries(0, Entry({"A\0B", 3})), "AB 0"},
        {"entry that does not move on", Entries(5, Join({Record(0x30004, Longs({0, 0}), -8), a})),
         "0"},
        {"entry outside", Entries(5, Join({a, Record(0x30004, Longs({0, 0}), 0x7FFFFFFF)})), "A 0"},
        {"list that goes back", Join({Record(0x30001, Join({Longs({0, 0, 0, 0}), a}), -99), b}),
         "A 0"},
    };
    for (const auto& [fault, section, names] : cases)
        EXPECT_EQ(Walked_Names(Section_File(section)), names) << fault;
}

TEST(Bgl_Walk, Long_Name_Breaks_The_Database) {
    const Bytes file = Section_File(Entries(0, Entry(std::string(70000, 'x'))));
    EXPECT_EQ(Walked_Names(file), std::string(65535, 'x') + " 0");
}

TEST(Bgl_Walk, Truncated_File_Gives_Other_Airports) {
    const Bytes sample = Sample();
    Load(sample);
    Walk_Bgl();
    const std::vector<Airport_Info> whole = airport_table;
    for (std::size_t length = 0; length < sample.size(); ++length) {
        Load(Prefix(sample, length));
        Walk_Bgl();
        ASSERT_LE(airport_table.size(), whole.size());
        for (std::size_t i = 0; i + 1 < airport_table.size(); ++i)
            EXPECT_EQ(airport_table[i], whole[i]) << length;
    }
}

// Each of these files would ask for many times its size in work and memory.
TEST(Bgl_Walk, Shared_Bytes_Multiply) {
    const Bytes points = Points(std::vector<Bytes>(20000, Point(1, 2, 3)));
    const Bytes head = Longs({1, 0, 1, 0});

    // All entries point at one long block, which lies behind the section.
    const std::vector<Bytes> entries(200, Entry("A", 300 + 24 + 200 * 17 + 16));
    Load(Join({Section_File(Entries(199, Join(entries))), head, Taxi({points}), Longs({0x11002})}));
    Walk_Bgl();
    EXPECT_GT(airport_count, 3) << "a few airports may well share a block";
    EXPECT_LT(airport_count, 20);

    // Each taxi block is a short record, but its list reaches over all those behind it.
    const Bytes a = Join({Entry("A", 300 + 24 + 2 * 17 + 16), Entry("B")});
    const std::vector<Bytes> blocks(1000, Longs({0x11001, 8, 20000, 12}));
    Load(Join({Section_File(Entries(1, a)), head, Join(blocks), Longs({0x11002}), points}));
    Walk_Bgl();
    ASSERT_EQ(airport_count, 1) << "a fault of the file";
    EXPECT_EQ(airport_table[0].taxi_points.size(), 20000U);
}

TEST(Airspace_Walk, File_Missed_Or_Listed_Without_Airspaces) {
    const Bytes passed = Record(0x30001, Longs({4}));
    const struct {
        const char* fault;
        Bytes section;
        std::int32_t files;
        bool sound;
    } cases[] = {
        {"two groups are one file", Join({Group(), Group(), Longs({0})}), 1, true},
        {"group behind others", Join({passed, Group(2), Group(), Longs({5})}), 1, true},
        {"objects are no groups", Join({Group(5), Longs({2})}), 0, true},
        {"another first entry ends it", Join({Longs({2, 0}), Group(), Longs({0})}), 0, true},
        {"a group ahead of the fault", Join({Group(), Record(1, Longs({3}), 9999)}), 1, false},
        {"an entry that does not move on", Join({Record(0x30001, {}, -8), Group()}), 0, false},
        {"cut in an entry", Longs({1, 0}), 0, false},
    };
    for (const auto& c : cases) {
        Load(c.section);
        EXPECT_EQ(Walk_Airspace_Section(0), c.sound) << c.fault;
        EXPECT_EQ(airspace_file_count, c.files) << c.fault;
    }
}

TEST(Airspace_Walk, Wrong_Mode_Or_File_Compared) {
    const auto walk = [](const char* file, bool first, bool ready) {
        current_file = file;
        first_run = first;
        database_ready = ready;
        Walk_Bgl();
    };
    Load(Sample());
    walk("search", false, true);
    EXPECT_TRUE(airport_table.empty());
    walk("a", false, false);
    walk("a", true, false);
    walk("b", true, true);
    walk("a", true, false);
    EXPECT_EQ(airspace_files, (std::vector<std::string>{"a", "b", "a"}));
}

}  // namespace
}  // namespace skerrand
