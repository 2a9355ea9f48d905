#pragma once

#include <QVCommonClass.h>
#include <gtest/gtest.h>
#include <string>

namespace profiletest {

// Gives each test a root of its own below HKEY_CURRENT_USER, and removes it afterwards.
class ProfileFixture : public testing::Test {
  protected:
    void SetUp() override;
    void TearDown() override;

    // Stores raw registry data where the section's or item's value stands; store is L"Profile" or L"Items".
    void putRaw(const wchar_t* store, const wchar_t* key, const wchar_t* name, DWORD type, const void* data,
                DWORD bytes);

    std::wstring m_root;

  private:
    CString m_formerRoot;
};

} // namespace profiletest
