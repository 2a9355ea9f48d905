// What the tests of the message box share: no remembered answer, the box found by its title.
#pragma once

#include "QVCommonWnd.h"
#include "res/ResourceIds.h"

#include "ModalScript.h"
#include "SkinnedTest.h"

namespace messagebox_test {

using namespace _qv_commonwnd;
using qvtest::Driver;
using qvtest::ModalScript;

inline constexpr wchar_t kTitle[] = L"Question of the test";

class QuestionBox : public qvtest::SkinnedTest {
  protected:
    void SetUp() override {
        SkinnedTest::SetUp();
        QV_MessageRest();
    }
    void TearDown() override {
        QV_MessageRest();
        SkinnedTest::TearDown();
    }

    // Shows a box by QV_MessageBox, lets the user act on it and returns the answer.
    static UINT Ask(const std::function<void(Driver&, HWND)>& act, const CString& text = L"Go on?",
                    UINT type = 0, CWnd* parent = nullptr) {
        return qvtest::runBeside([&] { return QV_MessageBox(kTitle, text, type, parent); }, {.title = kTitle},
                                 act);
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
