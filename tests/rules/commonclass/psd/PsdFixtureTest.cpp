#include <QVCommonClass.h>
#include <algorithm>
#include <gtest/gtest.h>
#include <string>
#include <vector>

// Documents that real programs wrote; fixtures/ORIGIN.md says which. Read through the exported call.
namespace {

using Names = std::vector<std::wstring>;

struct Fixture {
    const wchar_t* file;
    Names expected;
};

void PrintTo(const Fixture& fixture, std::ostream* out) {
    for (const wchar_t* letter = fixture.file; *letter != L'\0'; ++letter)
        *out << static_cast<char>(*letter);
}

const Names kGimpNames = {L"Background", L"\u80CC\u666F\u56FE\u5C42", L"\u3072\u3089\u304C\u306A",
                          L"Gr\u00F6\u00DFe \U0001F3AC"};
const Names kNested = {L"Bottom", L"In outer", L"Deep", L"Deeper", L"Top"};
const Names kPsdTools = {L"Bottom", L"\u80CC\u666F\u56FE\u5C42", L"Gr\u00F6\u00DFe \u03A9", L"Top"};
const Names kAgUnicode = {L"\u80CC\u666F",
                          L"\u30BF\u30A4\u30C8\u30EB",
                          L"\u00DCn\u00EFc\u00F6d\u00E9",
                          L"\uC790\uB9C9",
                          L"\U0001F3AC Clip",
                          L"\u041B\u0435\u0432\u044B\u0439",
                          L"\u05E9\u05DC\u05D5\u05DD",
                          std::wstring(200, L'x')};

const Fixture kFixtures[] = {
    {L"gimp-names.psd", kGimpNames},
    {L"gimp-names-16.psd", kGimpNames},
    {L"gimp-groups.psd", kNested},
    {L"gimp-groups-16.psd", kNested},
    {L"ag-psd-unicode.psd", kAgUnicode},
    {L"ag-psd-unicode.psb", kAgUnicode},
    {L"ag-psd-groups.psd", kNested},
    {L"ag-psd-groups.psb", kNested},
    {L"ag-psd-adjustments.psd", {L"Photo", L"Curve", L"\u53CD\u76F8", L"Levels", L"Masked"}},
    {L"ag-psd-negative-count.psd", {L""}}, // one layer without a name
    {L"psd-tools-flat.psd", {}},
    {L"psd-tools-flat-32.psd", {}},
    {L"psd-tools-groups-16.psd", kPsdTools},
    {L"psd-tools-groups-32.psd", kPsdTools},
    {L"psd-tools-groups-32.psb", kPsdTools},
    {L"imagemagick-palette.psd", {L"L1"}},
    {L"imagemagick-16.psd", {L"Sixteen", L"Bits"}},
    {L"imagemagick.psb", {L"Large", L"Document"}},
};

class PsdFixture : public testing::TestWithParam<Fixture> {};

Names namesOf(const CStringArray& stored) {
    Names names;
    for (INT_PTR i = 0; i < stored.GetSize(); ++i)
        names.emplace_back(stored.GetAt(i).GetString());
    return names;
}

TEST_P(PsdFixture, GivesItsNames) {
    CStringArray names;
    names.Add(L"former");
    const std::wstring path = std::wstring(QV_PSD_FIXTURES) + GetParam().file;
    ASSERT_TRUE(_qv_commonclass::CQVVideoPlay::GetPsdLayerInfo(path.c_str(), names));
    EXPECT_EQ(namesOf(names), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Files, PsdFixture, testing::ValuesIn(kFixtures));

struct LegacyFixture {
    const wchar_t* file;
    std::vector<UINT> codePages; // systems on which the bytes mean what was written
    Names expected;
};

// On other systems the same bytes are valid letters, and the rule is that the system's meaning goes first: there
// the names are only counted.
TEST(PsdLegacyFixture, GivesItsNames) {
    const LegacyFixture table[] = {
        {L"imagemagick-gbk.psd", {936}, {L"\u80CC\u666F\u56FE\u5C42", L"\u6807\u9898", L"Logo \u5B57\u5E55"}},
        {L"imagemagick-shift-jis.psd",
         {932, 936},
         {L"\u30BF\u30A4\u30C8\u30EB", L"\u30EC\u30A4\u30E4\u30FC\u8868\u793A", L"\u30BD\u30FC\u30B9"}},
    };
    for (const LegacyFixture& fixture : table) {
        CStringArray names;
        const std::wstring path = std::wstring(QV_PSD_FIXTURES) + fixture.file;
        ASSERT_TRUE(_qv_commonclass::CQVVideoPlay::GetPsdLayerInfo(path.c_str(), names));
        ASSERT_EQ(names.GetSize(), static_cast<INT_PTR>(fixture.expected.size()));
        const bool isKnown = std::find(fixture.codePages.begin(), fixture.codePages.end(), GetACP()) !=
                             fixture.codePages.end();
        EXPECT_TRUE(!isKnown || namesOf(names) == fixture.expected) << "code page " << GetACP();
    }
}

} // namespace
