#include "ProfileFixture.h"
#include <type_traits>

namespace profiletest {

namespace {

using namespace _qv_commonclass;

static_assert(!std::is_copy_constructible_v<CZ5Regkey> && !std::is_copy_assignable_v<CZ5Regkey>);

class Regkey : public ProfileFixture {};

TEST_F(Regkey, NeverMeetsTheSectionOfItsName) {
    CZ5Regkey item;
    ASSERT_TRUE(item.OpenItem(L"pathset", TRUE));
    EXPECT_TRUE(item.SetValue(L"filepath", L"C:\\item"));
    EXPECT_TRUE(QV_WriteProfileString(L"PathSet", L"FilePath", L"C:\\section"));
    CString value;
    EXPECT_TRUE(item.GetValue(L"filepath", value));
    EXPECT_EQ(value, L"C:\\item");
    EXPECT_EQ(QV_GetProfileString(L"PathSet", L"FilePath", L""), L"C:\\section");
    EXPECT_TRUE(QV_WriteProfileString(L"PathSet", nullptr, nullptr));
    EXPECT_TRUE(item.GetValue(L"filepath", value));
}

TEST_F(Regkey, OpensWhatIsThere) {
    CZ5Regkey item;
    EXPECT_FALSE(item.OpenItem(L"missing", FALSE));
    EXPECT_TRUE(item.OpenItem(L"made", TRUE));
    EXPECT_TRUE(item.OpenItem(L"MADE", FALSE));
    EXPECT_FALSE(item.OpenItem(L"missing", FALSE)); // and what was open is closed
    EXPECT_FALSE(item.SetValue(L"v", L"x"));
}

TEST_F(Regkey, ReadsAndRemoves) {
    CZ5Regkey item;
    ASSERT_TRUE(item.OpenItem(L"i", TRUE));
    CString value = L"former";
    EXPECT_FALSE(item.GetValue(L"v", value));
    EXPECT_EQ(value, L"former");
    EXPECT_TRUE(item.SetValue(L"v", L""));
    EXPECT_TRUE(item.GetValue(L"v", value));
    EXPECT_EQ(value, L"");
    EXPECT_TRUE(item.SetValue(L"v", nullptr));
    EXPECT_FALSE(item.GetValue(L"v", value));
    EXPECT_TRUE(item.SetValue(L"v", nullptr));
}

TEST_F(Regkey, WithoutAnOpenItemNothingHappens) {
    CZ5Regkey item;
    CString value = L"former";
    EXPECT_FALSE(item.GetValue(L"v", value));
    EXPECT_FALSE(item.SetValue(L"v", L"x"));
    item.Close();
    ASSERT_TRUE(item.OpenItem(L"i", TRUE));
    item.Close();
    item.Close();
    EXPECT_FALSE(item.GetValue(L"v", value));
    EXPECT_EQ(value, L"former");
}

TEST_F(Regkey, BadNamesAndValuesAreRefused) {
    CZ5Regkey item;
    const std::wstring longItem(256, L'i');
    EXPECT_FALSE(item.OpenItem(nullptr, TRUE));
    EXPECT_FALSE(item.OpenItem(L"", TRUE));
    EXPECT_FALSE(item.OpenItem(longItem.c_str(), TRUE));
    ASSERT_TRUE(item.OpenItem(L"a\\b%", TRUE));
    const std::wstring longName(16384, L'n');
    const std::wstring longValue(1'048'577, L'v');
    CString value;
    for (const wchar_t* name : {static_cast<const wchar_t*>(nullptr), L"", longName.c_str()}) {
        EXPECT_FALSE(item.SetValue(name, L"x"));
        EXPECT_FALSE(item.SetValue(name, nullptr));
        EXPECT_FALSE(item.GetValue(name, value));
    }
    EXPECT_FALSE(item.SetValue(L"v", longValue.c_str()));
    EXPECT_FALSE(item.GetValue(L"v", value));
}

TEST_F(Regkey, ForeignTypesAreNoTexts) {
    const DWORD number = 7;
    putRaw(L"Items", L"i", L"number", REG_DWORD, &number, sizeof(number));
    CZ5Regkey item;
    ASSERT_TRUE(item.OpenItem(L"i", FALSE));
    CString value = L"former";
    EXPECT_FALSE(item.GetValue(L"number", value));
    EXPECT_EQ(value, L"former");
}

TEST_F(Regkey, AnItemRemovedWhileItIsOpenIsHarmless) {
    CZ5Regkey item;
    ASSERT_TRUE(item.OpenItem(L"i", TRUE));
    EXPECT_TRUE(item.SetValue(L"v", L"x"));
    RegDeleteTreeW(HKEY_CURRENT_USER, m_root.c_str());
    CString value = L"former";
    EXPECT_FALSE(item.GetValue(L"v", value));
    EXPECT_FALSE(item.SetValue(L"v", L"y"));
    EXPECT_EQ(value, L"former");
}

} // namespace

} // namespace profiletest
