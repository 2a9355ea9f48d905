// The entry of every test program.
#include "ModalScript.h"

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
    const int result = RUN_ALL_TESTS();
    if (SUCCEEDED(com))
        CoUninitialize();
    return result;
}
