#include <gtest/gtest.h>
#include <numeric>

#include "platform/code_page.h"
#include "platform/common/live.h"

using namespace platform;

TEST(Code_Page, Every_Byte_Comes_Back_From_Utf8) {
    std::string all(256, '\0');
    std::iota(all.begin(), all.end(), '\0');
    EXPECT_EQ(From_Utf8(To_Utf8(all)), all);
    EXPECT_EQ(To_Utf8("\x80\x82\x83\x84\x85\x86\x87\x88\x89\x8A\x8B\x8C\x8E\xE9\xFF"),
              "\u20AC\u201A\u0192\u201E\u2026\u2020\u2021\u02C6\u2030\u0160\u2039\u0152\u017D\u00E9"
              "\u00FF");
    EXPECT_EQ(
        To_Utf8("\x91\x92\x93\x94\x95\x96\x97\x98\x99\x9A\x9B\x9C\x9E\x9F"),
        "\u2018\u2019\u201C\u201D\u2022\u2013\u2014\u02DC\u2122\u0161\u203A\u0153\u017E\u0178");
}

TEST(Code_Page, What_Has_No_Place_Or_Is_Malformed_Is_Refused_Or_Marked) {
    const std::pair<std::string_view, std::string_view> cases[] = {
        {"a\u0416b", "a?b"},           // a letter of another script
        {"\xF0\x9F\x9B\xAB!", "?!"},   // beyond the 16-bit plane
        {"\xC2\x80", "?"},             // a control
        {"\xC3", "?"},                 // cut short
        {"\xC3(", "?("},               // second byte missing
        {"\xC1\xA1", "??"},            // longer than needed
        {"\xE0\x82\xA0", "???"},       // the same with three bytes
        {"\xED\xA0\x80", "???"},       // half of a surrogate pair
        {"\xF4\x90\x80\x80", "????"},  // above the last character
        {"\xA9\xFF", "??"},            // no first byte at all
    };
    for (const auto& [utf8, lossy] : cases) {
        EXPECT_EQ(From_Utf8(utf8), std::nullopt) << lossy;
        EXPECT_EQ(From_Utf8_Lossy(utf8), lossy);
    }
}

TEST(Code_Page, Letters_Beyond_Ascii_Change_Case_And_Signs_Among_Them_Stay) {
    EXPECT_EQ(Lower_Case("AZ[\x8A\x8C\x8E\x9F\xC0\xD6\xD7\xD8\xDE"),
              "az[\x9A\x9C\x9E\xFF\xE0\xF6\xD7\xF8\xFE");
    EXPECT_EQ(Upper_Case("az{\x9A\x9C\x9E\xFF\xE0\xF6\xF7\xF8\xFE"),
              "AZ{\x8A\x8C\x8E\x9F\xC0\xD6\xF7\xD8\xDE");
    const std::string both_stay = "\xDF\x83\xB5\xAA\x80@`";
    EXPECT_EQ(Lower_Case(both_stay), both_stay);
    EXPECT_EQ(Upper_Case(both_stay), both_stay);
}

TEST(Matches, The_Likeliest_Comes_Late_Or_A_Match_Is_Missed) {
    const std::vector<std::string> entries = {"A Ksea Bar (AAAA)", "Ksea East (BBBB)",
                                              "Seattle (KSEA)", "\xC9vora (LPEV)", "Z (XKSEA)"};
    const std::pair<const char*, std::vector<std::size_t>> rows[] = {
        {"ksea", {2, 1, 0, 4}}, {"KSEA", {2, 1, 0, 4}}, {"(ks", {2}},  {"kse", {1, 0, 2, 4}},
        {"\xE9v", {3}},         {"e", {0, 1, 2, 3, 4}}, {"", {}},      {"ksea x", {}},
        {"sea", {2, 0, 1, 4}},  {"b", {0, 1}},          {"lpev", {3}}, {")", {0, 1, 2, 3, 4}}};
    for (const auto& [typed, expected] : rows)
        EXPECT_EQ(common::Matches(entries, typed), expected) << typed;
}
