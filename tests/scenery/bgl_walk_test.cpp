#include "scenery/bgl_walk.h"

#include <algorithm>
#include <gtest/gtest.h>

#include "app/settings.h"
#include "scenery/airspace_walk.h"
#include "scenery/bgl_reader.h"
#include "scenery/tables.h"
#include "tests/scenery/bgl_builder.h"

namespace skerrand {
namespace {

using namespace bgl;

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
    Bytes file(168);
    const auto put = [&file](std::size_t pos, const Bytes& bytes) {
        file.resize(std::max(file.size(), pos + bytes.size()));
        std::copy(bytes.begin(), bytes.end(), file.begin() + static_cast<std::ptrdiff_t>(pos));
    };
    put(0x90, Longs({1, 0, 0, 300}));
    put(200, Longs({1, 9, 1, 9, 0, 1, 9, 2, 9, 0}));
    put(300, Join({section, Longs({0, 0, 0, 0})}));
    return file;
}

Bytes Entry(std::string_view name, std::int32_t target = 200, std::int32_t target_type = 0x50001,
            std::int32_t type = 0x30002) {
    return Record(type, Join({Longs({target_type, target}), Text(name)}));
}

Bytes List(std::int32_t last, const Bytes& entries, std::int32_t type = 0x30001) {
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
    const struct {
        const char* fault;
        Bytes section;
        const char* names;
    } cases[] = {
        {"the last number is no count", List(1, Join({a, b, Entry("C")})), "A B 0"},
        {"a negative last number walks none", List(-1, a), "0"},
        {"two lists are one section", Join({List(0, a), List(0, b)}), "A B 0"},
        {"a gap ends it", Join({List(0, a), List(0, a, 0x30003), List(0, b)}), "A 0"},
        {"another first type ends it", List(0, a, 0x30000), "0"},
        {"another entry costs nothing", List(1, Join({Entry("A", 200, 0x50001, 0x30004), b})),
         "B 0"},
        {"no airport as target", List(1, Join({Entry("A", 200, 0x50002), b})), "B 0"},
        {"no target", List(1, Join({Entry("A", -5), b})), "B 0"},
        {"block without its ones", List(1, Join({Entry("A", 220), b})), "B 0"},
        {"target outside", List(2, Join({a, Entry("A", 999999), b})), "A 0"},
        {"the same airport twice", List(1, Join({a, a})), "A A 0"},
        {"zero byte in a name", List(0, Entry({"A\0B", 3})), "AB 0"},
        {"entry that does not move on", List(5, Join({Record(0x30004, Longs({0, 0}), -8), a})),
         "0"},
        {"entry outside", List(5, Join({a, Record(0x30004, Longs({0, 0}), 0x7FFFFFFF)})), "A 0"},
        {"list that goes back", Join({Record(0x30001, Join({Longs({0, 0, 0, 0}), a}), -99), b}),
         "A 0"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(Walked_Names(Section_File(c.section)), c.names) << c.fault;
}

TEST(Bgl_Walk, Search_Adds_Airports_Or_Files) {
    Load(Sample());
    first_run = false;
    database_ready = true;
    Walk_Bgl();
    EXPECT_TRUE(airport_table.empty());
    EXPECT_TRUE(airspace_files.empty());
}

TEST(Bgl_Walk, Long_Name_Breaks_The_Database) {
    Load(Section_File(List(0, Entry(std::string(70000, 'x')))));
    Walk_Bgl();
    ASSERT_EQ(airport_count, 1);
    EXPECT_EQ(airport_table[0].airport_name.size(), 65535U);
}

TEST(Bgl_Walk, Truncated_File_Gives_Other_Airports) {
    const Bytes sample = Sample();
    Load(sample);
    Walk_Bgl();
    const std::vector<Airport_Info> whole = airport_table;
    for (std::size_t length = 0; length < sample.size(); ++length) {
        Load({sample.begin(), sample.begin() + static_cast<std::ptrdiff_t>(length)});
        Walk_Bgl();
        ASSERT_LE(airport_table.size(), whole.size());
        for (std::size_t i = 0; i < airport_table.size(); ++i) {
            const bool cut = i + 1 == airport_table.size();
            EXPECT_TRUE(cut || airport_table[i] == whole[i]) << length;
            EXPECT_EQ(airport_table[i].airport_name, whole[i].airport_name) << length;
        }
    }
}

// Each of these files would ask for many times its size in work and memory.
TEST(Bgl_Walk, Shared_Bytes_Multiply) {
    const Bytes points = Points(std::vector<Bytes>(20000, Point(1, 2, 3)));
    const Bytes head = Longs({1, 0, 1, 0});

    // All entries point at one long block, which lies behind the section.
    const std::vector<Bytes> entries(200, Entry("A", 300 + 24 + 200 * 17 + 16));
    Load(Join({Section_File(List(199, Join(entries))), head, Taxi({points}), Longs({0x11002})}));
    Walk_Bgl();
    EXPECT_GT(airport_count, 3) << "a few airports may well share a block";
    EXPECT_LT(airport_count, 20);

    // Each taxi block is a short record, but its list reaches over all those behind it.
    const Bytes a = Join({Entry("A", 300 + 24 + 2 * 17 + 16), Entry("B")});
    const std::vector<Bytes> blocks(1000, Longs({0x11001, 8, 20000, 12}));
    Load(Join({Section_File(List(1, a)), head, Join(blocks), Longs({0x11002}), points}));
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
        {"group behind entries to step over", Join({passed, Group(2), Group(), Longs({5})}), 1,
         true},
        {"objects are no groups", Join({Group(5), Longs({2})}), 0, true},
        {"another first entry ends the section", Join({Longs({2, 0}), Group(), Longs({0})}), 0,
         true},
        {"a group ahead of the fault counts", Join({Group(), Record(1, Longs({3}), 9999), Group()}),
         1, false},
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
    Load(Join({Group(), Longs({0})}));
    const auto walk = [](const char* file, bool first, bool ready) {
        current_file = file;
        first_run = first;
        database_ready = ready;
        Walk_Airspace_Section(0);
    };
    walk("search", false, true);
    EXPECT_TRUE(airspace_files.empty());
    walk("a", false, false);
    walk("a", true, false);
    walk("b", true, true);
    walk("a", true, false);
    EXPECT_EQ(airspace_files, (std::vector<std::string>{"a", "b", "a"}));
    EXPECT_EQ(airspace_file_count, 3);
}

}  // namespace
}  // namespace skerrand
