#include "ValuesFixture.h"

#include <climits>

using namespace values_test;

namespace {

constexpr long kStatics = 2; // of the template

class IntegerDialog : public Values {
  protected:
    static HWND Edit(Driver& user, HWND dialog) { return Control(user, dialog, IDC_VALUE_EDIT); }

    // Types a text and confirms by Enter.
    static INT_PTR Enter(CQVGetIntDlg& dialog, const std::wstring& text) {
        return Use(dialog, [&](Driver& user, HWND wnd) {
            user.replaceText(Edit(user, wnd), text);
            user.enter();
        });
    }

    // The value holds what was typed all the same: the range is looked at afterwards.
    static void ExpectTypedRefused(const std::wstring& text, long long number) {
        CQVGetIntDlg dialog;
        dialog.m_nValue = 7;
        EXPECT_EQ(IDCANCEL, Use(dialog, [&](Driver& user, HWND wnd) {
                      user.replaceText(Edit(user, wnd), text);
                      ExpectRefused(user, wnd);
                      user.escape();
                  }));
        EXPECT_EQ(number, dialog.m_nValue);
    }
};

} // namespace

TEST_F(IntegerDialog, Defaults) {
    const CQVGetIntDlg dialog;
    EXPECT_EQ(100000, dialog.m_nMax);
    EXPECT_EQ(0, dialog.m_nMin);
    EXPECT_EQ(0, dialog.m_nValue);
    EXPECT_EQ(1, dialog.m_nType);
    EXPECT_TRUE(dialog.m_strTitle.IsEmpty() && dialog.m_strLabel.IsEmpty() && dialog.m_strUnit.IsEmpty() &&
                dialog.m_strIncludeKey.IsEmpty());
}

TEST_F(IntegerDialog, ShowsWhatItWasGiven) {
    CQVGetIntDlg dialog;
    dialog.m_strTitle = L"Handles";
    dialog.m_strLabel = L"In front";
    dialog.m_strUnit = L"frames";
    dialog.m_nValue = 25;
    EXPECT_EQ(IDOK, Use(dialog, [&](Driver& user, HWND wnd) {
                  EXPECT_EQ(L"Handles", textOf(wnd));
                  EXPECT_EQ(L"In front", user.text(wnd, IDC_VALUE_LABEL));
                  EXPECT_EQ(L"frames", user.text(wnd, IDC_VALUE_UNIT));
                  EXPECT_EQ(L"25", user.text(wnd, IDC_VALUE_EDIT));
                  EXPECT_EQ(L"OK", user.text(wnd, IDOK));
                  EXPECT_EQ(L"Cancel", user.text(wnd, IDCANCEL));
                  user.waitFocus(Edit(user, wnd)); // typing starts at once
                  user.type(L"31");
                  user.enter();
              }));
    EXPECT_EQ(31, dialog.m_nValue);
}

TEST_F(IntegerDialog, LimitsOfTheDefaultRange) {
    for (const long long value : {0LL, 1LL, 99999LL, 100000LL}) {
        CQVGetIntDlg dialog;
        dialog.m_nValue = 5;
        EXPECT_EQ(IDOK, Enter(dialog, std::to_wstring(value)));
        EXPECT_EQ(value, dialog.m_nValue);
    }
    ExpectTypedRefused(L"-1", -1);
    ExpectTypedRefused(L"100001", 100001);
}

TEST_F(IntegerDialog, DigitsFollowedByLettersAreRead) {
    CQVGetIntDlg dialog;
    EXPECT_EQ(IDOK, Enter(dialog, L"12abc"));
    EXPECT_EQ(12, dialog.m_nValue);
    dialog.m_nValue = 9;
    EXPECT_EQ(IDOK, Enter(dialog, L"abc"));
    EXPECT_EQ(0, dialog.m_nValue);
}

TEST_F(IntegerDialog, SixtyFourBitsThere) {
    for (const long long value : {LLONG_MIN, LLONG_MIN + 1, -(1LL << 32), 1LL << 32, LLONG_MAX}) {
        CQVGetIntDlg dialog;
        dialog.m_nMin = LLONG_MIN;
        dialog.m_nMax = LLONG_MAX;
        dialog.m_nValue = value;
        EXPECT_EQ(IDOK, Use(dialog, [&](Driver& user, HWND wnd) {
                      EXPECT_EQ(std::to_wstring(value), textOf(Edit(user, wnd)));
                      user.click(wnd, IDOK);
                  }));
        EXPECT_EQ(value, dialog.m_nValue);
    }
    ExpectTypedRefused(L"99999999999999999999999", LLONG_MAX);
}

TEST_F(IntegerDialog, AnEmptyRangeRefusesAll) {
    CQVGetIntDlg dialog;
    dialog.m_nMin = 10;
    dialog.m_nMax = 5;
    EXPECT_EQ(IDCANCEL, Use(dialog, [&](Driver& user, HWND wnd) {
                  user.replaceText(Edit(user, wnd), L"7");
                  ExpectRefused(user, wnd);
                  user.click(wnd, IDCANCEL);
              }));
}

TEST_F(IntegerDialog, OnlyIncludedKeysGetIn) {
    CQVGetIntDlg dialog;
    dialog.m_strIncludeKey = L"0123456789";
    EXPECT_EQ(IDOK, Use(dialog, [&](Driver& user, HWND wnd) {
                  const HWND edit = Edit(user, wnd);
                  user.replaceText(edit, L"a4-b2.7");
                  user.waitText(edit, L"42");
                  EXPECT_EQ(L"42", textOf(edit)); // never 427
                  for (const wchar_t* text : {L"x9y\r\n9", L"12.7", L"-5"}) {
                      Paste(user, edit, text);
                      EXPECT_EQ(L"42", textOf(edit)) << text;
                  }
                  Paste(user, edit, L" 99\r\n");
                  EXPECT_EQ(L"99", textOf(edit));
                  user.click(wnd, IDOK);
              }));
    EXPECT_EQ(99, dialog.m_nValue);
}

TEST_F(IntegerDialog, HugePastesAreRefusedAtOk) {
    CQVGetIntDlg dialog;
    EXPECT_EQ(IDCANCEL, Use(dialog, [&](Driver& user, HWND wnd) {
                  Paste(user, Edit(user, wnd), std::wstring(1 << 20, L'9'));
                  ExpectRefused(user, wnd);
                  Paste(user, Edit(user, wnd), L"");
                  user.escape();
              }));
}

TEST_F(IntegerDialog, TimecodeIsGivenBackInFrames) {
    CQVGetIntDlg dialog;
    dialog.m_nType = QVGETINT_TIMECODE;
    dialog.m_strIncludeKey = L"x"; // has no meaning here
    dialog.m_nValue = 1500;
    dialog.m_nMax = 10; // neither has the range
    EXPECT_EQ(IDOK, Use(dialog, [&](Driver& user, HWND wnd) {
                  const HWND edit = Control(user, wnd, IDC_VALUE_TIMECODE);
                  EXPECT_FALSE(::IsWindowVisible(qvtest::findControl(wnd, IDC_VALUE_EDIT)));
                  EXPECT_EQ(L"00:01:00:00", textOf(edit));
                  user.waitFocus(edit);
                  user.type(L"10203");
                  user.waitText(edit, L"00:01:02:03");
                  user.enter();
              }));
    EXPECT_EQ((62 * 25) + 3, dialog.m_nValue);
    EXPECT_TRUE(dialog.m_strIncludeKey.IsEmpty());
    // The same object again, with what it was left with.
    EXPECT_EQ(IDOK, Use(dialog, [&](Driver& user, HWND wnd) {
                  EXPECT_EQ(L"00:01:02:03", textOf(Control(user, wnd, IDC_VALUE_TIMECODE)));
                  user.click(wnd, IDOK);
              }));
    EXPECT_EQ((62 * 25) + 3, dialog.m_nValue);
}

TEST_F(IntegerDialog, TimecodeTakesTheExtremes) {
    for (const long long value : {LLONG_MIN, -1LL, LLONG_MAX}) {
        CQVGetIntDlg dialog;
        dialog.m_nType = QVGETINT_TIMECODE;
        dialog.m_nValue = value;
        EXPECT_EQ(IDOK, Use(dialog, [&](Driver& user, HWND wnd) {
                      const HWND edit = Control(user, wnd, IDC_VALUE_TIMECODE);
                      Paste(user, edit, L"片段 no timecode"); // cannot be read
                      Paste(user, edit, std::wstring(1 << 20, L'x'));
                      user.click(wnd, IDOK);
                  }));
        EXPECT_EQ(value, dialog.m_nValue);
    }
}

TEST_F(IntegerDialog, UnknownTypeClosesAndLeavesTheValue) {
    CQVGetIntDlg dialog;
    dialog.m_nType = 3;
    dialog.m_nValue = 77;
    EXPECT_EQ(IDOK, Enter(dialog, L"-5"));
    EXPECT_EQ(77, dialog.m_nValue);
}

TEST_F(IntegerDialog, LongLabelsWidenTheWindow) {
    CSize sizes[2];
    const wchar_t* const labels[] = {L"In", L"Frames in front of the first cut"};
    for (size_t i = 0; i < 2; ++i) {
        CQVGetIntDlg dialog;
        dialog.m_strLabel = labels[i];
        Use(dialog, [&](Driver& user, HWND wnd) {
            RECT rect = {};
            ::GetWindowRect(wnd, &rect);
            sizes[i] = CSize(rect.right - rect.left, rect.bottom - rect.top);
            RECT label = {};
            ::GetWindowRect(Control(user, wnd, IDC_VALUE_LABEL), &label);
            RECT edit = {};
            ::GetWindowRect(Edit(user, wnd), &edit);
            EXPECT_LE(label.right, edit.left);
            EXPECT_LT(edit.right, rect.right);
            user.escape();
        });
    }
    EXPECT_LT(sizes[0].cx, sizes[1].cx);
    EXPECT_EQ(sizes[0].cy, sizes[1].cy);
}

TEST_F(IntegerDialog, HugeTextsDoNoHarm) {
    CQVGetIntDlg dialog;
    dialog.m_strTitle = CString(L'T', 1 << 20);
    dialog.m_strUnit = CString(L'u', 1 << 20);
    EXPECT_EQ(IDCANCEL, Use(dialog, [&](Driver& user, HWND) { user.escape(); }));
}

TEST_F(IntegerDialog, ManyRunsLeaveNothingBehind) {
    int runs = 0;
    qvtest::expectNoLeak(kLifeRuns,
                         [&runs] {
                             CQVGetIntDlg dialog;
                             dialog.m_nType = ++runs % 2 ? QVGETINT_TIMECODE : QVGETINT_NUMBER;
                             EXPECT_EQ(IDOK,
                                       RunOnce(dialog, [&] { ::SendMessageW(dialog, WM_COMMAND, IDOK, 0); }));
                         },
                         {.heapBlocks = kStatics});
}
