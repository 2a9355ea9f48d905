#include <QVCommonClass.h>
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
    {L"ag-psd-flat.psd", {}},
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

} // namespace
