// Splitting a filter text into the patterns of its pairs.
#include "support/FileNameRules.h"

#include <gtest/gtest.h>

using namespace _qv_commonwnd;

namespace {

using Patterns = std::vector<std::wstring>;

struct Row {
    const char* name;
    std::wstring filter;
    Patterns patterns;
    std::wstring rest;
};

class Filter : public testing::TestWithParam<Row> {};

TEST_P(Filter, GivesPatterns) {
    const FilterPatterns parsed = ParseFilter(GetParam().filter);
    EXPECT_EQ(GetParam().patterns, parsed.patterns);
    EXPECT_EQ(GetParam().rest, parsed.rest);
}

INSTANTIATE_TEST_SUITE_P(
    Table, Filter,
    testing::Values(Row{"empty", L"", {}, L""}, Row{"oneCharacter", L"|", {}, L"|"},
                    Row{"noBar", L"AVI", {}, L"AVI"}, Row{"onePair", L"AVI|*.avi|", {L"*.avi"}, L""},
                    Row{"twoPairs", L"AVI|*.avi|All|*.*|", {L"*.avi", L"*.*"}, L""},
                    Row{"closedTwice", L"AVI|*.avi|All|*.*||", {L"*.avi", L"*.*"}, L"|"},
                    Row{"alternativesStayTogether", L"V|*.avi;*.wmv|", {L"*.avi;*.wmv"}, L""},
                    Row{"lastPairWithoutBar", L"AVI|*.avi|All|*.*", {L"*.avi"}, L"*.*"},
                    Row{"onlyPairWithoutBar", L"AVI|*.avi", {}, L"*.avi"},
                    Row{"lastDescriptionAlone", L"AVI|*.avi|All", {L"*.avi"}, L"All"},
                    Row{"emptyDescription", L"|*.avi|", {L"*.avi"}, L""},
                    Row{"emptyPatternIsNotStored", L"AVI||All|*.*|", {L"*.*"}, L""},
                    Row{"onlyBars", L"|||||", {}, L"|"}, Row{"twoBars", L"||", {}, L""},
                    Row{"spacesAreKept", L" A | *.avi |", {L" *.avi "}, L""},
                    Row{"surrogatePair", L"\U0001F3AC|*.\U0001F3AC|", {L"*.\U0001F3AC"}, L""},
                    Row{"oneCharacterLeft", L"A|b|c", {L"b"}, L"c"}),
    [](const auto& row) { return row.param.name; });

TEST(Filter, HugeFiltersAreSplitInLinearTime) {
    constexpr std::size_t kPairs = 65000;
    std::wstring filter;
    for (std::size_t i = 0; i < kPairs; ++i)
        filter += L"d|p|";
    EXPECT_EQ(Patterns(kPairs, L"p"), ParseFilter(filter).patterns);
    EXPECT_TRUE(ParseFilter(std::wstring(260000, L'|')).patterns.empty());
    EXPECT_EQ(std::wstring(260000, L'x'), ParseFilter(std::wstring(260000, L'x')).rest);
}

TEST(FilterChoice, NumbersCountFromOne) {
    const Patterns patterns = {L"*.avi", L"*.*"};
    EXPECT_EQ(nullptr, (FilterChoice{patterns, 0}.Pattern()));
    EXPECT_EQ(&patterns[0], (FilterChoice{patterns, 1}.Pattern()));
    EXPECT_EQ(&patterns[1], (FilterChoice{patterns, 2}.Pattern()));
    EXPECT_EQ(nullptr, (FilterChoice{patterns, 3}.Pattern()));
    EXPECT_EQ(nullptr, (FilterChoice{patterns, static_cast<std::size_t>(-1)}.Pattern()));
    const Patterns none;
    EXPECT_EQ(nullptr, (FilterChoice{none, 1}.Pattern()));
}

} // namespace
