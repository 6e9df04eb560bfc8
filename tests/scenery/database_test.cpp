#include "scenery/database.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

#include "tests/scenery/bgl_builder.h"

namespace skerrand {
namespace {

using bgl::Bytes, bgl::Join, bgl::Longs, bgl::Prefix;

Bytes Word(std::int64_t value) {
    return Prefix(Longs({value}), 2);
}
Bytes Doubles(std::initializer_list<double> values) {
    Bytes bytes;
    for (const double value : values) {
        const auto bits = std::bit_cast<std::int64_t>(value);
        bytes = Join({bytes, Longs({bits, bits >> 32})});
    }
    return bytes;
}
Bytes Text(std::string_view text) {
    return Join({Word(std::ssize(text)), bgl::Text(text)});
}
Bytes Array(std::int32_t size) {
    return Join({Word(1), Longs({size, 0})});
}

constexpr std::size_t Last_Record = 64;

/// An airport with one of everything, every field different.
Airport_Info Full_Airport() {
    const std::vector<Runway_Info> runways{{"9L", "27R", 3, 4, 5, 6, 7, 8, 9, 10, 11}};
    return {"Name",
            "ICAO",
            1.5,
            -2.5,
            "c",
            "g",
            "t",
            "d",
            "a",
            "n",
            "i",
            runways,
            {{"ILS", 12, 13, 14, "109.5"}},
            {{15, 16, 17}},
            {{"GATE 1", 18, 19, 20}},
            {{21, 22, 23, "B"}}};
}

std::vector<Airport_Info> Sample() {
    std::vector<Airport_Info> airports(3, Full_Airport());
    airports[1] = {};
    airports[2].icao_id = "caf\xE9";
    airports[2].taxi_points.resize(3);
    airports[2].runways.clear();
    return airports;
}

TEST(Database, FieldOutOfItsPlace) {
    const Bytes runways =
        Join({Array(2), Text("9L"), Text("27R"), Doubles({3, 4, 5, 6}), Longs({7}), Word(8),
              Word(9), Longs({10, 11}), Bytes(2 + 2 + 48), Longs({1})});
    const Bytes ils = Join({Array(2), Text("ILS"), Doubles({12, 13}), Word(14), Text("109.5"),
                            Bytes(2 + 18 + 2), Longs({1})});
    const Bytes points = Join({Array(1), Longs({15}), Doubles({16, 17}), Longs({1})});
    const Bytes parkings = Join({Array(1), Text("GATE 1"), Doubles({18, 19}), Longs({20, 1})});
    const Bytes paths = Join({Array(1), Longs({21, 22, 23}), Text("B"), Longs({1})});
    const Bytes expected = Join({Text("Name"), Text("ICAO"), Doubles({1.5, -2.5}), Text("c"),
                                 Text("g"), Text("t"), Text("d"), Text("a"), Text("n"), Text("i"),
                                 runways, ils, points, parkings, paths, Bytes(Last_Record)});
    EXPECT_EQ(Airport_Table_Bytes(std::vector{Full_Airport()}), expected);
    EXPECT_EQ(Airport_Table_Bytes({}), Bytes(Last_Record));
    EXPECT_EQ(Airspace_List_Bytes(std::vector<std::string>{"a"}), Join({Text("a"), Text("")}));
    EXPECT_EQ(Airspace_List_Bytes({}), Bytes(2));
}

TEST(Database, CutFileTakenForWhole) {
    const Bytes whole = Airport_Table_Bytes(Sample());
    std::vector<Airport_Info> airports;
    for (std::size_t length = 0; length <= whole.size(); ++length) {
        const bool expected = length == whole.size() || length == whole.size() - Last_Record;
        EXPECT_EQ(Parse_Airport_Table(Prefix(whole, length), 3, airports), expected) << length;
        EXPECT_EQ(airports, expected ? Sample() : std::vector<Airport_Info>()) << length;
    }
    const std::vector<std::string> sample = {"one.bgl", "", "three.bgl"};
    const Bytes list = Airspace_List_Bytes(sample);
    std::vector<std::string> files;
    for (std::size_t length = 0; length <= list.size(); ++length) {
        const bool expected = length == list.size() || length == list.size() - 2;
        EXPECT_EQ(Parse_Airspace_List(Prefix(list, length), 3, files), expected) << length;
        EXPECT_EQ(files, expected ? sample : std::vector<std::string>()) << length;
    }
}

TEST(Database, CountThatTheFileCannotHold) {
    const Bytes bytes = Airport_Table_Bytes(Sample());
    std::vector<Airport_Info> airports;
    for (const std::int32_t count : {std::numeric_limits<std::int32_t>::min(), -1, 0, 2, 5,
                                     std::numeric_limits<std::int32_t>::max()}) {
        EXPECT_FALSE(Parse_Airport_Table(bytes, count, airports)) << count;
    }
    EXPECT_TRUE(Parse_Airport_Table(bytes, 4, airports)) << "the empty record for an airport";
    std::vector<std::string> files;
    EXPECT_FALSE(Parse_Airspace_List(Airspace_List_Bytes(std::vector<std::string>{""}), 0, files));
}

TEST(Database, DamageInsideARecordTakenForData) {
    const Bytes good = Airport_Table_Bytes(std::vector{Full_Airport()});
    const std::size_t runways = 2 + 4 + 2 + 4 + 16 + 7 * 3;
    const Bytes no_number = Doubles({std::nan("")});
    const Bytes infinite = Doubles({std::numeric_limits<double>::infinity()});
    const std::tuple<const char*, std::size_t, Bytes> cases[] = {
        {"latitude", 12, no_number},
        {"longitude", 20, infinite},
        {"dimensions", runways, Word(2)},
        {"array without dimensions, but with elements", runways, Word(0)},
        {"elements but none in use", runways + 2, Longs({1})},
        {"element too many", runways + 2, Longs({3})},
        {"negative size", runways + 2, Longs({-2})},
        {"huge size", runways + 2, Longs({0x7FFFFFFF})},
        {"lower bound", runways + 6, Longs({1})},
        {"runway's end", runways + 10 + 9 + 24, infinite},
        {"count of runways", runways + 10 + 57 + 52, Longs({2})},
        {"record behind the last", good.size() - Last_Record, Word(63)},
    };
    std::vector<Airport_Info> airports;
    ASSERT_TRUE(Parse_Airport_Table(good, 1, airports));
    for (const auto& [what, at, bytes] : cases) {
        Bytes bad = good;
        bgl::Put(bad, at, bytes);
        EXPECT_FALSE(Parse_Airport_Table(bad, 1, airports)) << what;
        EXPECT_TRUE(airports.empty()) << what;
    }
    const Bytes only_spare = Join({Bytes(34), Array(1), Bytes(52 + 4 + 4 * 6 + Last_Record)});
    EXPECT_FALSE(Parse_Airport_Table(only_spare, 1, airports));
}

TEST(Database, ChangedByteReadsBackOtherwiseTheSecondTime) {
    const Bytes good = Airport_Table_Bytes(Sample());
    std::vector<Airport_Info> airports, again;
    for (std::size_t at = 0; at < good.size(); ++at) {
        for (const char change : "\x01\x02\x40\x80\xFF") {
            Bytes bad = good;
            bad[at] = static_cast<std::uint8_t>(bad[at] ^ change);
            if (!Parse_Airport_Table(bad, 3, airports)) continue;
            ASSERT_TRUE(Parse_Airport_Table(Airport_Table_Bytes(airports), 3, again)) << at;
            ASSERT_EQ(again, airports) << at;
        }
    }
}

TEST(Database, TextTooLongForItsLengthShiftsTheFieldsBehind) {
    std::vector<Airport_Info> airports = Sample();
    airports[0].airport_name.assign(65536, 'x');
    airports[0].taxi_paths[0].name.assign(70000, 'y');
    std::vector<Airport_Info> read;
    ASSERT_TRUE(Parse_Airport_Table(Airport_Table_Bytes(airports), 3, read));
    airports[0].airport_name.resize(65535);
    airports[0].taxi_paths[0].name.resize(65535);
    EXPECT_EQ(read, airports);
}

}  // namespace
}  // namespace skerrand
