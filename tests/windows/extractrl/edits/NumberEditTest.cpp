#include "ProbeDialog.h"

#include <LeakGuard.h>
#include <ModalScript.h>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using namespace qvtest;
using namespace _qv_extractrl;

namespace {

class NumberEdit : public testing::Test {
  protected:
    // Runs the dialog with the number edit set up and the user's steps beside it.
    void drive(const std::function<void(Driver&, HWND dialog, HWND edit)>& steps) {
        ModalScript script;
        script.step("use the number edit", [&](Driver& user) {
            const HWND wnd = user.waitWindow({.title = L"Probe"});
            const HWND edit = user.waitControl(wnd, IDC_NUMBER);
            steps(user, wnd, edit);
            if (::IsWindow(wnd))
                user.click(wnd, IDCANCEL);
        });
        result = script.run([&] { return probe.DoModal(); });
    }

    double pos(Driver& user) {
        double value = 0;
        user.onUi([&] { value = probe.number()->GetPos(); });
        return value;
    }

    ProbeDialog probe;
    INT_PTR result = 0;
};

void setUpPercent(ProbeDialog& opened) {
    opened.number()->SetDecimals(1);
    opened.number()->SetRange(-7.3, 109.0);
    opened.number()->SetPos(100.0);
    opened.number()->LimitText(5);
}

void setUpCode(ProbeDialog& opened) {
    opened.number()->SetRange(0, 255);
    opened.number()->SetPos(16);
    opened.number()->LimitText(5);
}

TEST_F(NumberEdit, TypingTellsEachChangeAndOnceTheValue) {
    probe.onInit = setUpCode;
    drive([&](Driver& user, HWND wnd, HWND edit) {
        EXPECT_EQ(user.text(edit), L"16");
        user.replaceText(edit, L"235");
        EXPECT_EQ(user.text(edit), L"235");
        EXPECT_GE(probe.changes[IDC_NUMBER], 3);
        EXPECT_EQ(probe.countNotes(QVEDIT_CHANGED), 0);
        EXPECT_EQ(pos(user), 235);
        user.click(wnd, IDC_PLAIN);
        EXPECT_EQ(probe.countNotes(QVEDIT_CHANGED), 1);
        EXPECT_EQ(probe.notes.back().pos, 235);
    });
}

TEST_F(NumberEdit, RangeIsAppliedWhenTheValueIsFinished) {
    probe.onInit = setUpCode;
    drive([&](Driver& user, HWND wnd, HWND edit) {
        user.replaceText(edit, L"999");
        EXPECT_EQ(user.text(edit), L"999");
        EXPECT_EQ(pos(user), 255); // bounded for whoever asks
        user.click(wnd, IDC_PLAIN);
        EXPECT_EQ(user.text(edit), L"255");
        EXPECT_EQ(probe.notes.back().pos, 255);
        user.replaceText(edit, L"0");
        user.click(wnd, IDC_PLAIN);
        EXPECT_EQ(pos(user), 0);
    });
}

TEST_F(NumberEdit, FilterTakesNumbersOnly) {
    probe.onInit = setUpCode;
    drive([&](Driver& user, HWND, HWND edit) {
        user.replaceText(edit, L"1a2-34e+x中5");
        EXPECT_EQ(user.text(edit), L"12345");
        user.type(L"6");
        EXPECT_EQ(user.text(edit), L"12345"); // limit of 5 characters
    });
}

TEST_F(NumberEdit, AWholeNumberTakesNoFraction) {
    probe.onInit = setUpCode;
    drive([&](Driver& user, HWND, HWND edit) {
        user.replaceText(edit, L"12.7");
        EXPECT_EQ(user.text(edit), L"12");
        user.type(L",5");
        EXPECT_EQ(user.text(edit), L"12");
        user.press(VK_END); // the caret is put where it stands: the user means it
        user.type(L"7");
        EXPECT_EQ(user.text(edit), L"127");
        EXPECT_EQ(pos(user), 127);
    });
}

TEST_F(NumberEdit, UndoTakesStepsBack) {
    probe.onInit = setUpCode;
    drive([&](Driver& user, HWND, HWND edit) {
        user.click(edit);
        user.press(VK_UP);
        EXPECT_EQ(user.text(edit), L"17");
        user.press('Z', Control);
        EXPECT_EQ(user.text(edit), L"16");
        EXPECT_EQ(pos(user), 16);
        user.wheel(edit, {5, 5}, 3);
        EXPECT_EQ(user.text(edit), L"19");
        user.press('Z', Control);
        EXPECT_EQ(user.text(edit), L"16");
        EXPECT_EQ(pos(user), 16);
    });
}

TEST_F(NumberEdit, DecimalsAndSignOfTheRange) {
    probe.onInit = setUpPercent;
    drive([&](Driver& user, HWND wnd, HWND edit) {
        EXPECT_EQ(user.text(edit), L"100.0");
        user.replaceText(edit, L"-5,26");
        EXPECT_EQ(user.text(edit), L"-5.2");
        user.click(wnd, IDC_PLAIN);
        EXPECT_DOUBLE_EQ(pos(user), -5.2);
        user.replaceText(edit, L"-9");
        user.click(wnd, IDC_PLAIN);
        EXPECT_EQ(user.text(edit), L"-7.3");
        user.replaceText(edit, L"-");
        user.click(wnd, IDC_PLAIN);
        EXPECT_EQ(user.text(edit), L"-7.3"); // no number: the one before stays
    });
}

TEST_F(NumberEdit, ArrowsPageKeysAndWheelStep) {
    probe.onInit = setUpPercent;
    drive([&](Driver& user, HWND, HWND edit) {
        user.click(edit);
        user.press(VK_UP);
        EXPECT_EQ(user.text(edit), L"100.1");
        user.press(VK_DOWN);
        user.press(VK_DOWN);
        EXPECT_EQ(user.text(edit), L"99.9");
        user.press(VK_UP, Shift);
        EXPECT_EQ(user.text(edit), L"100.9");
        user.press(VK_NEXT);
        EXPECT_EQ(user.text(edit), L"99.9");
        user.wheel(edit, {5, 5}, 2);
        EXPECT_EQ(user.text(edit), L"100.1");
        user.wheel(edit, {5, 5}, -1);
        EXPECT_EQ(user.text(edit), L"100.0");
        EXPECT_GE(probe.countNotes(QVEDIT_CHANGED), 7);
        EXPECT_GT(probe.changes[IDC_NUMBER], 0);
    });
}

TEST_F(NumberEdit, StepsStopAtTheRange) {
    probe.onInit = setUpCode;
    drive([&](Driver& user, HWND, HWND edit) {
        user.click(edit);
        for (int i = 0; i < 3; ++i)
            user.press(VK_NEXT);
        EXPECT_EQ(user.text(edit), L"0");
        const int told = probe.countNotes(QVEDIT_CHANGED);
        user.press(VK_DOWN);
        EXPECT_EQ(probe.countNotes(QVEDIT_CHANGED), told);
    });
}

TEST_F(NumberEdit, EnterFinishesTellsAndPressesTheDefaultButton) {
    probe.onInit = setUpCode;
    drive([&](Driver& user, HWND wnd, HWND edit) {
        user.replaceText(edit, L"300");
        user.enter();
        user.waitGone(wnd);
    });
    EXPECT_EQ(result, IDOK);
    ASSERT_EQ(probe.notes.size(), 2u);
    EXPECT_EQ(probe.notes[0].code, QVEDIT_CHANGED);
    EXPECT_EQ(probe.notes[0].pos, 255);
    EXPECT_EQ(probe.notes[1].code, QVEDIT_ENTER);
}

TEST_F(NumberEdit, EnterLeavesTheDialogToAParentThatAnswers) {
    probe.onInit = setUpCode;
    probe.onNote = [](ProbeDialog& opened, const Note& note) {
        if (note.code == QVEDIT_ENTER)
            opened.PostMessage(WM_COMMAND, IDCANCEL);
    };
    drive([&](Driver& user, HWND wnd, HWND edit) {
        user.click(edit);
        user.enter();
        user.waitGone(wnd);
    });
    EXPECT_EQ(result, IDCANCEL);
}

TEST_F(NumberEdit, EscapeReachesTheDialog) {
    probe.onInit = setUpCode;
    drive([&](Driver& user, HWND wnd, HWND edit) {
        user.replaceText(edit, L"3");
        user.escape();
        user.waitGone(wnd);
    });
    EXPECT_EQ(result, IDCANCEL);
}

TEST_F(NumberEdit, PasteTakesANumberAndRefusesTheRest) {
    probe.onInit = setUpCode;
    drive([&](Driver& user, HWND wnd, HWND edit) {
        const auto pasteOver = [&](const std::wstring& text) {
            const HWND plain = findControl(wnd, IDC_PLAIN);
            user.onUi([&] { ::SetWindowTextW(plain, text.c_str()); });
            user.onUi([&] {
                ::SendMessageW(plain, EM_SETSEL, 0, -1);
                ::SendMessageW(plain, WM_COPY, 0, 0);
            });
            user.click(edit);
            user.press('A', Control);
            user.onUi([&] { ::SendMessageW(edit, EM_SETSEL, 0, -1); });
            user.press('V', Control);
            return user.text(edit);
        };
        EXPECT_EQ(pasteOver(L" 42 "), L"42");
        EXPECT_EQ(pasteOver(L"4x2"), L"42");
        EXPECT_EQ(pasteOver(L"12.7"), L"42");
        EXPECT_EQ(pasteOver(L"-1"), L"42");
        EXPECT_EQ(pasteOver(L"１２"), L"12");
        EXPECT_EQ(pasteOver(std::wstring(20000, L'A')), L"12");
    });
}

TEST_F(NumberEdit, SettersAreSilentAndExact) {
    probe.onInit = [](ProbeDialog& opened) {
        CQVNumberEditEx& edit = *opened.number();
        opened.changes.clear();
        edit.SetDecimals(1);
        edit.SetRange(-7.3, 109.0);
        edit.SetPos(7.305936073);
        EXPECT_EQ(edit.GetPos(), 7.305936073); // not what the text says
        CString text;
        edit.GetWindowText(text);
        EXPECT_STREQ(text, L"7.3");
        edit.ApplyRange();
        EXPECT_EQ(edit.GetPos(), 7.305936073);
        EXPECT_TRUE(opened.changes.empty());
        EXPECT_TRUE(opened.notes.empty());
        edit.SetRange(0, 5);
        EXPECT_EQ(edit.GetPos(), 5);
        double lo = 0, hi = 0;
        edit.SetRange(9, 3);
        edit.GetRange(lo, hi);
        EXPECT_EQ(lo, 3);
        EXPECT_EQ(hi, 9);
        edit.SetPos(std::numeric_limits<double>::quiet_NaN());
        EXPECT_EQ(edit.GetPos(), 3);
        edit.SetPos(std::numeric_limits<double>::infinity());
        EXPECT_EQ(edit.GetPos(), 9);
        edit.SetDecimals(100);
        EXPECT_EQ(edit.GetDecimals(), 9);
        edit.SetDecimals(-1);
        EXPECT_EQ(edit.GetDecimals(), 0);
    };
    drive([](Driver&, HWND, HWND) {});
}

TEST_F(NumberEdit, WorksWithoutAWindow) {
    CQVNumberEditEx edit;
    edit.SetRange(0, 10);
    edit.SetPos(11);
    EXPECT_EQ(edit.GetPos(), 10);
    edit.ApplyRange();
    EXPECT_EQ(edit.GetPos(), 10);
}

} // namespace
