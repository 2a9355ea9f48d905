#include "ProbeDialog.h"

#include <ModalScript.h>

#include <gtest/gtest.h>

#include <windowsx.h>

#include <climits>

using namespace qvtest;
using namespace _qv_extractrl;
using _qv_commonctrl::TimecodeFrameRate;

namespace {

class TimeCodeEdit : public testing::Test {
  protected:
    void drive(const std::function<void(Driver&, HWND dialog, HWND label, HWND frames)>& steps) {
        probe.onInit = [this](ProbeDialog& opened) {
            opened.frames()->SetEditMode(QVTIMECODE_FRAMES);
            for (auto* const edit : {opened.timeCode(), opened.frames()}) {
                edit->SetFrameRate(rate);
                edit->SetFrame(start, TRUE);
            }
        };
        ModalScript script;
        script.step("use the timecode edits", [&](Driver& user) {
            const HWND wnd = user.waitWindow({.title = L"Probe"});
            steps(user, wnd, user.waitControl(wnd, IDC_TIMECODE), user.waitControl(wnd, IDC_FRAMES));
            if (::IsWindow(wnd))
                user.click(wnd, IDCANCEL);
        });
        result = script.run([&] { return probe.DoModal(); });
    }

    __int64 frame(Driver& user, bool ofLabel = true) {
        __int64 value = 0;
        user.onUi([&] { value = (ofLabel ? probe.timeCode() : probe.frames())->GetFrame(); });
        return value;
    }

    // The keyboard enters the edit, which selects all of it.
    void tabInto(Driver& user, HWND wnd) {
        user.click(wnd, IDC_PLAIN);
        user.press(VK_TAB);
    }

    // The keyboard leaves the edit: a click could make a double click with the one before it.
    void leave(Driver& user) { user.press(VK_TAB); }

    // Where the label's characters stand.
    void clickField(Driver& user, HWND edit, int character) {
        POINT place = {};
        user.onUi([&] {
            const LRESULT at = ::SendMessageW(edit, EM_POSFROMCHAR, static_cast<WPARAM>(character), 0);
            place = {GET_X_LPARAM(at) + 2, GET_Y_LPARAM(at) + 4};
        });
        user.clickAt(edit, place);
    }

    // Keeps the two edits in step, as a dialog does that shows a position in both ways.
    void linkBoth() {
        probe.onNote = [](ProbeDialog& opened, const Note& note) {
            if (note.code != QVEDIT_CHANGED)
                return;
            auto* const other = note.sender == opened.timeCode() ? opened.frames() : opened.timeCode();
            other->SetFrame(note.frame, TRUE);
        };
    }

    ProbeDialog probe;
    TimecodeFrameRate rate;
    __int64 start = 50;
    INT_PTR result = 0;
};

TEST_F(TimeCodeEdit, ShowsLabelAndCount) {
    drive([&](Driver& user, HWND, HWND label, HWND frames) {
        EXPECT_EQ(user.text(label), L"00:00:02:00");
        EXPECT_EQ(user.text(frames), L"50");
    });
}

TEST_F(TimeCodeEdit, TypingACountMovesTheLabelAtOnce) {
    linkBoth();
    drive([&](Driver& user, HWND, HWND label, HWND frames) {
        user.replaceText(frames, L"75");
        EXPECT_EQ(user.text(label), L"00:00:03:00");
        EXPECT_EQ(user.text(frames), L"75");
        EXPECT_EQ(frame(user), 75);
    });
}

TEST_F(TimeCodeEdit, DigitsFillFromTheRight) {
    linkBoth();
    drive([&](Driver& user, HWND wnd, HWND label, HWND frames) {
        tabInto(user, wnd);
        user.type(L"1");
        EXPECT_EQ(user.text(label), L"00:00:00:01");
        user.type(L"23");
        EXPECT_EQ(user.text(label), L"00:00:01:23");
        EXPECT_EQ(user.text(frames), L"48");
        user.type(L"45");
        EXPECT_EQ(user.text(label), L"00:01:23:45"); // as typed, although there is no frame 45
        EXPECT_EQ(frame(user), 83 * 25 + 45);
        user.press(VK_BACK);
        EXPECT_EQ(user.text(label), L"00:00:12:34");
        leave(user);
        EXPECT_EQ(user.text(label), L"00:00:13:09"); // corrected when finished
        EXPECT_EQ(user.text(frames), L"334");
    });
}

TEST_F(TimeCodeEdit, SeparatorsInTypedText) {
    drive([&](Driver& user, HWND wnd, HWND label, HWND) {
        tabInto(user, wnd);
        user.type(L"1.0.");
        EXPECT_EQ(user.text(label), L"1.0.");
        EXPECT_EQ(frame(user), 1500);
        leave(user);
        EXPECT_EQ(user.text(label), L"00:01:00:00");
    });
}

TEST_F(TimeCodeEdit, RelativeCountsWhenFinished) {
    drive([&](Driver& user, HWND wnd, HWND label, HWND frames) {
        tabInto(user, wnd);
        user.type(L"+110");
        EXPECT_EQ(user.text(label), L"+110");
        EXPECT_EQ(probe.countNotes(QVEDIT_CHANGED), 0);
        EXPECT_EQ(frame(user), 50 + 35); // what Enter would make of it
        leave(user);
        EXPECT_EQ(user.text(label), L"00:00:03:10");
        EXPECT_EQ(probe.countNotes(QVEDIT_CHANGED), 1);
        user.replaceText(frames, L"-60");
        leave(user);
        EXPECT_EQ(user.text(frames), L"-10");
        EXPECT_EQ(frame(user, false), -10);
        user.replaceText(frames, L"=-7");
        EXPECT_EQ(frame(user, false), -7);
    });
}

TEST_F(TimeCodeEdit, OvertypesFieldByField) {
    drive([&](Driver& user, HWND, HWND label, HWND) {
        clickField(user, label, 3);
        user.type(L"1");
        EXPECT_EQ(user.text(label), L"00:01:02:00");
        user.type(L"2");
        EXPECT_EQ(user.text(label), L"00:12:02:00");
        user.type(L"34"); // the next field by itself
        EXPECT_EQ(user.text(label), L"00:12:34:00");
        user.press(VK_HOME);
        user.type(L"7:");
        EXPECT_EQ(user.text(label), L"07:12:34:00");
        user.press(VK_RIGHT);
        user.press(VK_DELETE);
        EXPECT_EQ(user.text(label), L"07:12:00:00");
        EXPECT_EQ(frame(user), (7 * 3600 + 12 * 60) * 25LL);
    });
}

TEST_F(TimeCodeEdit, ArrowsAndWheelChangeTheField) {
    drive([&](Driver& user, HWND, HWND label, HWND) {
        clickField(user, label, 6);
        user.press(VK_UP);
        EXPECT_EQ(user.text(label), L"00:00:03:00");
        user.press(VK_LEFT);
        user.press(VK_UP, Shift);
        EXPECT_EQ(user.text(label), L"00:10:03:00");
        user.press(VK_END);
        user.press(VK_DOWN);
        EXPECT_EQ(user.text(label), L"00:10:02:24");
        user.wheel(label, {10, 5}, 1);
        EXPECT_EQ(user.text(label), L"00:10:03:00");
        user.press(VK_HOME);
        user.press(VK_DOWN);
        EXPECT_EQ(user.text(label), L"-00:49:57:00");
        user.press(VK_UP);
        EXPECT_EQ(user.text(label), L"00:10:03:00");
    });
}

TEST_F(TimeCodeEdit, DropFrameLabelsAreNeverInvented) {
    rate = TimecodeFrameRate(29.97, 1);
    start = 0;
    drive([&](Driver& user, HWND wnd, HWND label, HWND) {
        EXPECT_EQ(user.text(label), L"00:00:00;00");
        tabInto(user, wnd);
        user.type(L"10000");
        EXPECT_EQ(frame(user), 1800);
        leave(user);
        EXPECT_EQ(user.text(label), L"00:01:00;02");
        clickField(user, label, 9);
        user.press(VK_DOWN);
        EXPECT_EQ(user.text(label), L"00:00:59;29");
    });
}

TEST_F(TimeCodeEdit, UndoAndClipboard) {
    drive([&](Driver& user, HWND wnd, HWND label, HWND frames) {
        tabInto(user, wnd);
        user.type(L"500");
        user.press('Z', Control);
        EXPECT_EQ(user.text(label), L"00:00:02:00");
        user.press('A', Control);
        user.press('C', Control);
        user.replaceText(findControl(wnd, IDC_PLAIN), L"");
        user.press('V', Control);
        EXPECT_EQ(user.text(wnd, IDC_PLAIN), L"00:00:02:00");
        user.replaceText(findControl(wnd, IDC_PLAIN), L"-00:00:01:01");
        const auto copyPlain = [&] {
            ::SendMessageW(findControl(wnd, IDC_PLAIN), EM_SETSEL, 0, -1);
            ::SendMessageW(findControl(wnd, IDC_PLAIN), WM_COPY, 0, 0);
        };
        user.onUi(copyPlain);
        user.click(label);
        user.press('V', Control);
        EXPECT_EQ(user.text(label), L"-00:00:01:01"); // a copied label keeps its sign
        user.press('X', Control);
        EXPECT_EQ(user.text(label), L"-00:00:01:01");
        user.onUi(copyPlain); // cutting has copied what was selected
        user.click(frames);
        user.press('V', Control);
        EXPECT_EQ(user.text(frames), L"50"); // a label is no count
    });
}

TEST_F(TimeCodeEdit, RefusesWhatIsNoTimecode) {
    drive([&](Driver& user, HWND wnd, HWND label, HWND frames) {
        tabInto(user, wnd);
        user.type(L"a中!");
        EXPECT_EQ(user.text(label), L"00:00:02:00");
        user.onUi([&] {
            EXPECT_FALSE(::SetWindowTextW(label, L"no timecode") != FALSE && frame(user) != 50);
            ::SetWindowTextW(label, std::wstring(1 << 20, L'9').c_str());
            ::SetWindowTextW(frames, L"12a");
            ::SetWindowTextW(label, nullptr);
        });
        EXPECT_EQ(user.text(label), L"00:00:02:00");
        EXPECT_EQ(user.text(frames), L"50");
        user.onUi([&] { ::SetWindowTextW(label, L"1:0:0"); });
        EXPECT_EQ(user.text(label), L"00:01:00:00");
    });
}

TEST_F(TimeCodeEdit, ANegativeCountIsEditedAndCopied) {
    start = -10;
    linkBoth();
    drive([&](Driver& user, HWND, HWND label, HWND frames) {
        user.click(frames);
        user.press(VK_END);
        user.type(L"5");
        EXPECT_EQ(user.text(frames), L"-105");
        EXPECT_EQ(user.text(label), L"-00:00:04:05");
        user.press(VK_BACK);
        leave(user);
        EXPECT_EQ(user.text(frames), L"-10");
        user.click(frames);
        user.press('A', Control);
        user.press('C', Control);
        user.press('V', Control);
        EXPECT_EQ(user.text(frames), L"-10");
        EXPECT_EQ(frame(user), -10);
    });
}

TEST_F(TimeCodeEdit, UndoGoesBackBeforeTheOtherFieldsEcho) {
    linkBoth();
    drive([&](Driver& user, HWND wnd, HWND label, HWND frames) {
        const auto undoes = [&](const char* what) {
            EXPECT_NE(user.text(frames), L"50") << what;
            user.press('Z', Control);
            EXPECT_EQ(user.text(label), L"00:00:02:00") << what;
            EXPECT_EQ(user.text(frames), L"50") << what;
        };
        tabInto(user, wnd);
        user.press(VK_UP);
        undoes("a step");
        user.wheel(label, {10, 5}, 2);
        undoes("the wheel");
        user.press('A', Control);
        user.press(VK_DELETE);
        undoes("Delete");
        user.press('A', Control);
        user.type(L"+10");
        leave(user);
        user.click(label);
        undoes("a distance");
        user.click(frames);
        user.press(VK_DOWN);
        undoes("a step of the count");
    });
}

TEST_F(TimeCodeEdit, AnEmptiedCountIsTheFrameBefore) {
    linkBoth();
    drive([&](Driver& user, HWND, HWND label, HWND frames) {
        user.replaceText(frames, L"75");
        user.press(VK_BACK);
        user.press(VK_BACK);
        EXPECT_EQ(user.text(frames), L"");
        EXPECT_EQ(user.text(label), L"00:00:02:00");
        leave(user);
        EXPECT_EQ(user.text(frames), L"50");
    });
}

TEST_F(TimeCodeEdit, ACountTakesNoFraction) {
    drive([&](Driver& user, HWND, HWND, HWND frames) {
        user.replaceText(frames, L"12.7");
        EXPECT_EQ(user.text(frames), L"12");
        EXPECT_EQ(frame(user, false), 12);
    });
}

TEST_F(TimeCodeEdit, EnterTellsAndEscapeCloses) {
    probe.onNote = [](ProbeDialog& opened, const Note& note) {
        if (note.code == QVEDIT_ENTER)
            opened.PostMessage(WM_COMMAND, IDOK);
    };
    drive([&](Driver& user, HWND wnd, HWND, HWND) {
        tabInto(user, wnd);
        user.type(L"+10");
        user.enter();
        user.waitGone(wnd);
    });
    EXPECT_EQ(result, IDOK);
    ASSERT_EQ(probe.notes.size(), 2u);
    EXPECT_EQ(probe.notes[0].code, QVEDIT_CHANGED);
    EXPECT_EQ(probe.notes[0].frame, 60);
    EXPECT_EQ(probe.notes[1].code, QVEDIT_ENTER);
    drive([&](Driver& user, HWND wnd, HWND, HWND) {
        tabInto(user, wnd);
        user.type(L"+10");
        user.escape();
        user.waitGone(wnd);
    });
    EXPECT_EQ(result, IDCANCEL);
}

TEST_F(TimeCodeEdit, EnterWithoutAnAnswerPressesTheDefaultButton) {
    drive([&](Driver& user, HWND wnd, HWND, HWND) {
        tabInto(user, wnd);
        user.enter();
        user.waitGone(wnd);
    });
    EXPECT_EQ(result, IDOK);
}

TEST_F(TimeCodeEdit, SetFrameTellsOnlyWhenAskedAndNew) {
    drive([&](Driver& user, HWND, HWND, HWND) {
        user.onUi([&] {
            probe.timeCode()->SetFrame(99, FALSE);
            EXPECT_EQ(probe.notes.size(), 0u);
            probe.timeCode()->SetFrame(99, TRUE);
            EXPECT_EQ(probe.notes.size(), 0u);
            probe.timeCode()->SetFrame(100, TRUE);
            EXPECT_EQ(probe.notes.size(), 1u);
            for (const __int64 extreme : {LLONG_MIN, LLONG_MAX, -1LL}) {
                probe.timeCode()->SetFrame(extreme, FALSE);
                EXPECT_EQ(probe.timeCode()->GetFrame(), extreme);
            }
            probe.timeCode()->SetFrameRate(TimecodeFrameRate(-5.0, 1, 0));
            EXPECT_EQ(probe.timeCode()->GetFrame(), -1);
            probe.timeCode()->SetEditMode(77);
            EXPECT_EQ(probe.timeCode()->GetEditMode(), QVTIMECODE_LABEL);
        });
    });
}

TEST_F(TimeCodeEdit, WorksWithoutAWindow) {
    CQVTimeCodeEditEx edit;
    edit.SetFrame(12, TRUE);
    EXPECT_EQ(edit.GetFrame(), 12);
    edit.SetEditMode(QVTIMECODE_FRAMES);
    edit.SetFrameRate(TimecodeFrameRate(30.0));
    EXPECT_EQ(edit.GetFrame(), 12);
}

} // namespace
