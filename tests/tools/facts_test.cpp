#include <gtest/gtest.h>

#include "tools/airport_facts.h"
#include "tools/magnetic_grid.h"

namespace {

using namespace world;

TEST(Facts, Malformed_Line_Taken_Or_Not_Named) {
    const std::pair<std::string, const char*> cases[] = {
        {"lake 1 2\n", "unknown fact \"lake\""},
        {"com tower 118.1x\n", "expected com"},
        {"com tower nan\n", "expected com"},
        {"runway 09L 27L 1 2 1 3 100\n", "expected runway"},
        {"ils 09 IAAA 1 2 90 110.3\n", "expected ils"},
        {"parking 1 2 10 8192 GATE\n", "expected parking"},
        {"parking 1 2 10 1 GATE AA\n", "expected parking"},
        {"path 0 1 A\n", "expected path"},
        {"path 0 0 ABCDEFGHI\n", "expected path"},
    };
    std::vector<Airport_Facts> airports;
    EXPECT_TRUE(Parse_Airports("point 1 2\n", airports).starts_with("line 1: an airport"));
    for (const auto& [line, fault] : cases) {
        const std::string text = "# facts\n\nairport KAAA 47.5 -122.25 433 A\r\npoint 1 2\n" + line;
        EXPECT_TRUE(Parse_Airports(text, airports).starts_with(std::string("line 5: ") + fault))
            << line;
    }
    Coarse_Grid grid;
    EXPECT_NE(Parse_Magnetic_Grid("# 3\n1 2\n", grid), "");
    EXPECT_NE(Parse_Magnetic_Grid("1 2 x\n", grid), "");
}

TEST(Facts, Variation_Goes_The_Long_Way_Round) {
    Coarse_Grid grid(Coarse_Rows * Coarse_Columns);
    grid[0] = 170, grid[1] = -170;
    grid[18 * Coarse_Columns] = -10, grid[19 * Coarse_Columns - 1] = 10;
    EXPECT_NEAR(Variation_At(grid, -90, 1), 174, 1e-9);
    EXPECT_NEAR(Variation_At(grid, 0, 357), 2, 1e-9) << "between 355 and 0 east";
    EXPECT_NEAR(Variation_At(grid, 3, 355), 4, 1e-9);
    EXPECT_EQ(Variation_At(grid, 90, 359), 0);
}

}  // namespace
