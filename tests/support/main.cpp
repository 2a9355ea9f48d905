// The entry of every test program.
#include "ModalScript.h"
#include "Watchdog.h"

#include <gtest/gtest.h>

#include <commctrl.h>
#include <fcntl.h>
#include <io.h>
#include <objbase.h>

namespace {

// A test must leave no window behind for the next one: such a window would take its clicks.
class OpenWindowsCheck : public ::testing::EmptyTestEventListener {
    void OnTestEnd(const ::testing::TestInfo&) override {
        for (HWND window : qvtest::findWindows({.thread = GetCurrentThreadId()})) {
            ADD_FAILURE() << "left open: " << qvtest::describeWindow(window);
            DestroyWindow(window);
        }
    }
};

// Every test begins with its own time and with the pointer at the same place, away from the windows: a list that drops
// under a pointer left behind selects the row there.
class SameStart : public ::testing::EmptyTestEventListener {
    void OnTestStart(const ::testing::TestInfo& test) override {
        qvtest::Watchdog::begin(std::string(test.test_suite_name()) + "." + test.name());
        qvtest::moveMouse({GetSystemMetrics(SM_CXSCREEN) - 1, GetSystemMetrics(SM_CYSCREEN) - 1});
    }
    void OnTestEnd(const ::testing::TestInfo&) override { qvtest::Watchdog::end(); }
};

} // namespace

int main(int argc, char** argv) {
    _setmode(_fileno(stdout), _O_BINARY); // plain line ends for whoever reads along
    SetErrorMode(SEM_NOGPFAULTERRORBOX);  // the library itself keeps the system from asking for disks
    const HRESULT com = CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    INITCOMMONCONTROLSEX controls = {sizeof controls,
                                     ICC_WIN95_CLASSES | ICC_USEREX_CLASSES | ICC_STANDARD_CLASSES};
    InitCommonControlsEx(&controls);
    ::testing::InitGoogleTest(&argc, argv);
    ::testing::UnitTest::GetInstance()->listeners().Append(new OpenWindowsCheck);
    ::testing::UnitTest::GetInstance()->listeners().Append(new SameStart);
    const int result = RUN_ALL_TESTS();
    if (SUCCEEDED(com))
        CoUninitialize();
    return result;
}
