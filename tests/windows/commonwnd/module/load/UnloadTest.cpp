// Loading, using and unloading the product leaves nothing in the process: no module, window class, hook,
// handle.
#include "ChildProcess.h"
#include "LeakGuard.h"
#include "WindowQuery.h"

#include <gtest/gtest.h>

#include <windows.h>

#include <algorithm>
#include <iterator>
#include <set>
#include <string>
#include <vector>

namespace {

constexpr const wchar_t* kOurModules[] = {L"AfxFrameU.dll",     L"QVCommonClassU.dll", L"QVCommonCtrlU.dll",
                                          L"LWSupportAPIU.dll", L"QVExtraCtrlU.dll",   L"QVCommonWndU.dll",
                                          L"YBColorSpace.dll"};

// Class names share their atoms with the clipboard formats.
std::string ClassName(unsigned atom) {
    wchar_t name[MAX_PATH] = {};
    GetClipboardFormatNameW(atom, name, MAX_PATH);
    return qvtest::toUtf8(name);
}

// Registered for all modules by the system itself when a program first shows a window: the controls of the version that
// its manifest names, and the platform's window for input methods.
bool IsOfTheSystem(const std::string& name) {
    return name.find('!') != std::string::npos || name == "WineX11IME";
}

// The names of the window classes that a module sees: its own and those registered for all modules.
std::set<std::string> ClassesSeenBy(HINSTANCE module) {
    constexpr unsigned kFirstAtom = 0xC000;
    constexpr unsigned kLastAtom = 0xFFFF;
    std::set<std::string> names;
    for (unsigned atom = kFirstAtom; atom <= kLastAtom; ++atom) {
        WNDCLASSEXW wc = {};
        wc.cbSize = sizeof(wc);
        if (GetClassInfoExW(module, reinterpret_cast<LPCWSTR>(static_cast<ULONG_PTR>(atom)), &wc))
            names.insert(ClassName(atom));
    }
    return names;
}

// Those of now that were not there before.
std::vector<std::string> Added(const std::set<std::string>& now, const std::set<std::string>& before) {
    std::vector<std::string> added;
    std::set_difference(now.begin(), now.end(), before.begin(), before.end(), std::back_inserter(added));
    added.erase(std::remove_if(added.begin(), added.end(), IsOfTheSystem), added.end());
    return added;
}

// Nobody's module: sees only what is registered for all.
HINSTANCE NoModule() {
    return reinterpret_cast<HINSTANCE>(static_cast<ULONG_PTR>(0x10000));
}

class LoadedLibrary {
  public:
    explicit LoadedLibrary(const wchar_t* name) : m_module(LoadLibraryW(name)) {}
    ~LoadedLibrary() { FreeLibrary(m_module); }
    LoadedLibrary(const LoadedLibrary&) = delete;
    LoadedLibrary& operator=(const LoadedLibrary&) = delete;

  private:
    HMODULE m_module;
};

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
            LoadLibraryW((qvtest::programFolder() + L"\\windows_commonwnd_module_load_user.dll").c_str());
        ASSERT_NE(nullptr, user) << GetLastError();
        const auto use =
            reinterpret_cast<UINT (*)()>(reinterpret_cast<void*>(GetProcAddress(user, "UseCommonWnd")));
        ASSERT_NE(nullptr, use);
        EXPECT_EQ(102u, use());
        m_modules.clear();
        for (const wchar_t* name : kOurModules)
            if (const HMODULE module = GetModuleHandleW(name))
                m_modules.push_back(module);
        EXPECT_NE(nullptr, GetModuleHandleW(L"QVCommonWndU.dll"));
        FreeLibrary(user);
    }

    std::vector<HMODULE> m_modules;
};

TEST_F(Unload, LeavesNoModule) {
    LoadUseFree();
    for (const wchar_t* name : kOurModules)
        EXPECT_EQ(nullptr, GetModuleHandleW(name)) << qvtest::toUtf8(name);
}

TEST_F(Unload, LeavesNoWindowClass) {
    // The system's libraries that come with ours register classes for all modules at their first load.
    const LoadedLibrary commonDialogs(L"comdlg32.dll");
    const LoadedLibrary shell(L"shell32.dll");
    const HINSTANCE program = GetModuleHandleW(nullptr);
    const std::set<std::string> ofAll = ClassesSeenBy(NoModule());
    const std::set<std::string> ofProgram = ClassesSeenBy(program);
    LoadUseFree();
    const std::vector<std::string> none;
    EXPECT_EQ(none, Added(ClassesSeenBy(NoModule()), ofAll));
    EXPECT_EQ(none, Added(ClassesSeenBy(program), ofProgram));
    ASSERT_FALSE(m_modules.empty());
    for (const HMODULE module : m_modules)
        EXPECT_EQ(none, Added(ClassesSeenBy(module), ofAll));
}

// Without this the test above could pass because it sees nothing.
TEST_F(Unload, ClassOfAModuleIsSeen) {
    const HINSTANCE program = GetModuleHandleW(nullptr);
    WNDCLASSW wc = {};
    wc.lpfnWndProc = DefWindowProcW;
    wc.hInstance = program;
    wc.lpszClassName = L"QVModuleTestClass";
    ASSERT_NE(0, RegisterClassW(&wc));
    EXPECT_EQ(1u, ClassesSeenBy(program).count("QVModuleTestClass"));
    EXPECT_EQ(0u, ClassesSeenBy(NoModule()).count("QVModuleTestClass"));
    UnregisterClassW(wc.lpszClassName, program);
}

TEST_F(Unload, LeavesNoHandleWindowDrawingObjectOrMemory) {
    // The platform's printing library, which comes with the common dialogs, loses a handle at each load.
    const LoadedLibrary commonDialogs(L"comdlg32.dll");
    constexpr int kRounds = 60;
    qvtest::expectNoLeak(kRounds, [this] { LoadUseFree(); }, {.heapBlocks = 1}); // of the box's static
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
