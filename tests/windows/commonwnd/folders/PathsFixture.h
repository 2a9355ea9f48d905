// What the tests of the path windows share: an empty profile section.
#pragma once

#include "QVCommonWnd.h"
#include "res/ResourceIds.h"

#include "ModalScript.h"
#include "SkinnedTest.h"
#include "StageFolder.h"
#include "TempFolder.h"
#include "TestHost.h"

#include <QVCommonClass.h>

namespace paths_test {

using namespace _qv_commonwnd;
using namespace _qv_commonclass;
using namespace _qv_commonctrl;
using qvtest::Driver;
using qvtest::ModalScript;
using qvtest::TempFolder;

class Paths : public qvtest::SkinnedTest {
  protected:
    void SetUp() override {
        SkinnedTest::SetUp();
        ASSERT_TRUE(QV_SetProfileRoot(L"Software\\QVCommonWndTest"));
        Reset();
    }
    void TearDown() override {
        Reset();
        SkinnedTest::TearDown();
    }

    static CString Stored(const wchar_t* key, const wchar_t* absent = L"(none)") {
        return QV_GetProfileString(L"PathSet", key, absent);
    }
    static void Store(const wchar_t* key, const CString& value) {
        ASSERT_TRUE(QV_WriteProfileString(L"PathSet", key, value));
    }

    // A value such as a program gone wrong may leave in the profile.
    static std::vector<CString> BrokenValues() {
        return {CString(L'x', 32000),
                L"C:\\" + CString(L'y', 32000),
                CString(L'\\', 32000),
                L"C:\\a\x1\x2\x1F\r\n\tb",
                L"\r\n",
                L"C:\\\xD83C\xDC00\xD83C",
                L"::{20D04FE0-3AEA-1069-A2D8-08002B30309D}",
                L"*?<>|",
                L"\\\\?\\",
                L"relative"};
    }

  private:
    static void Reset() {
        QV_WriteProfileString(L"PathSet", nullptr, nullptr);
        QV_SetState(kStateResourceDirLocked, 0);
    }
};

} // namespace paths_test
