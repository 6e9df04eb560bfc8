#include "selection/geodesy.h"

#include <cmath>
#include <gtest/gtest.h>

#include "scenery/magnetic.h"

using namespace skerrand;

TEST(Geodesy, AngleOutsideItsRange) {
    EXPECT_DOUBLE_EQ(Arc_Sin(1), 1.5707963267948966);
    EXPECT_EQ(Arc_Cos(-1), 3.14159265358979);
    for (const double beyond : {1.5, -1.0000000001}) {
        EXPECT_EQ(Arc_Sin(beyond), 0);
        EXPECT_EQ(Arc_Cos(beyond), 0);
    }
    EXPECT_EQ(Float_Mod(-1, 6), 5);
    EXPECT_EQ(Wrap_Degrees(360), 360);
    EXPECT_EQ(Wrap_Degrees(-1), 359);
    EXPECT_EQ(Wrap_Degrees(800), 440) << "at most one turn";
}

TEST(Geodesy, TheSameFunctionsOfAnglesOnEverySystem) {
    struct Case {
        double (*function)(double);
        double of, value;
    };
    const volatile Case cases[] = {
        {std::sin, 3.14159265358979, 3.2310891488651735e-15},  // where a short pi shows
        {std::sin, -6.28318530717958, 6.4621782977303469e-15},
        {std::sin, 1e5, 0.03574879797201651},
        {std::cos, 1.570796326794895, 1.6155445744325867e-15},
        {std::cos, -2.5, -0.8011436155469337},
        {std::atan, 0.594, 0.5359960552202917},
        {std::atan, 0.274, 0.26743628138366421},
        {std::atan, -0.388, -0.37011893909174437}};
    for (const volatile Case& it : cases)
        EXPECT_EQ(it.function(it.of), it.value) << it.of;
}

TEST(Geodesy, DistancesAndTheirLimits) {
    EXPECT_EQ(Distance_NM(0, 0, 90, 0), 5400);
    EXPECT_EQ(Distance_NM(10, 20, -10, -160), 10800);
    EXPECT_EQ(Distance_NM(0, 179, 0, -179), 120);
    EXPECT_EQ(Distance_Feet(0, 0, 0, 1.0 / 60), 6080);
    EXPECT_EQ(Distance_Feet(30.181, -11.141, 30.169, -11.13), 5586);  // 5585 of unrounded miles
    EXPECT_EQ(Distance_Feet(0, 0, 0, 1), 32767);
}

TEST(Geodesy, CourseOfEqualPointsAndAcrossTheDateLine) {
    magnetic_table.fill(0);
    EXPECT_EQ(Magnetic_Course(10, 10, 10, 10), 360);
    EXPECT_NEAR(Magnetic_Course(0, 0, 0, -1), 270, 1);
    EXPECT_NEAR(Magnetic_Course(0, 179.5, 0, -179.5), 90, 1);
}

TEST(Geodesy, DestinationsOfZeroAndNegativeDistances) {
    const Fix_Point behind = Destination_NM(47.123456, -122.654321, 77, -5);
    EXPECT_EQ(behind.lat, 47.12346);
    EXPECT_EQ(behind.lon, -122.65432);
    EXPECT_NEAR(Destination_NM(0, 0, 90, 60).lon, 1, 1e-4);
    EXPECT_NEAR(Destination_Meters(0, 0, 0, -1852).lat, 1.0 / 60, 1e-6);
    EXPECT_NEAR(Destination_Feet(0, 179.9999, 90, 6080).lon, -179.98343, 1e-5);
}

TEST(Geodesy, VariationIsTakenFromTheNearestGridPoint) {
    magnetic_table.fill(0);
    const std::pair<std::size_t, std::int16_t> values[] = {
        {90, 1821}, {90 + 181 * 359, -3641}, {138 + 181 * 238, 3095}};  // 10, -20 and 17 degrees
    for (const auto& [place, value] : values)
        magnetic_table[place] = value;
    EXPECT_EQ(True_To_Magnetic(5, 0.5, -0.4), 355);
    EXPECT_EQ(Magnetic_To_True(5, 0.4, -0.6), 345);
    EXPECT_EQ(Magnetic_To_True(350, 47.6, -122.3), 7);
    magnetic_table[90] = 1820;
    EXPECT_EQ(True_To_Magnetic(100, 0, 0), 91) << "just short of 10 degrees is cut, not rounded";
    for (const double damaged : {1e300, -1e300, 19000.0}) {
        EXPECT_EQ(True_To_Magnetic(100, damaged, 0), 100) << "no place in the table";
        EXPECT_EQ(True_To_Magnetic(100, 0, damaged), 100);
    }
}
