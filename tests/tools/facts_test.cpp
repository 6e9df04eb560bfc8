#include <gtest/gtest.h>

#include "tools/demo_airports.h"
#include "tools/magnetic_grid.h"
#include "tools/options.h"

namespace {

using namespace world;

TEST(Facts, Malformed_Line_Taken_Or_Not_Named) {
    const std::string head = "# facts\n\nairport KAAA 47.5 -122.25 433 A\r\n";
    const std::pair<std::string, const char*> cases[] = {
        {"com tower 118.1\n", "line 1: an airport has to come first"},
        {"airport KAAA 91 0 0 A\n", "line 1: expected airport"},
        {head + "lake 1 2\n", "line 4: unknown fact \"lake\""},
        {head + "com tower 118.1x\n", "line 4: expected com"},
        {head + "com radio 118.1\n", "line 4: expected com"},
        {head + "com tower nan\n", "line 4: expected com"},
        {head + "runway 09L 27L 1 2 1 3 100\n", "line 4: expected runway"},
        {head + "ils 09 IAAA 1 2 90 110.3\n", "line 4: expected ils"},
        {head + "parking 1 2 10 8192 GATE\n", "line 4: expected parking"},
        {head + "parking 1 2 10 1 GATE AA\n", "line 4: expected parking"},
        {head + "point 1 181\n", "line 4: expected point"},
        {head + "point 1 2\npath 0 0 ABCDEFGHI\n", "line 5: expected path"},
    };
    for (const auto& [text, fault] : cases) {
        std::vector<Airport_Facts> airports;
        EXPECT_TRUE(Parse_Airports(text, airports).starts_with(fault)) << text;
    }
}

TEST(Facts, Path_Gets_The_Wrong_Kind) {
    // A runway eastwards along the equator, 0.01 degrees or 1.1 km; 0.00004 degrees are 4.4 m.
    std::vector<Airport_Facts> airports;
    ASSERT_EQ(Parse_Airports("airport KAAA 0 0 0 A\nrunway 18 36 1 1 0.9 1 99\n"
                             "runway 09 27 0 0 0 0.01 100\n"
                             "point 0.00004 0.001\npoint -0.00004 0.009\npoint 0.0001 0.005\n"
                             "point 0 0.011\nparking 0.0001 0.005 10 1 GATE\n"
                             "path 0 1\npath 0 1 A\npath 0 3\npath 1 2\npath 2 1\n",
                             airports),
              "");
    const auto& paths = airports.at(0).paths;
    using enum Path_Kind;
    const Path_Kind kinds[] = {Runway, Taxiway, Taxiway, Parking, Taxiway};
    for (std::size_t i = 0; i < 5; ++i)
        EXPECT_EQ(paths[i].kind, kinds[i]) << i;
    EXPECT_EQ(paths[0].runway, 1);
    EXPECT_EQ(paths[3].end, 0);
}

TEST(Facts, Variation_Goes_The_Long_Way_Round) {
    Coarse_Grid grid(Coarse_Rows * Coarse_Columns);
    const auto set = [&grid](int row, int column, double value) {
        grid[static_cast<std::size_t>(row * Coarse_Columns + column)] = value;
    };
    set(0, 0, 170), set(0, 1, -170);
    set(18, 71, 10), set(18, 0, -10);
    set(19, 71, -178), set(19, 0, 178);
    EXPECT_NEAR(Variation_At(grid, -90, 1), 174, 1e-9);
    EXPECT_NEAR(Variation_At(grid, -90, 4), -174, 1e-9);
    EXPECT_NEAR(Variation_At(grid, 0, 357), 2, 1e-9) << "between 355 and 0 east";
    EXPECT_NEAR(Variation_At(grid, 3, 355), 10 + 0.6 * 172, 1e-9);
    EXPECT_NEAR(std::abs(Variation_At(grid, 5, 357)), 179.6, 1e-9);
    EXPECT_EQ(Variation_At(grid, 90, 359), 0);
    EXPECT_NE(Parse_Magnetic_Grid("1 2\n", grid), "");
    EXPECT_NE(Parse_Magnetic_Grid("1 2 x\n", grid), "");
}

TEST(Facts, Command_Line_Misread) {
    const struct {
        std::vector<const char*> arguments;
        std::string fault;  // its start; empty for none
    } cases[] = {
        {{}, "no folder"},
        {{"a", "b"}, "more than one folder"},
        {{"a", "--size"}, "unknown option --size"},
        {{"a", "--airports"}, "--airports needs a value"},
        {{"a", "--airports", "-1"}, "--airports takes"},
        {{"a", "--airports", "456977"}, "--airports takes"},
        {{"a", "--seed", "2"}, "--seed goes with"},
        {{"a", "--airports", "9", "--seed", "-2"}, "--seed takes"},
        {{"--seed", "18446744073709551615", "--airports", "0", "a"}, ""},
        {{"--help"}, ""},
    };
    for (auto c : cases) {
        c.arguments.insert(c.arguments.begin(), "make_world");
        Options options;
        const int count = static_cast<int>(c.arguments.size());
        const std::string fault = Parse_Options(count, c.arguments.data(), options);
        EXPECT_TRUE(fault.starts_with(c.fault) && fault.empty() == c.fault.empty()) << fault;
    }
}

}  // namespace
