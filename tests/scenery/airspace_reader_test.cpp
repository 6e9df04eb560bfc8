#include "scenery/airspace_reader.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <gtest/gtest.h>
#include <iomanip>
#include <random>
#include <sstream>

#include "scenery/bgl_reader.h"
#include "scenery/magnetic.h"
#include "selection/picks.h"
#include "tests/scenery/bgl_builder.h"

namespace skerrand {
namespace {

using bgl::Bytes, bgl::Join, bgl::Longs, bgl::Record;
using Fields = std::array<std::int32_t, 6>;  // the longs from offset 8 of a record on
using Table = std::vector<Airspace_Info>;

constexpr std::int32_t Bounds = 0x1000B, Name = 0x10006, Start = 0x12002, Ends_Object = 0x12004,
                       Circle = 0x12008, Frequency = 0x20001;
/// In the order of their kinds; the last five make no points.
constexpr std::array Types{Start,   0x12001,   Circle, 0x12006,     0x12007, 0x12005,
                           0x12003, Frequency, Name,   Ends_Object, Bounds};

Bytes Body(const Fields& f) {
    return Longs({f[0], f[1], f[2], f[3], f[4], f[5]});
}

Bytes Object(const Bytes& records) {
    return Record(1, Join({Longs({5, 0}), records}));
}

bool Search(const Bytes& image) {
    departure_airspaces.clear();
    destination_airspaces.clear();
    bgl_bytes = image;
    return Walk_Airspace_Group(0);
}

double Lat(std::int32_t stored) {
    return static_cast<double>(std::nearbyint(stored * 900000.0L / 10001750)) / 1e4;
}

double Lon(std::int32_t stored) {
    return static_cast<double>(std::nearbyint(stored * 3600000.0L / 4294967296)) / 1e4;
}

std::string Without_Zeros(Bytes bytes) {
    std::erase(bytes, 0);
    return {bytes.begin(), bytes.end()};
}

/// What a record that is no box does, from its fields and the text behind them.
void Apply(std::int32_t type, const Fields& f, const Bytes& text, Airspace_Info& airspace) {
    const auto kind = std::ranges::find(Types, type) - Types.begin();
    const bool circle = type == Circle;
    if (kind < 6) {
        airspace.boundary.push_back({static_cast<Boundary_Kind>(kind), circle ? 0 : Lat(f[1]),
                                     circle ? 0 : Lon(f[3]), circle ? f[0] : 0});
    }
    if (circle || type == Start) {
        airspace.low_limit = circle ? f[2] : f[4];
        airspace.high_limit = circle ? f[3] : f[5];
    }
    if (type == Name) {
        airspace.name += airspace.name.empty() ? "" : "  ";
        airspace.name += Without_Zeros(Join({Body(f), text}));
    }
    if (type == Frequency) {
        std::ostringstream digits, mhz;
        digits << std::hex << f[0];
        mhz << std::setprecision(8) << std::stod(digits.str()) / 10000 << " Mhz  ";
        airspace.freq_text += mhz.str();
        airspace.facility_text = Without_Zeros(Join({Longs({f[2], f[3], f[4], f[5]}), text}));
    }
}

std::string Describe(const Table& table) {
    std::ostringstream out;
    for (const Airspace_Info& a : table) {
        out << a.low_limit << '/' << a.high_limit << '/' << a.freq_text << '/' << a.name << '/'
            << a.facility_text << '/' << a.class_label << std::setprecision(17);
        for (const auto& [kind, lat, lon, radius] : a.boundary)
            out << '\n' << static_cast<int>(kind) << ' ' << lat << ' ' << lon << ' ' << radius;
        out << "\n\n";
    }
    return out.str();
}

class Airspace_Reader : public testing::Test {
  protected:
    void SetUp() override {
        departure_airport.lat = departure_airport.lon = 45;
        destination_airport.lat = destination_airport.lon = 30;
        magnetic_table.fill(0);
    }
};

TEST_F(Airspace_Reader, RecordsReachAnotherAirspaceThanTheirOwn) {
    std::mt19937 random(20);
    for (int round = 0; round < 300; ++round) {
        std::array<Table, 2> expected;
        Bytes group;
        for (int object = 0; object < 4; ++object) {
            std::array<bool, 2> hit{};
            bool ended = false;
            Bytes records;
            for (int i = 0; i < 8; ++i) {
                const std::int32_t type = i == 1 ? Bounds : Types[random() % Types.size()];
                Fields f;
                for (std::int32_t& field : f)
                    field = static_cast<std::int32_t>(random());
                if (type == Frequency) f[0] &= 0x77777777;
                if (type == Bounds) f = {f[0] >> 9, f[1] >> 4, f[2] >> 5, f[3] >> 1, 0, 0};
                const Bytes text(random() % 3, 'x');
                records = Join({records, Record(type, Join({Body(f), text}))});
                ended = ended || type == Ends_Object;
                for (std::size_t side = 0; side < 2 && !ended; ++side) {
                    const double at = side == 0 ? 45 : 30;
                    if (type != Bounds) {
                        if (hit[side]) Apply(type, f, text, expected[side].back());
                    } else if (Lat(f[0]) < at && at < Lat(f[2]) && Lon(f[1]) < at &&
                               at < Lon(f[3])) {
                        expected[side].emplace_back();
                        hit[side] = true;
                    }
                }
            }
            // Between the objects, one entry to step over and one of another kind.
            group = Join({group, Record(0x30001, Longs({5})), Object(records),
                          Record(1, Longs({4, 0, Bounds, 16, 0, 0, 1 << 30, 1 << 30}))});
        }
        ASSERT_TRUE(Search(Join({group, Longs({2})})));
        ASSERT_EQ(Describe(departure_airspaces), Describe(expected[0])) << round;
        ASSERT_EQ(Describe(destination_airspaces), Describe(expected[1])) << round;
    }
}

TEST_F(Airspace_Reader, EdgeOrCrossedMeridianEncloses) {
    constexpr std::int32_t lat_30 = 3333917, lon_30 = 357913941, lat_45 = 5000875, lon_45 = 1 << 29;
    const std::tuple<Fields, bool, bool> cases[] = {
        {{0, 0, 1 << 24, 1 << 30}, true, true},
        {{lat_30, 0, 1 << 24, 1 << 30}, true, false},
        {{0, lon_30, 1 << 24, 1 << 30}, true, false},
        {{0, 1 << 30, 1 << 24, -0x70000000}, false, false},
        // Within half of a ten-thousandth of a degree the airport stands on the edge.
        {{0, 0, lat_45 + 5, 1 << 30}, false, true},
        {{0, 0, lat_45 + 6, lon_45 + 600}, true, true},
        {{0, 0, 1 << 24, lon_45 + 590}, false, true},
    };
    for (const auto& [box, departure, destination] : cases) {
        EXPECT_FALSE(Search(Object(Record(Bounds, Body(box)))));
        EXPECT_EQ(departure_airspaces.size(), departure) << testing::PrintToString(box);
        EXPECT_EQ(destination_airspaces.size(), destination) << testing::PrintToString(box);
    }
}

TEST_F(Airspace_Reader, CenterIsTurnedToTheTrueCourse) {
    magnetic_table.fill(1821);  // 10 degrees east
    // From 20 to 50 and from 20 to 60 degrees.
    Search(Object(Record(Bounds, Body({2222611, 238609294, 5556528, 715827883}))));
    magnetic_table.fill(0);
    // 1306 miles from (50, 20) along 119 - 10 degrees; along 119 it would be 36.57439, 43.81968.
    EXPECT_EQ(departure_airspaces.at(0).center_lat, 39.33276);
    EXPECT_EQ(destination_airspaces.at(0).center_lon, 46.95618);
}

TEST_F(Airspace_Reader, TruncationLosesWhatStandsAhead) {
    const Bytes start = Record(Start, Body({}));
    const Bytes all = Object(Join({Record(Bounds, Body({0, 0, 1 << 24, 1 << 30})), start, start}));
    for (std::size_t size = 0; size < all.size(); ++size) {
        EXPECT_FALSE(Search(bgl::Prefix(all, size)));
        EXPECT_EQ(departure_airspaces.size(), size >= 40 ? 1 : 0) << size;
        if (size >= 48) {
            EXPECT_EQ(departure_airspaces[0].boundary.size(), (size - 48) / 32);
        }
    }
}

TEST_F(Airspace_Reader, OverlappingObjectsTakeQuadraticTime) {
    const std::vector<Bytes> group(4000, Longs({1, 24, 5, 0, 0x12003, 24, 0, 0}));
    bgl_bytes = Join({Join(group), Longs({2, 0, 0, 0, 2})});
    EXPECT_TRUE(Walk_Airspace_Group(0));
    Start_Allowance();
    EXPECT_FALSE(Walk_Airspace_Group(0));
    End_Allowance();
}

}  // namespace
}  // namespace skerrand
