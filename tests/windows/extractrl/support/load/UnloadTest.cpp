// The DLL registers its window classes while it is loaded and takes them back when it is unloaded.
#include <LeakGuard.h>

#include <gtest/gtest.h>

#include <windows.h>

namespace {

constexpr wchar_t kDll[] = L"QVExtraCtrlU.dll";
constexpr const wchar_t* kClasses[] = {L"NumberEditClass", L"QVTimeCodeEditExClass", L"QVRectTracker",
                                       L"QVVUTableCtrl"};

bool isRegistered(const wchar_t* name) {
    WNDCLASSW description;
    return ::GetClassInfoW(::GetModuleHandleW(nullptr), name, &description) != FALSE;
}

TEST(ExtraUnload, ClassesLiveAsLongAsTheDll) {
    for (int round = 0; round < 3; ++round) {
        for (const wchar_t* const name : kClasses)
            EXPECT_FALSE(isRegistered(name));
        const HMODULE dll = ::LoadLibraryW(kDll);
        ASSERT_NE(dll, nullptr) << ::GetLastError();
        for (const wchar_t* const name : kClasses)
            EXPECT_TRUE(isRegistered(name));
        ASSERT_TRUE(::FreeLibrary(dll));
        EXPECT_EQ(::GetModuleHandleW(kDll), nullptr);
    }
    for (const wchar_t* const name : kClasses)
        EXPECT_FALSE(isRegistered(name));
}

TEST(ExtraUnload, LoadingAndUnloadingLeavesNothingBehind) {
    // The platform's printing library, which comes with the common dialogs, loses a handle at each load.
    const HMODULE commonDialogs = ::LoadLibraryW(L"comdlg32.dll");
    qvtest::expectNoLeak(50, [] {
        const HMODULE dll = ::LoadLibraryW(kDll);
        ASSERT_NE(dll, nullptr);
        ::FreeLibrary(dll);
    });
    ::FreeLibrary(commonDialogs);
}

} // namespace
