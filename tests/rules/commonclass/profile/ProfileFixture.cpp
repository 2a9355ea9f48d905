#include "ProfileFixture.h"

namespace profiletest {

using namespace _qv_commonclass;

void ProfileFixture::SetUp() {
    m_formerRoot = QV_GetProfileRoot();
    m_root = L"Software\\QVCommonWndTest" + std::to_wstring(GetCurrentProcessId());
    ASSERT_TRUE(QV_SetProfileRoot(m_root.c_str()));
}

void ProfileFixture::TearDown() {
    RegDeleteTreeW(HKEY_CURRENT_USER, m_root.c_str());
    QV_SetProfileRoot(m_formerRoot);
}

void ProfileFixture::putRaw(const wchar_t* store, const wchar_t* key, const wchar_t* name, DWORD type,
                            const void* data, DWORD bytes) {
    HKEY opened = nullptr;
    const std::wstring path = m_root + L"\\" + store + L"\\" + key;
    ASSERT_EQ(
        RegCreateKeyExW(HKEY_CURRENT_USER, path.c_str(), 0, nullptr, 0, KEY_WRITE, nullptr, &opened, nullptr),
        ERROR_SUCCESS);
    EXPECT_EQ(RegSetValueExW(opened, name, 0, type, static_cast<const BYTE*>(data), bytes), ERROR_SUCCESS);
    RegCloseKey(opened);
}

} // namespace profiletest
