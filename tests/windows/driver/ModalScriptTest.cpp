#include "PlainDialog.h"

#include "ChildProcess.h"
#include "ModalScript.h"
#include "Watchdog.h"

#include <gtest/gtest.h>

using namespace qvtest;

namespace {

HWND waitDialog(Driver& user) {
    return user.waitWindow({.title = PlainDialog::kTitle});
}

TEST(ModalScript, TypesTicksAndConfirms) {
    PlainDialog dialog;
    ModalScript script;
    script.step("fill in", [](Driver& user) {
        HWND window = waitDialog(user);
        user.click(window, PlainDialog::kEditId);
        user.type(L"Ab 9,-\u4E2D\u6587");
        user.waitText(findControl(window, PlainDialog::kEditId), L"Ab 9,-\u4E2D\u6587");
        user.click(window, PlainDialog::kCheckId);
    });
    script.step("confirm", [](Driver& user) { user.click(waitDialog(user), IDOK); });
    EXPECT_EQ(IDOK, script.run([&] { return dialog.run(); }));
    EXPECT_EQ(L"Ab 9,-\u4E2D\u6587", dialog.text);
    EXPECT_TRUE(dialog.checked);
    EXPECT_FALSE(script.failed());
}

TEST(ModalScript, KeysReachTheDialog) {
    for (const auto& [key, answer] : {std::pair<WORD, INT_PTR>{VK_RETURN, IDOK}, {VK_ESCAPE, IDCANCEL}}) {
        PlainDialog dialog;
        ModalScript script;
        script.step("key", [pressed = key](Driver& user) {
            user.waitFocus(findControl(waitDialog(user), PlainDialog::kEditId));
            user.press(pressed);
        });
        EXPECT_EQ(answer, script.run([&] { return dialog.run(); }));
    }
}

TEST(ModalScript, ReplacesTextAndSelectsByKeyboard) {
    PlainDialog dialog;
    ModalScript script;
    script.step("type twice", [](Driver& user) {
        HWND edit = findControl(waitDialog(user), PlainDialog::kEditId);
        user.replaceText(edit, L"first");
        user.replaceText(edit, L"second");
        user.press(VK_HOME);
        user.press(VK_RIGHT, Shift);
        user.type(L"X");
        user.enter();
    });
    EXPECT_EQ(IDOK, script.run([&] { return dialog.run(); }));
    EXPECT_EQ(L"Xecond", dialog.text);
}

TEST(ModalScript, RunsActionsOnTheThreadOfTheLoop) {
    PlainDialog dialog;
    ModalScript script;
    DWORD thread = 0;
    script.step("ask", [&](Driver& user) {
        HWND window = waitDialog(user);
        user.onUi([&] {
            thread = GetCurrentThreadId();
            SetFocus(GetDlgItem(window, IDCANCEL));
        });
        user.waitFocus(GetDlgItem(window, IDCANCEL));
        user.press(VK_SPACE);
    });
    EXPECT_EQ(IDCANCEL, script.run([&] { return dialog.run(); }));
    EXPECT_EQ(GetCurrentThreadId(), thread);
}

// Each way of not closing is ended by stronger means; the test's own failure is kept back and looked at.
class ModalScriptRescue : public ::testing::TestWithParam<PlainDialog::Closing> {};

TEST_P(ModalScriptRescue, HungDialogIsCaughtWithPicture) {
    PlainDialog dialog(GetParam());
    ModalScript script;
    script.keepFailures();
    const std::wstring picture = picturePath(L"Ways-ModalScriptRescue.HungDialogIsCaughtWithPicture-" +
                                             std::to_wstring(static_cast<int>(GetParam())));
    DeleteFileW(picture.c_str());
    script.step("wait in vain", [](Driver& user) {
        HWND window = waitDialog(user);
        user.waitText(findControl(window, PlainDialog::kEditId), L"never", Milliseconds(200));
    });
    EXPECT_NE(IDOK, script.run([&] { return dialog.run(); }));
    EXPECT_TRUE(script.failed());
    EXPECT_NE(std::string::npos, script.failure().find("wait in vain")) << script.failure();
    EXPECT_NE(std::string::npos, script.failure().find("never")) << script.failure();
    EXPECT_NE(std::string::npos, script.failure().find("Plain dialog")) << script.failure();
    EXPECT_FALSE(Picture::load(picture).empty());
    EXPECT_EQ(nullptr, findWindow({.title = PlainDialog::kTitle}));
}

INSTANTIATE_TEST_SUITE_P(Ways, ModalScriptRescue,
                         ::testing::Values(PlainDialog::Closing::Polite, PlainDialog::Closing::DeafToClose,
                                           PlainDialog::Closing::Deaf));

TEST(ModalScript, BodyThatOutlivesTheLimitIsEnded) {
    PlainDialog dialog;
    ModalScript script(Milliseconds(600));
    script.keepFailures();
    script.step("forget to close", [](Driver& user) {
        waitDialog(user);
        user.waitFor(
            "nothing", [] { return false; }, Milliseconds(20000));
    });
    const DWORD start = GetTickCount();
    script.run([&] { return dialog.run(); });
    EXPECT_LT(GetTickCount() - start, 6000u);
    EXPECT_TRUE(script.failed());
    EXPECT_NE(std::string::npos, script.failure().find("still runs after 600 ms")) << script.failure();
}

TEST(ModalScript, FailurePictureShowsTheDialog) {
    PlainDialog dialog;
    ModalScript script;
    std::wstring path;
    RECT place = {};
    script.step("picture", [&](Driver& user) {
        HWND window = waitDialog(user);
        user.waitFocus(findControl(window, PlainDialog::kEditId));
        GetWindowRect(window, &place);
        path = saveFailurePicture();
        user.escape();
    });
    script.run([&] { return dialog.run(); });
    const Picture shot = Picture::load(path);
    ASSERT_EQ(GetSystemMetrics(SM_CXSCREEN), shot.width());
    EXPECT_GT(shot.count(GetSysColor(COLOR_BTNFACE), place), 1000);
    EXPECT_GT(shot.colours(place), 3);
}

TEST(ModalScript, ADeadThreadEndsTheProgram) {
    const ChildResult child =
        runChild(programFolder() + L"\\windows_driver_probe.exe", L"--gtest_filter=*NeverReturns");
    EXPECT_TRUE(child.ended);
    EXPECT_EQ(ModalScript::kHungExitCode, child.exitCode) << child.output;
    EXPECT_NE(std::string::npos, child.output.find("cannot be ended")) << child.output;
}

TEST(Watchdog, EndsWhatHangsOutsideOfAScript) {
    const ChildResult child =
        runChild(programFolder() + L"\\windows_driver_probe.exe", L"--gtest_filter=*SleepsLong",
                 {.folder = {}, .environment = {{L"QV_TEST_LIMIT_MS", L"300"}}});
    EXPECT_TRUE(child.ended);
    EXPECT_EQ(Watchdog::kExitCode, child.exitCode) << child.output;
    for (const char* told : {"hangs: Probe.SleepsLong", "  thread ", "ntdll.dll+0x", "picture: "})
        EXPECT_NE(std::string::npos, child.output.find(told)) << told << " in " << child.output;
}

} // namespace
