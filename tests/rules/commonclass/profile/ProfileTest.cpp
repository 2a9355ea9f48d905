#include "ProfileFixture.h"
#include <type_traits>
#include <vector>

namespace profiletest {

namespace {

using namespace _qv_commonclass;

std::wstring get(const wchar_t* section, const wchar_t* key, const wchar_t* fallback = L"(none)") {
    return QV_GetProfileString(section, key, fallback).GetString();
}

class Profile : public ProfileFixture {};

TEST_F(Profile, KeepsWhatIsWritten) {
    EXPECT_TRUE(QV_WriteProfileString(L"PathSet", L"ResPath", L"D:\\\u8D44\u6E90"));
    EXPECT_EQ(get(L"PathSet", L"ResPath"), L"D:\\\u8D44\u6E90");
    EXPECT_EQ(get(L"pathset", L"RESPATH"), L"D:\\\u8D44\u6E90"); // names ignore case
    EXPECT_EQ(get(L"PathSet", L"MediaPath"), L"(none)");
    EXPECT_EQ(get(L"Other", L"ResPath"), L"(none)");
    EXPECT_EQ(get(L"Other", L"ResPath", nullptr), L"");
    EXPECT_TRUE(QV_WriteProfileString(L"PathSet", L"ResPath", L""));
    EXPECT_EQ(get(L"PathSet", L"ResPath"), L""); // stored empty is not absent
}

TEST_F(Profile, NullRemovesAsInTheSystemsCalls) {
    QV_WriteProfileString(L"S", L"a", L"1");
    QV_WriteProfileString(L"S", L"b", L"2");
    EXPECT_TRUE(QV_WriteProfileString(L"S", L"a", nullptr));
    EXPECT_EQ(get(L"S", L"a"), L"(none)");
    EXPECT_EQ(get(L"S", L"b"), L"2");
    EXPECT_TRUE(QV_WriteProfileString(L"S", L"a", nullptr));
    EXPECT_TRUE(QV_WriteProfileString(L"Missing", L"a", nullptr));
    EXPECT_TRUE(QV_WriteProfileString(L"S", nullptr, L"ignored"));
    EXPECT_EQ(get(L"S", L"b"), L"(none)");
    EXPECT_TRUE(QV_WriteProfileString(L"S", nullptr, nullptr));
}

TEST_F(Profile, NamesThatCannotBeAreRefused) {
    const std::wstring longSection(256, L's');
    const std::wstring longKey(16384, L'k');
    const std::wstring slashes(86, L'\\'); // 258 characters once written out
    for (const wchar_t* section :
         {static_cast<const wchar_t*>(nullptr), L"", longSection.c_str(), slashes.c_str()}) {
        EXPECT_FALSE(QV_WriteProfileString(section, L"k", L"v"));
        EXPECT_FALSE(QV_WriteProfileString(section, L"k", nullptr));
        EXPECT_FALSE(QV_WriteProfileString(section, nullptr, nullptr));
        EXPECT_EQ(get(section, L"k"), L"(none)");
    }
    for (const wchar_t* key : {L"", longKey.c_str()}) {
        EXPECT_FALSE(QV_WriteProfileString(L"S", key, L"v"));
        EXPECT_EQ(get(L"S", key), L"(none)");
    }
    EXPECT_EQ(get(L"S", nullptr), L"(none)");
}

TEST_F(Profile, LongestNamesWork) {
    const std::wstring section(255, L's');
    const std::wstring key(16383, L'k');
    EXPECT_TRUE(QV_WriteProfileString(section.c_str(), L"k", L"v"));
    EXPECT_EQ(get(section.c_str(), L"k"), L"v");
    EXPECT_TRUE(QV_WriteProfileString(L"S", key.c_str(), L"v"));
    EXPECT_EQ(get(L"S", key.c_str()), L"v");
}

TEST_F(Profile, OddCharactersInNamesKeepNamesApart) {
    const wchar_t* names[] = {L"A\\B", L"A%5CB",   L"A%B",          L"A",       L"\\", L"..", L"A\\..\\B",
                              L"a b",  L"t\ta\nb", L"\u8DEF\u5F84", L"\x7F\x01"};
    for (const wchar_t* name : names) {
        EXPECT_TRUE(QV_WriteProfileString(name, L"k", name));
        EXPECT_TRUE(QV_WriteProfileString(L"Keys", name, name));
    }
    for (const wchar_t* name : names) {
        EXPECT_EQ(get(name, L"k"), name);
        EXPECT_EQ(get(L"Keys", name), name);
    }
    // Removing the section "A" must not take "A\B" with it.
    EXPECT_TRUE(QV_WriteProfileString(L"A", nullptr, nullptr));
    EXPECT_EQ(get(L"A\\B", L"k"), L"A\\B");
}

TEST_F(Profile, LongAndOddValues) {
    for (const std::size_t length : {511u, 512u, 513u, 32'000u, 70'000u, 1'048'576u}) {
        const std::wstring value(length, L'\u8DEF');
        EXPECT_TRUE(QV_WriteProfileString(L"S", L"long", value.c_str())) << length;
        EXPECT_EQ(get(L"S", L"long"), value) << length;
    }
    const std::wstring tooLong(1'048'577, L'x');
    EXPECT_FALSE(QV_WriteProfileString(L"S", L"long", tooLong.c_str()));
    EXPECT_EQ(get(L"S", L"long").size(), 1'048'576u);
    EXPECT_FALSE(QV_WriteProfileString(L"NotMade", L"long", tooLong.c_str()));
    const wchar_t* odd = L"\x01\x02\t\r\n\x1F\x7F\xD800 end";
    EXPECT_TRUE(QV_WriteProfileString(L"S", L"odd", odd));
    EXPECT_EQ(get(L"S", L"odd"), odd);
}

TEST_F(Profile, ForeignTypesAreNoTexts) {
    const DWORD number = 7;
    const wchar_t list[] = L"a\0b\0";
    putRaw(L"Profile", L"S", L"number", REG_DWORD, &number, sizeof(number));
    putRaw(L"Profile", L"S", L"binary", REG_BINARY, "abcd", 4);
    putRaw(L"Profile", L"S", L"none", REG_NONE, nullptr, 0);
    putRaw(L"Profile", L"S", L"list", REG_MULTI_SZ, list, sizeof(list));
    for (const wchar_t* key : {L"number", L"binary", L"none", L"list"})
        EXPECT_EQ(get(L"S", key), L"(none)") << key;
    std::vector<BYTE> large(100'000, 1);
    putRaw(L"Profile", L"S", L"large", REG_BINARY, large.data(), 100'000);
    EXPECT_EQ(get(L"S", L"large"), L"(none)");
}

TEST_F(Profile, DamagedTextsAreReadAsFarAsTheyGo) {
    putRaw(L"Profile", L"S", L"open", REG_SZ, L"open", 4 * sizeof(wchar_t)); // no ending NUL
    putRaw(L"Profile", L"S", L"half", REG_SZ, L"half", 3 * sizeof(wchar_t) + 1);
    putRaw(L"Profile", L"S", L"byte", REG_SZ, "b", 1);
    putRaw(L"Profile", L"S", L"empty", REG_SZ, nullptr, 0);
    putRaw(L"Profile", L"S", L"nuls", REG_SZ, L"a\0b\0", 5 * sizeof(wchar_t));
    putRaw(L"Profile", L"S", L"expand", REG_EXPAND_SZ, L"%Path%", 7 * sizeof(wchar_t));
    EXPECT_EQ(get(L"S", L"open"), L"open");
    EXPECT_EQ(get(L"S", L"half"), L"hal");
    EXPECT_EQ(get(L"S", L"byte"), L"");
    EXPECT_EQ(get(L"S", L"empty"), L"");
    EXPECT_EQ(get(L"S", L"nuls"), L"a");
    EXPECT_EQ(get(L"S", L"expand"), L"%Path%");
}

TEST_F(Profile, AValueBeyondTheLimitIsNotRead) {
    const std::wstring tooLong(1'048'600, L'x');
    putRaw(L"Profile", L"S", L"k", REG_SZ, tooLong.c_str(),
           static_cast<DWORD>(tooLong.size() * sizeof(wchar_t)));
    EXPECT_EQ(get(L"S", L"k"), L"(none)");
}

TEST_F(Profile, AnUnreadableSectionGivesTheDefault) {
    ASSERT_TRUE(QV_WriteProfileString(L"S", L"k", L"v"));
    const std::wstring path = m_root + L"\\Profile\\S";
    HKEY key = nullptr;
    ASSERT_EQ(RegOpenKeyExW(HKEY_CURRENT_USER, path.c_str(), 0, WRITE_DAC, &key), ERROR_SUCCESS);
    SECURITY_DESCRIPTOR locked{};
    ACL nobody{};
    InitializeSecurityDescriptor(&locked, SECURITY_DESCRIPTOR_REVISION);
    InitializeAcl(&nobody, sizeof(nobody), ACL_REVISION);
    SetSecurityDescriptorDacl(&locked, TRUE, &nobody, FALSE);
    RegSetKeySecurity(key, DACL_SECURITY_INFORMATION, &locked);
    HKEY opened = nullptr;
    const bool isEnforced =
        RegOpenKeyExW(HKEY_CURRENT_USER, path.c_str(), 0, KEY_READ, &opened) != ERROR_SUCCESS;
    const std::wstring value = get(L"S", L"k");
    const BOOL written = QV_WriteProfileString(L"S", L"k", L"other");
    if (opened != nullptr)
        RegCloseKey(opened);
    SetSecurityDescriptorDacl(&locked, TRUE, nullptr, FALSE);
    RegSetKeySecurity(key, DACL_SECURITY_INFORMATION, &locked);
    RegCloseKey(key);
    // A platform that keeps nobody from reading a key answers as if it were not locked.
    EXPECT_EQ(value, isEnforced ? L"(none)" : L"v");
    EXPECT_EQ(written, !isEnforced);
}

TEST_F(Profile, RootIsTheHosts) {
    const std::wstring other = m_root + L"\\Other";
    EXPECT_TRUE(QV_WriteProfileString(L"S", L"k", L"first"));
    EXPECT_TRUE(QV_SetProfileRoot((L"\\" + other + L"\\\\").c_str()));
    EXPECT_EQ(std::wstring(QV_GetProfileRoot().GetString()), other);
    EXPECT_EQ(get(L"S", L"k"), L"(none)");
    EXPECT_TRUE(QV_WriteProfileString(L"S", L"k", L"second"));
    EXPECT_TRUE(QV_SetProfileRoot(m_root.c_str()));
    EXPECT_EQ(get(L"S", L"k"), L"first");
}

TEST_F(Profile, RootsThatCannotBeAreRefused) {
    const std::wstring overlong = L"Software\\" + std::wstring(256, L'r');
    std::wstring deep = L"a";
    for (int i = 0; i < 600; ++i)
        deep += L"\\a";
    for (const wchar_t* root : {static_cast<const wchar_t*>(nullptr), L"", L"\\", L"\\\\\\", L"a\\\\b",
                                overlong.c_str(), deep.c_str()})
        EXPECT_FALSE(QV_SetProfileRoot(root));
    EXPECT_EQ(std::wstring(QV_GetProfileRoot().GetString()), m_root);
}

} // namespace

} // namespace profiletest
