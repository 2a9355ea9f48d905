// A real extension module: its classes, its resources, and that nothing of it stays behind.
#include "ChildProcess.h"
#include "extension/ExtensionIds.h"

#include "afxwin.h"

#include <gtest/gtest.h>

using namespace qvtest;

namespace {

class Extension {
  public:
    Extension()
        : m_module(::LoadLibraryW((programFolder() + L"\\windows_framework_module_extension.dll").c_str())) {}
    ~Extension() { Free(); }
    Extension(const Extension&) = delete;
    Extension& operator=(const Extension&) = delete;
    HMODULE Handle() const { return m_module; }
    void Free() {
        if (m_module)
            ::FreeLibrary(std::exchange(m_module, nullptr));
    }

  private:
    HMODULE m_module;
};

LPCTSTR const kTemplate = MAKEINTRESOURCEW(IDD_EXTENSION);

bool IsListed(LPCSTR name) {
    const CRuntimeClass* at = AfxGetAppModuleState()->m_pClassList;
    while (at && strcmp(at->m_lpszClassName, name) != 0)
        at = at->m_pNextClass;
    return at != nullptr;
}

TEST(ExtensionModule, ResourcesAreFoundThroughTheChain) {
    EXPECT_EQ(AfxGetResourceHandle(), AfxFindResourceHandle(kTemplate, RT_DIALOG));
    wchar_t text[64] = L"old";
    EXPECT_EQ(0, AfxLoadString(IDS_EXTENSION, text, 64));
    EXPECT_STREQ(L"", text);
    Extension extension;
    ASSERT_NE(nullptr, extension.Handle());
    EXPECT_EQ(extension.Handle(), AfxFindResourceHandle(kTemplate, RT_DIALOG));
    EXPECT_EQ(18, AfxLoadString(IDS_EXTENSION, text, 64));
    EXPECT_STREQ(L"from the extension", text);
    EXPECT_EQ(4, AfxLoadString(IDS_EXTENSION, text, 5));
    EXPECT_STREQ(L"from", text);
    extension.Free();
    EXPECT_EQ(AfxGetResourceHandle(), AfxFindResourceHandle(kTemplate, RT_DIALOG));
}

TEST(ExtensionModule, DialogsOfTheModuleRun) {
    Extension extension;
    class Dlg : public CDialog {
      public:
        Dlg() : CDialog(IDD_EXTENSION) {}
        BOOL OnInitDialog() override {
            EndDialog(GetDlgItem(IDC_EXTENSION_EDIT) ? 5 : 6);
            return TRUE;
        }
    } dlg;
    EXPECT_EQ(5, dlg.DoModal());
    extension.Free();
    EXPECT_EQ(-1, dlg.DoModal());
}

TEST(ExtensionModule, ClassesAreTheModulesOwn) {
    EXPECT_EQ(nullptr, CRuntimeClass::FromName("CExtensionThing"));
    const CRuntimeClass* const before = AfxGetAppModuleState()->m_pClassList;
    Extension extension;
    ASSERT_NE(nullptr, extension.Handle());
    EXPECT_EQ(before, AfxGetAppModuleState()->m_pClassList) << "the program's list is as it was";
    EXPECT_FALSE(IsListed("CExtensionThing"));
    CRuntimeClass* const found = CRuntimeClass::FromName("CExtensionThing");
    ASSERT_NE(nullptr, found);
    EXPECT_NE(nullptr, CRuntimeClass::FromName("CExtensionWnd"));
    const std::unique_ptr<CObject> made(found->CreateObject());
    EXPECT_STREQ("CExtensionThing", made->GetRuntimeClass()->m_lpszClassName);
}

TEST(ExtensionModule, WindowsOfTheModuleWorkAndNothingStaysBehind) {
    for (int round = 0; round < 3; ++round) {
        Extension extension;
        ASSERT_NE(nullptr, extension.Handle());
        WNDCLASS wc = {};
        EXPECT_TRUE(::GetClassInfoW(extension.Handle(), kExtensionWindowClass, &wc));
        {
            const std::unique_ptr<CWnd> wnd(
                STATIC_DOWNCAST(CWnd, CRuntimeClass::CreateObject("CExtensionWnd")));
            ASSERT_NE(nullptr, wnd);
            ASSERT_TRUE(
                wnd->CreateEx(0, AfxRegisterWndClass(0), L"", WS_POPUP, 0, 0, 9, 9, nullptr, nullptr));
            EXPECT_EQ(8, wnd->SendMessage(WM_APP, 7));
        }
        extension.Free();
        EXPECT_FALSE(::GetClassInfoW(::GetModuleHandleW(L"windows_framework_module_extension.dll"),
                                     kExtensionWindowClass, &wc));
        EXPECT_EQ(nullptr, ::GetModuleHandleW(L"windows_framework_module_extension.dll"));
        EXPECT_EQ(nullptr, CRuntimeClass::FromName("CExtensionThing"));
        EXPECT_EQ(nullptr, AfxGetAppModuleState()->m_pLibraryList);
    }
}

TEST(ExtensionModule, RefusedLoadGivesTheListsBack) {
    const CRuntimeClass* const before = AfxGetAppModuleState()->m_pClassList;
    ::SetEnvironmentVariableW(L"QV_TEST_EXTENSION_REFUSES", L"1");
    const Extension extension;
    ::SetEnvironmentVariableW(L"QV_TEST_EXTENSION_REFUSES", nullptr);
    EXPECT_EQ(nullptr, extension.Handle());
    EXPECT_EQ(before, AfxGetAppModuleState()->m_pClassList);
    EXPECT_EQ(nullptr, CRuntimeClass::FromName("CExtensionThing"));
    const Extension second;
    EXPECT_NE(nullptr, second.Handle());
    EXPECT_NE(nullptr, CRuntimeClass::FromName("CExtensionThing"));
}

TEST(ExtensionModule, CurrentResourceHandleComesFirstAndFallsBack) {
    Extension extension;
    const HINSTANCE own = AfxGetResourceHandle();
    AfxSetResourceHandle(extension.Handle());
    EXPECT_EQ(extension.Handle(), AfxGetResourceHandle());
    extension.Free();
    EXPECT_EQ(own, AfxGetResourceHandle()) << "the handle of an unloaded module is no resource handle";
    AfxSetResourceHandle(nullptr);
    EXPECT_EQ(own, AfxGetResourceHandle());
}

TEST(ExtensionModule, NullModuleIsRefused) {
    AFX_EXTENSION_MODULE module = {};
    EXPECT_FALSE(AfxInitExtensionModule(module, nullptr));
    AfxTermExtensionModule(module);
    EXPECT_FALSE(module.bInitialized);
}

TEST(ModuleState, IsManagedByScope) {
    AFX_MODULE_STATE other = *AfxGetAppModuleState();
    {
        AFX_MANAGE_STATE(&other)
        EXPECT_EQ(&other, AfxGetModuleState());
        {
            AFX_MANAGE_STATE(AfxGetStaticModuleState())
            EXPECT_EQ(AfxGetAppModuleState(), AfxGetModuleState());
        }
        EXPECT_EQ(&other, AfxGetModuleState());
    }
    EXPECT_EQ(AfxGetAppModuleState(), AfxGetModuleState());
}

TEST(Program, RunsFromStartToEnd) {
    const ChildResult result = runChild(programFolder() + L"\\windows_framework_module_app.exe", L"one two");
    EXPECT_TRUE(result.ended);
    EXPECT_EQ(42u, result.exitCode) << result.output;
}

TEST(Program, WithoutAnApplicationObjectThereIsNone) {
    EXPECT_EQ(nullptr, AfxGetApp());
    EXPECT_EQ(nullptr, AfxGetThread());
    EXPECT_EQ(nullptr, AfxGetMainWnd());
    EXPECT_EQ(::GetModuleHandleW(nullptr), AfxGetInstanceHandle());
    EXPECT_STREQ(L"windows_framework_module", AfxGetAppName()); // the program file's name
    EXPECT_EQ(1, AfxWinMain(AfxGetInstanceHandle(), nullptr, nullptr, SW_HIDE));
}

} // namespace
