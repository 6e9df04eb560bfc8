#include <gtest/gtest.h>

#include "platform/common/live.h"

namespace platform {

namespace {

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

}  // namespace

}  // namespace platform
