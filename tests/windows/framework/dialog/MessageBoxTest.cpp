// AfxMessageBox in a program without an application object.
#include "ModalScript.h"
#include "TestWnd.h"
#include "test_ids.h"

#include <gtest/gtest.h>

using namespace qvtest;

namespace {

HWND WaitBox(Driver& user) {
    return user.waitWindow({.className = L"#32770", .title = AfxGetAppName()});
}

TEST(AfxMessageBox, AnswersWithTheButton) {
    ModalScript script;
    script.step("no", [](Driver& user) { user.click(WaitBox(user), IDNO); });
    EXPECT_EQ(IDNO, script.run([] { return AfxMessageBox(L"Sure?", MB_YESNO); }));
}

TEST(AfxMessageBox, TextOfAResource) {
    ModalScript script;
    script.step("read", [](Driver& user) {
        const HWND box = WaitBox(user);
        bool found = false;
        for (HWND label : findDescendants(box, L"Static"))
            found = found || user.text(label) == L"Is this the text of the resource?";
        EXPECT_TRUE(found) << describeTree(box);
        user.enter();
    });
    EXPECT_EQ(IDOK, script.run([] { return AfxMessageBox(IDS_QUESTION); }));
}

TEST(AfxMessageBox, MissingResourceAndTextAreShownAllTheSame) {
    ModalScript script;
    script.step("number", [](Driver& user) {
        const HWND box = WaitBox(user);
        user.enter();
        user.waitGone(box);
    });
    EXPECT_EQ(IDOK, script.run([] { return AfxMessageBox(54321u); }));
    ModalScript second;
    second.step("nothing", [](Driver& user) {
        WaitBox(user);
        user.enter();
    });
    EXPECT_EQ(IDOK, second.run([] { return AfxMessageBox(static_cast<LPCTSTR>(nullptr)); }));
}

TEST(AfxMessageBox, BelongsToTheActiveWindow) {
    TestWnd owner;
    ASSERT_TRUE(owner.CreateTop());
    owner.ShowWindow(SW_SHOW);
    owner.SetActiveWindow();
    ModalScript script;
    script.step("look", [&](Driver& user) {
        const HWND box = WaitBox(user);
        EXPECT_EQ(owner.m_hWnd, ::GetWindow(box, GW_OWNER));
        EXPECT_FALSE(::IsWindowEnabled(owner.m_hWnd));
        user.enter();
    });
    EXPECT_EQ(IDOK, script.run([] { return AfxMessageBox(L"Here"); }));
    EXPECT_TRUE(owner.IsWindowEnabled());
}

} // namespace
