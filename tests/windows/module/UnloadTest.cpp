// Loading, using and unloading the product leaves nothing in the process: no module, window class, hook,
// handle.
#include "ChildProcess.h"
#include "LeakGuard.h"
#include "WindowQuery.h"

#include <gtest/gtest.h>

#include <windows.h>

#include <iterator>
#include <set>
#include <string>
#include <vector>

namespace {

constexpr const wchar_t* kOurModules[] = {L"AfxFrameU.dll",     L"QVCommonClassU.dll", L"QVCommonCtrlU.dll",
                                          L"LWSupportAPIU.dll", L"QVExtraCtrlU.dll",   L"QVCommonWndU.dll",
                                          L"YBColorSpace.dll"};

// Names of the window classes that are registered for a module and are not the system's own.
std::set<std::wstring> ClassesOf(HINSTANCE module) {
    constexpr unsigned kFirstAtom = 0xC000;
    constexpr unsigned kLastAtom = 0xFFFF;
    std::set<std::wstring> names;
    for (unsigned atom = kFirstAtom; atom <= kLastAtom; ++atom) {
        WNDCLASSEXW wc = {};
        wc.cbSize = sizeof(wc);
        const auto* name = reinterpret_cast<LPCWSTR>(static_cast<ULONG_PTR>(atom));
        if (GetClassInfoExW(module, name, &wc) && wc.hInstance == module)
            names.insert(std::to_wstring(atom));
    }
    return names;
}

class Unload : public testing::Test {
  protected:
    void SetUp() override {
        ASSERT_TRUE(SetDllDirectoryW((qvtest::programFolder() + L"\\..\\..\\stage\\bin").c_str()));
    }
    void TearDown() override { SetDllDirectoryW(nullptr); }

    // Loads the library that uses the product, lets it show a box, frees both. Modules that were in between
    // are kept.
    void LoadUseFree() {
        const HMODULE user =
            LoadLibraryW((qvtest::programFolder() + L"\\module\\qv_module_user.dll").c_str());
        ASSERT_NE(nullptr, user) << GetLastError();
        const auto use =
            reinterpret_cast<UINT (*)()>(reinterpret_cast<void*>(GetProcAddress(user, "UseCommonWnd")));
        ASSERT_NE(nullptr, use);
        EXPECT_EQ(102u, use());
        m_modules.clear();
        for (const wchar_t* name : kOurModules)
            if (const HMODULE module = GetModuleHandleW(name))
                m_modules.push_back(module);
        EXPECT_GE(m_modules.size(), 6u);
        m_classesInUse = 0;
        for (const HMODULE module : m_modules)
            m_classesInUse += ClassesOf(module).size();
        FreeLibrary(user);
    }

    std::vector<HMODULE> m_modules;
    std::size_t m_classesInUse = 0;
};

TEST_F(Unload, LeavesNoModule) {
    LoadUseFree();
    for (const wchar_t* name : kOurModules)
        EXPECT_EQ(nullptr, GetModuleHandleW(name)) << qvtest::toUtf8(name);
}

TEST_F(Unload, LeavesNoWindowClass) {
    LoadUseFree();
    for (const HMODULE module : m_modules)
        EXPECT_TRUE(ClassesOf(module).empty());
    RecordProperty("classesInUse", static_cast<int>(m_classesInUse));
}

TEST_F(Unload, LeavesNoHandleWindowOrDrawingObject) {
    LoadUseFree();
    LoadUseFree();
    const qvtest::LeakGuard guard;
    constexpr int kRounds = 5;
    for (int i = 0; i < kRounds; ++i)
        LoadUseFree();
    guard.expectNothingLeft();
}

// A hook left behind would point into freed code: creating and driving a window afterwards would end the
// process.
TEST_F(Unload, LeavesNoHook) {
    LoadUseFree();
    const HWND window = CreateWindowExW(0, L"EDIT", L"", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 100, 60,
                                        nullptr, nullptr, nullptr, nullptr);
    ASSERT_NE(nullptr, window);
    SendMessageW(window, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L"still alive"));
    PostMessageW(window, WM_KEYDOWN, VK_HOME, 0);
    PostMessageW(window, WM_MOUSEMOVE, 0, MAKELPARAM(5, 5));
    MSG msg;
    while (PeekMessageW(&msg, nullptr, 0, 0, PM_REMOVE)) {
        TranslateMessage(&msg);
        DispatchMessageW(&msg);
    }
    EXPECT_EQ(L"still alive", qvtest::textOf(window));
    DestroyWindow(window);
}

} // namespace
