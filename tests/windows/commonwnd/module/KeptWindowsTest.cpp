// The two windows that the library keeps, and what its release does with them.
#include <QVCommonWnd.h>

#include "TempFolder.h"

#include <QVCommonClass.h>
#include <QVDirCtrl.h>

#include <gtest/gtest.h>

using namespace _qv_commonwnd;
using namespace _qv_commonclass;
using _qv_commonctrl::CQVDirListCtrl;

namespace {

int g_deleted = 0;

class CountedWnd : public CWnd {
  public:
    ~CountedWnd() override { ++g_deleted; }
};

class CountedDirList : public CQVDirListCtrl {
  public:
    ~CountedDirList() override { ++g_deleted; }
};

class KeptWindows : public testing::Test {
  protected:
    void SetUp() override {
        ASSERT_TRUE(QV_SetProfileRoot(L"Software\\QVCommonWndTest"));
        QV_WriteProfileString(L"PathSet", nullptr, nullptr);
        g_deleted = 0;
        ASSERT_TRUE(m_parent.CreateEx(0, AfxRegisterWndClass(0), L"parent", WS_OVERLAPPEDWINDOW,
                                      CRect(0, 0, 300, 200), nullptr, 0));
    }
    void TearDown() override {
        QV_ReleaseCommonWnd();
        if (m_parent.m_hWnd)
            m_parent.DestroyWindow();
        QV_WriteProfileString(L"PathSet", nullptr, nullptr);
    }

    static CString StoredFolder() { return QV_GetProfileString(L"PathSet", L"FilePath", L"none"); }

    HWND KeepList(const wchar_t* folder) {
        auto* list = new CountedDirList;
        EXPECT_TRUE(list->Create(WS_CHILD | LVS_REPORT, CRect(0, 0, 100, 100), &m_parent, 1));
        if (folder) {
            EXPECT_TRUE(list->SetPathName(folder));
        }
        g_pDirListWnd = list;
        return list->m_hWnd;
    }

    HWND KeepWindow() {
        auto* window = new CountedWnd;
        EXPECT_TRUE(
            window->CreateEx(0, AfxRegisterWndClass(0), L"kept", WS_POPUP, CRect(0, 0, 10, 10), nullptr, 0));
        g_pCommonWnd = window;
        return window->m_hWnd;
    }

    CWnd m_parent;
};

TEST_F(KeptWindows, AreEmptyAtTheStart) {
    EXPECT_EQ(nullptr, g_pDirListWnd);
    EXPECT_EQ(nullptr, g_pCommonWnd);
    EXPECT_EQ(::GetModuleHandleW(L"QVCommonWndU.dll"), g_hCommonWndInst);
}

TEST_F(KeptWindows, InitChangesNothing) {
    QV_InitCommonWnd();
    EXPECT_EQ(nullptr, g_pDirListWnd);
    EXPECT_EQ(nullptr, g_pCommonWnd);
}

TEST_F(KeptWindows, ReleaseOfNothingWritesNothing) {
    QV_ReleaseCommonWnd();
    EXPECT_STREQ(L"none", StoredFolder());
}

TEST_F(KeptWindows, ReleaseStoresTheFolderAndDestroysBoth) {
    const qvtest::TempFolder folder;
    const HWND list = KeepList(folder.path().c_str());
    const HWND window = KeepWindow();
    QV_ReleaseCommonWnd();
    EXPECT_EQ(0, StoredFolder().CompareNoCase(folder.path().c_str()));
    EXPECT_FALSE(::IsWindow(list));
    EXPECT_FALSE(::IsWindow(window));
    EXPECT_EQ(nullptr, g_pDirListWnd);
    EXPECT_EQ(nullptr, g_pCommonWnd);
    EXPECT_EQ(2, g_deleted);

    QV_WriteProfileString(L"PathSet", L"FilePath", L"D:\\other");
    QV_ReleaseCommonWnd();
    EXPECT_STREQ(L"D:\\other", StoredFolder());
}

TEST_F(KeptWindows, ListWithoutFolderStoresAnEmptyOne) {
    KeepList(nullptr);
    QV_ReleaseCommonWnd();
    EXPECT_STREQ(L"", StoredFolder());
}

TEST_F(KeptWindows, SecondWindowAloneIsReleasedWithoutWriting) {
    KeepWindow();
    QV_ReleaseCommonWnd();
    EXPECT_STREQ(L"none", StoredFolder());
    EXPECT_EQ(1, g_deleted);
}

TEST_F(KeptWindows, WindowsThatDiedBeforeAreDeletedAllTheSame) {
    KeepList(nullptr);
    KeepWindow();
    m_parent.DestroyWindow();
    g_pCommonWnd->DestroyWindow();
    QV_ReleaseCommonWnd();
    EXPECT_EQ(2, g_deleted);
}

TEST_F(KeptWindows, ListThatDiedBeforeLeavesTheStoredFolder) {
    const qvtest::TempFolder folder;
    QV_WriteProfileString(L"PathSet", L"FilePath", L"D:\\clips");
    KeepList(folder.path().c_str());
    m_parent.DestroyWindow();
    QV_ReleaseCommonWnd();
    EXPECT_STREQ(L"D:\\clips", StoredFolder());
    EXPECT_EQ(1, g_deleted);
}

class ReentrantWnd : public CountedWnd {
  public:
    BOOL DestroyWindow() override {
        QV_ReleaseCommonWnd();
        return CWnd::DestroyWindow();
    }
};

TEST_F(KeptWindows, ReleaseFromInsideTheReleaseDeletesOnce) {
    auto* window = new ReentrantWnd;
    ASSERT_TRUE(
        window->CreateEx(0, AfxRegisterWndClass(0), L"kept", WS_POPUP, CRect(0, 0, 10, 10), nullptr, 0));
    g_pCommonWnd = window;
    QV_ReleaseCommonWnd();
    EXPECT_EQ(1, g_deleted);
}

TEST(ColorStatic, IsAStaticWithItsOwnClassInformation) {
    CQVColorStatic control;
    EXPECT_TRUE(control.IsKindOf(RUNTIME_CLASS(CStatic)));
    EXPECT_STREQ("CQVColorStatic", control.GetRuntimeClass()->m_lpszClassName);
    EXPECT_EQ(sizeof(CStatic), sizeof(CQVColorStatic));
    CWnd parent;
    ASSERT_TRUE(parent.CreateEx(0, AfxRegisterWndClass(0), L"parent", WS_OVERLAPPEDWINDOW,
                                CRect(0, 0, 99, 99), nullptr, 0));
    EXPECT_TRUE(control.Create(L"label", WS_CHILD | WS_VISIBLE, CRect(0, 0, 50, 20), &parent, 5));
    CString text;
    control.GetWindowText(text);
    EXPECT_STREQ(L"label", text);
    control.DestroyWindow();
    parent.DestroyWindow();
}

} // namespace
