// Where every test of skinned windows starts from, whatever the test before has chosen: the shipped dark skin, one
// language, no dictionary of a host. And a look at what was painted.
#pragma once

#include "Picture.h"

#include <QVCommonCtrl.h>

#include <gtest/gtest.h>

namespace qvtest {

class SkinnedTest : public testing::Test {
  protected:
    explicit SkinnedTest(const wchar_t* language = L"en-US") : m_language(language) {}

    void SetUp() override;
    void TearDown() override;

    // The folder of a shipped skin: "dark" or "light".
    static CString SkinFolder(const wchar_t* name);

    // The client area of a window, or all of it, as the screen shows it once everything is painted.
    static Picture Shot(HWND window);
    static Picture WindowShot(HWND window);
    static RECT All(const Picture& picture) { return {0, 0, picture.width(), picture.height()}; }

  private:
    const wchar_t* m_language;
};

} // namespace qvtest
