// What the tests of the message box share: one language, no remembered answer, the box found by its title.
#pragma once

#include "QVCommonWnd.h"
#include "res/ResourceIds.h"

#include "ModalScript.h"

#include <QVDict.h>

#include <gtest/gtest.h>

namespace messagebox_test {

using namespace _qv_commonwnd;
using qvtest::Driver;
using qvtest::ModalScript;

inline constexpr wchar_t kTitle[] = L"Question of the test";

class QuestionBox : public testing::Test {
  protected:
    void SetUp() override {
        ASSERT_TRUE(_qv_commonctrl::QV_SetLanguage(L"en-US"));
        QV_MessageRest();
    }
    void TearDown() override { QV_MessageRest(); }

    static HWND Box(Driver& user) { return user.waitWindow({.title = kTitle}); }

    // Shows a box by QV_MessageBox, lets the user act on it and returns the answer.
    static UINT Ask(const std::function<void(Driver&, HWND)>& act, const CString& text = L"Go on?",
                    UINT type = 0, CWnd* parent = nullptr) {
        ModalScript script;
        script.step("act on the box", [&](Driver& user) { act(user, Box(user)); });
        return script.run([&] { return QV_MessageBox(kTitle, text, type, parent); });
    }

    // Expects an answer without any box.
    static void ExpectSilent(UINT answer) {
        ModalScript script; // closes a box that comes all the same, and fails
        EXPECT_EQ(answer,
                  script.run([&] { return QV_MessageBox(L"Other title", L"Other question", 0, nullptr); }));
    }

    // Whether the next QV_MessageBox shows a box.
    static bool Asks() {
        bool shown = false;
        Ask([&](Driver& user, HWND box) {
            shown = true;
            user.click(box, IDC_MSGBOX_NO);
        });
        return shown;
    }
};

} // namespace messagebox_test
