#include "selection/airspace_search.h"

#include <filesystem>
#include <gtest/gtest.h>

#include "chart/current_chart.h"
#include "selection/picks.h"
#include "tests/scenery/bgl_builder.h"

namespace skerrand {
namespace {

using namespace bgl;

/// An airspace round the place 45, 45 with its limits and, unless it is null, a frequency's text.
Bytes Airspace(std::int32_t low, std::int32_t high, const char* facility) {
    const Bytes bounds = Record(0x1000B, Longs({0, 0, 1 << 24, 1 << 30}));
    const Bytes start = Record(0x12002, Longs({0, 0, 0, 0, low, high}));
    const Bytes freq =
        facility ? Record(0x20001, Join({Longs({0x01243000, 0}), bgl::Text(facility)})) : Bytes();
    return Record(1, Join({Longs({5, 0}), bounds, start, freq}));
}

std::string Saved(const char* name, const Bytes& bytes) {
    const std::string path = testing::TempDir() + "/" + name;
    EXPECT_EQ(platform::Write_File(path, bytes), "");
    return path;
}

std::string progress;

/// Both airports stand at that place.
Unread_Files Search(const std::vector<std::string>& files) {
    first_run = false;
    database_ready = true;
    for (Airport_Info* airport : {&departure_airport, &destination_airport})
        airport->lat = airport->lon = 45;
    current_airspaces.resize(3);
    airspace_files = files;
    progress.clear();
    Unread_Files unread = Search_Airspaces([](int done, int of) {
        progress += std::to_string(done) + '/' + std::to_string(of) + ' ';
    });
    EXPECT_TRUE(airspace_files.empty() && current_airspaces.empty());
    return unread;
}

TEST(Airspace_Search, LabelOrDiscWrong) {
    const std::tuple<std::int32_t, std::int32_t, const char*, const char*> cases[] = {
        {0, 2500, nullptr, "Airspace Class D"},  {2500, 2501, nullptr, "Airspace Class C"},
        {2501, 0, nullptr, "Airspace Class C"},  {4000, 4001, nullptr, "Airspace Class B"},
        {4001, -1, nullptr, "Airspace Class B"}, {INT32_MIN, -1, nullptr, "Airspace Class D"},
        {9000, 9000, "FIR", "ARTCC/FIR"},        {1000, 2000, "", "Airspace Class D"}};
    Bytes objects;
    for (const auto& [low, high, facility, label] : cases)
        objects = Join({objects, Airspace(low, high, facility)});
    departure_airport.departure_freq = "124.3";
    departure_airport.approach_freq = "118";
    Search({Saved("ladder.bgl", Image({}, Record(1, Join({Longs({4, 0}), objects}))))});
    ASSERT_EQ(departure_airspaces.size(), std::size(cases) + 1);
    EXPECT_EQ(destination_airspaces.size(), std::size(cases)) << "no frequency, no disc";
    for (std::size_t i = 0; i < std::size(cases); ++i)
        EXPECT_EQ(departure_airspaces[i].class_label, std::get<3>(cases[i])) << i;
    const Airspace_Info& disc = departure_airspaces.back();
    EXPECT_EQ(disc.class_label, "TRACON (Departure/Approach)");
    EXPECT_EQ(disc.freq_text, "124.3 Mhz  118 Mhz  ");
    EXPECT_EQ(disc.low_limit + disc.high_limit, 10000);
    ASSERT_EQ(disc.boundary.size(), 2);
    EXPECT_EQ(disc.boundary[0].lat, 45);
    EXPECT_EQ(disc.boundary[1].radius, 20);
    destination_airport.approach_freq = "119.1";
    departure_airport.approach_freq.clear();
    Search({});
    EXPECT_EQ(departure_airspaces.at(0).freq_text, "124.3 Mhz  ");
    EXPECT_EQ(destination_airspaces.at(0).freq_text, "119.1 Mhz  ");
    departure_airport = destination_airport = {};
}

TEST(Airspace_Search, FileUnreadOrReadForAnother) {
    Bytes bytes = Image({}, Record(1, Join({Longs({4, 0}), Airspace(0, 0, nullptr)})));
    const std::string sound = Saved("sound.bgl", bytes);
    bytes[0x76] = 0;
    const std::string foreign = Saved("foreign.bgl", bytes),
                      twin = testing::TempDir() + "/FOREIGN.bgl";
    std::filesystem::copy(sound, twin);
    EXPECT_EQ(Search({foreign, Saved("short.bgl", Bytes(0x79)), sound}).count, 0);
    EXPECT_EQ(departure_airspaces.size(), 2) << "a list in lower case stands for both";
    std::filesystem::remove(twin);
    const Unread_Files unread = Search({"no such 1", sound, "no such 2", foreign, sound});
    EXPECT_EQ(departure_airspaces.size(), 2);
    EXPECT_EQ(unread.count, 2);
    EXPECT_EQ(unread.first, "no such 1");
    EXPECT_EQ(progress, "0/5 1/5 2/5 3/5 4/5 5/5 ");
}

}  // namespace
}  // namespace skerrand
