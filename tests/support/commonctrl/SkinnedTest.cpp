#include "SkinnedTest.h"

#include "Driver.h"

namespace qvtest {

using namespace _qv_commonctrl;

void SkinnedTest::SetUp() {
    ASSERT_TRUE(QV_SetSkinPath(nullptr));
    QV_SetLanguagePath(nullptr);
    ASSERT_TRUE(QV_SetLanguage(m_language));
}

void SkinnedTest::TearDown() {
    QV_SetSkinPath(nullptr);
    QV_SetLanguagePath(nullptr);
    QV_SetLanguage(m_language);
    QV_SetDictCallBack(nullptr);
}

CString SkinnedTest::SkinFolder(const wchar_t* name) {
    const CString current = QV_GetSkinPath();
    return current.Left(current.ReverseFind(L'\\') + 1) + name;
}

Picture SkinnedTest::Shot(HWND window) {
    pumpMessages();
    return Picture::ofClient(window);
}

Picture SkinnedTest::WindowShot(HWND window) {
    pumpMessages();
    return Picture::ofWindow(window);
}

} // namespace qvtest
