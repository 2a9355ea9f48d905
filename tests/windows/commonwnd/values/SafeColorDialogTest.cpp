#include "ValuesFixture.h"

#include "values/LuminanceUnits.h"

#include <Picture.h>
#include <QVSkin.h>

#include <cmath>
#include <limits>

using namespace values_test;

namespace {

constexpr long kStatics = 7; // of the template
constexpr UINT kHelpRequest = WM_USER + 22;

class SafeColorDialog : public Values {
  protected:
    static HWND Low(Driver& user, HWND dialog) { return Control(user, dialog, IDC_SAFECOLOR_LUMLOW); }
    static HWND High(Driver& user, HWND dialog) { return Control(user, dialog, IDC_SAFECOLOR_LUMHIGH); }
    static HWND Chroma(Driver& user, HWND dialog) { return Control(user, dialog, IDC_SAFECOLOR_CHROMAHIGH); }

    // Types a value and goes on to the next control, so that it is finished.
    static void Enter(Driver& user, HWND edit, const std::wstring& text) {
        user.onUi([&] { // a second click soon after the first would be a double click, which takes no focus
            ::SetFocus(edit);
            ::SendMessageW(edit, EM_SETSEL, 0, -1);
        });
        user.type(text);
        user.press(VK_TAB);
        user.waitFor("the focus to go on", [&] { return user.focus() != edit; });
        user.settle();
    }

    static void ExpectLuminance(Driver& user, HWND dialog, const std::wstring& low,
                                const std::wstring& high) {
        user.waitText(Low(user, dialog), low);
        user.waitText(High(user, dialog), high);
    }

    static void ChooseUnit(Driver& user, HWND dialog, WORD key, const std::wstring& now) {
        const HWND combo = Control(user, dialog, IDC_SAFECOLOR_LUM_UNIT);
        user.onUi([&] { ::SetFocus(combo); });
        user.press(key);
        user.waitText(combo, now);
    }

    static bool OkEnabled(HWND dialog) { return ::IsWindowEnabled(qvtest::findControl(dialog, IDOK)); }
    static bool Latched(Driver& user, HWND dialog, int id) {
        return user.send(Control(user, dialog, id), BM_GETCHECK) == BST_CHECKED;
    }
};

class HelpTaker : public CWnd {
  public:
    HelpTaker() { CreateEx(0, AfxRegisterWndClass(0), L"", WS_POPUP, 0, 0, 0, 0, nullptr, nullptr); }
    ~HelpTaker() override { DestroyWindow(); }
    int calls = 0;

  protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_COMMAND && wParam == 26012 && lParam == 0)
            ++calls;
        return CWnd::WindowProc(message, wParam, lParam);
    }
};

} // namespace

TEST_F(SafeColorDialog, DefaultRecordIsLatchedAndUnchanged) {
    CQVSafeColorDlg dialog;
    EXPECT_EQ(IDCANCEL, Use(dialog, [&](Driver& user, HWND wnd) {
                  EXPECT_EQ(L"Safe Colour Settings", textOf(wnd));
                  EXPECT_EQ(L"Unit", user.text(wnd, IDC_SAFECOLOR_ACTION)); // the heading's own key
                  ExpectLuminance(user, wnd, L"16", L"235");
                  EXPECT_EQ(L"100.0", textOf(Chroma(user, wnd)));
                  EXPECT_TRUE(Latched(user, wnd, IDC_SAFECOLOR_LUM_REFRESH));
                  EXPECT_TRUE(Latched(user, wnd, IDC_SAFECOLOR_CHROMA_REFRESH));
                  EXPECT_FALSE(OkEnabled(wnd));
                  EXPECT_FALSE(::IsWindowEnabled(Control(user, wnd, IDC_SAFECOLOR_CHROMA_UNIT)));
                  EXPECT_TRUE(user.checked(Control(user, wnd, IDC_SAFECOLOR_IGNORE)));
                  user.waitFocus(Low(user, wnd));
                  user.escape();
              }));
}

TEST_F(SafeColorDialog, PercentOfTheDefaultAndBack) {
    CQVSafeColorDlg dialog;
    EXPECT_EQ(IDOK, Use(dialog, [&](Driver& user, HWND wnd) {
                  ChooseUnit(user, wnd, VK_DOWN, L"%");
                  ExpectLuminance(user, wnd, L"0.0", L"100.0");
                  EXPECT_TRUE(OkEnabled(wnd));
                  ChooseUnit(user, wnd, VK_UP, L"8bit");
                  ExpectLuminance(user, wnd, L"16", L"235");
                  EXPECT_FALSE(OkEnabled(wnd)); // as it was
                  ChooseUnit(user, wnd, VK_DOWN, L"%");
                  user.click(wnd, IDOK);
              }));
    EXPECT_EQ(16.0, dialog.m_SafeColor.dLumLow);
    EXPECT_EQ(235.0, dialog.m_SafeColor.dLumHigh);
    EXPECT_EQ(1, dialog.m_SafeColor.nLumUnit);
}

// Opens, goes to percent and back, and is as it was: codes at the ends, and some whose way there and back by
// calculation ends a last bit beside them.
TEST_F(SafeColorDialog, ThereAndBackIsNoChange) {
    for (const int low : {0, 7, 16, 52, 76, 88, 97}) {
        CQVSafeColorDlg dialog;
        dialog.m_SafeColor.dLumLow = low;
        dialog.m_SafeColor.dLumHigh = 255 - low;
        EXPECT_EQ(IDCANCEL, RunOnce(dialog, [&] {
                      const HWND combo = ::GetDlgItem(dialog, IDC_SAFECOLOR_LUM_UNIT);
                      for (const int unit : {QVSAFECOLOR_PERCENT, QVSAFECOLOR_8BIT}) {
                          ::SendMessageW(combo, CB_SETCURSEL, static_cast<WPARAM>(unit), 0);
                          dialog.OnLumTypeClicked();
                      }
                      EXPECT_FALSE(OkEnabled(dialog)) << low;
                      ::SendMessageW(dialog, WM_COMMAND, IDCANCEL, 0);
                  }));
        EXPECT_EQ(low, dialog.m_SafeColor.dLumLow);
        EXPECT_EQ(255 - low, dialog.m_SafeColor.dLumHigh);
    }
}

TEST_F(SafeColorDialog, AFractionOfACodeIsRefusedVisibly) {
    CQVSafeColorDlg dialog;
    EXPECT_EQ(IDCANCEL, Use(dialog, [&](Driver& user, HWND wnd) {
                  const HWND low = Low(user, wnd);
                  const auto frame = [low] { return qvtest::Picture::ofWindow(low).at(5, 1); };
                  user.replaceText(low, L"12.7");
                  EXPECT_EQ(L"12", textOf(low));
                  EXPECT_EQ(_qv_commonctrl::QV_GetSysColor(_qv_commonctrl::QVCLR_METER_OVER), frame());
                  user.press(VK_END);
                  EXPECT_EQ(_qv_commonctrl::QV_GetSysColor(_qv_commonctrl::QVCLR_ACCENT), frame());
                  user.escape();
              }));
}

TEST_F(SafeColorDialog, ControlsStandInTheTemplatesPlaces) {
    const struct {
        int id;
        CRect place; // dialog units; x, y, width, height
    } rows[] = {
        {IDOK, {165, 141, 50, 14}},
        {IDCANCEL, {223, 141, 50, 14}},
        {IDC_SAFECOLOR_GROUP, {7, 7, 266, 127}},
        {IDC_SAFECOLOR_LOW, {73, 17, 46, 14}},
        {IDC_SAFECOLOR_HIGH, {139, 18, 46, 14}},
        {IDC_SAFECOLOR_UNIT, {217, 18, 46, 14}},
        {IDC_SAFECOLOR_LUMINANCE, {24, 47, 44, 12}},
        {IDC_SAFECOLOR_CHROMINANCE, {24, 73, 44, 12}},
        {IDC_SAFECOLOR_ACTION, {24, 99, 44, 12}},
        {IDC_SAFECOLOR_LIMIT, {44, 112, 61, 17}},
        {IDC_SAFECOLOR_WARNING, {120, 112, 61, 17}},
        {IDC_SAFECOLOR_IGNORE, {196, 112, 61, 17}},
        {IDC_SAFECOLOR_LUMLOW, {71, 45, 38, 12}},
        {IDC_SAFECOLOR_LUMHIGH, {135, 45, 38, 12}},
        {IDC_SAFECOLOR_CHROMAHIGH, {135, 73, 38, 12}},
        {IDC_SAFECOLOR_LUM_REFRESH, {184, 46, 17, 11}},
        {IDC_SAFECOLOR_CHROMA_REFRESH, {184, 74, 17, 11}},
    };
    CQVSafeColorDlg dialog;
    EXPECT_EQ(IDCANCEL, RunOnce(dialog, [&] {
                  for (const auto& row : rows) {
                      CRect corner(row.place.left, row.place.top, 0, 0);
                      CRect size(0, 0, row.place.right, row.place.bottom);
                      ::MapDialogRect(dialog, &corner);
                      ::MapDialogRect(dialog, &size);
                      CRect stands;
                      dialog.GetDlgItem(row.id)->GetWindowRect(&stands);
                      dialog.ScreenToClient(&stands);
                      EXPECT_EQ(corner.TopLeft(), stands.TopLeft()) << row.id;
                      EXPECT_EQ(size.Size(), stands.Size()) << row.id;
                  }
                  for (const auto& [id, corner] : {std::pair{IDC_SAFECOLOR_LUM_UNIT, CPoint(212, 45)},
                                                   {IDC_SAFECOLOR_CHROMA_UNIT, CPoint(213, 74)}}) {
                      CRect expected(corner, CSize(52, 0)); // the list's height is the combo's own
                      ::MapDialogRect(dialog, &expected);
                      CRect stands;
                      dialog.GetDlgItem(id)->GetWindowRect(&stands);
                      dialog.ScreenToClient(&stands);
                      EXPECT_EQ(expected.TopLeft(), stands.TopLeft()) << id;
                      EXPECT_EQ(expected.Width(), stands.Width()) << id;
                  }
                  ::SendMessageW(dialog, WM_COMMAND, IDCANCEL, 0);
              }));
}

TEST_F(SafeColorDialog, PercentIsCutAtTheEndsOfTheCodes) {
    CQVSafeColorDlg dialog;
    dialog.m_SafeColor.dLumLow = 0.0;
    dialog.m_SafeColor.dLumHigh = 255.0;
    EXPECT_EQ(IDCANCEL, Use(dialog, [&](Driver& user, HWND wnd) {
                  EXPECT_FALSE(Latched(user, wnd, IDC_SAFECOLOR_LUM_REFRESH));
                  ChooseUnit(user, wnd, VK_DOWN, L"%");
                  ExpectLuminance(user, wnd, L"-7.3", L"109.0");
                  user.escape();
              }));
}

TEST_F(SafeColorDialog, LowAboveHighBecomesHigh) {
    CQVSafeColorDlg dialog;
    EXPECT_EQ(IDOK, Use(dialog, [&](Driver& user, HWND wnd) {
                  Enter(user, Low(user, wnd), L"250");
                  ExpectLuminance(user, wnd, L"235", L"235");
                  EXPECT_FALSE(Latched(user, wnd, IDC_SAFECOLOR_LUM_REFRESH));
                  user.click(wnd, IDOK);
              }));
    EXPECT_EQ(235.0, dialog.m_SafeColor.dLumLow);
    EXPECT_EQ(235.0, dialog.m_SafeColor.dLumHigh);
}

TEST_F(SafeColorDialog, HighBelowLowBecomesLow) {
    CQVSafeColorDlg dialog;
    EXPECT_EQ(IDOK, Use(dialog, [&](Driver& user, HWND wnd) {
                  Enter(user, High(user, wnd), L"5");
                  ExpectLuminance(user, wnd, L"16", L"16");
                  user.click(wnd, IDOK);
              }));
    EXPECT_EQ(16.0, dialog.m_SafeColor.dLumHigh);
}

// The correction is made on the codes; the percentages that were read stay in the fields.
TEST_F(SafeColorDialog, InPercentTheFieldsKeepWhatWasTyped) {
    CQVSafeColorDlg dialog;
    dialog.m_SafeColor.nLumUnit = 1;
    EXPECT_EQ(IDCANCEL, Use(dialog, [&](Driver& user, HWND wnd) {
                  Enter(user, Low(user, wnd), L"105");
                  ExpectLuminance(user, wnd, L"105.0", L"100.0");
                  user.onUi([&] { EXPECT_EQ(dialog.m_SafeColor.dLumHigh, dialog.m_SafeColor.dLumLow); });
                  user.escape();
              }));
}

TEST_F(SafeColorDialog, ChangingBackDisablesOk) {
    CQVSafeColorDlg dialog;
    EXPECT_EQ(IDCANCEL, Use(dialog, [&](Driver& user, HWND wnd) {
                  const HWND ok = Control(user, wnd, IDOK);
                  Enter(user, Low(user, wnd), L"20");
                  user.waitEnabled(ok, true);
                  Enter(user, Low(user, wnd), L"16");
                  user.waitEnabled(ok, false);
                  EXPECT_TRUE(Latched(user, wnd, IDC_SAFECOLOR_LUM_REFRESH));
                  user.click(wnd, IDC_SAFECOLOR_LIMIT);
                  user.waitEnabled(ok, true);
                  user.click(wnd, IDC_SAFECOLOR_IGNORE);
                  user.waitEnabled(ok, false);
                  Enter(user, Chroma(user, wnd), L"99.5");
                  user.waitEnabled(ok, true);
                  user.escape();
              }));
    EXPECT_EQ(99.5, dialog.m_SafeColor.dChromaHigh); // edited live: the host takes it on IDOK only
}

TEST_F(SafeColorDialog, RefreshSetsTheGroupBack) {
    CQVSafeColorDlg dialog;
    dialog.m_SafeColor.dLumLow = 40.0;
    dialog.m_SafeColor.dChromaHigh = 50.0;
    EXPECT_EQ(IDOK, Use(dialog, [&](Driver& user, HWND wnd) {
                  EXPECT_FALSE(Latched(user, wnd, IDC_SAFECOLOR_CHROMA_REFRESH));
                  user.click(wnd, IDC_SAFECOLOR_LUM_REFRESH);
                  ExpectLuminance(user, wnd, L"16", L"235");
                  EXPECT_TRUE(Latched(user, wnd, IDC_SAFECOLOR_LUM_REFRESH));
                  ChooseUnit(user, wnd, VK_DOWN, L"%");
                  Enter(user, High(user, wnd), L"90");
                  user.click(wnd, IDC_SAFECOLOR_LUM_REFRESH);
                  ExpectLuminance(user, wnd, L"0.0", L"100.0");
                  user.click(wnd, IDC_SAFECOLOR_CHROMA_REFRESH);
                  user.waitText(Chroma(user, wnd), L"100.0");
                  EXPECT_TRUE(Latched(user, wnd, IDC_SAFECOLOR_CHROMA_REFRESH));
                  user.click(wnd, IDOK);
              }));
    EXPECT_EQ(16.0, dialog.m_SafeColor.dLumLow);
    EXPECT_EQ(100.0, dialog.m_SafeColor.dChromaHigh);
}

TEST_F(SafeColorDialog, TypingIsBoundedByRangeAndLength) {
    CQVSafeColorDlg dialog;
    EXPECT_EQ(IDOK, Use(dialog, [&](Driver& user, HWND wnd) {
                  user.replaceText(High(user, wnd), L"999999999");
                  user.waitText(High(user, wnd), L"99999");
                  user.press(VK_TAB);
                  user.waitText(High(user, wnd), L"255");
                  for (const HWND edit : {Low(user, wnd), Chroma(user, wnd)}) {
                      Paste(user, edit, std::wstring(1 << 20, L'9'));
                      Paste(user, edit, L"片段 nan inf -inf 1e308");
                  }
                  user.click(wnd, IDOK);
              }));
    EXPECT_EQ(255.0, dialog.m_SafeColor.dLumHigh);
    EXPECT_LE(dialog.m_SafeColor.dLumLow, 255.0);
    EXPECT_LE(dialog.m_SafeColor.dChromaHigh, 115.0);
}

TEST_F(SafeColorDialog, TheWheelChangesAValue) {
    CQVSafeColorDlg dialog;
    EXPECT_EQ(IDOK, Use(dialog, [&](Driver& user, HWND wnd) {
                  const HWND low = Low(user, wnd);
                  user.waitFocus(low);
                  user.wheel(low, {5, 5}, 4);
                  user.waitText(low, L"20");
                  user.waitEnabled(Control(user, wnd, IDOK), true);
                  user.click(wnd, IDOK);
              }));
    EXPECT_EQ(20.0, dialog.m_SafeColor.dLumLow);
}

TEST_F(SafeColorDialog, EachActionComesBack) {
    const int radios[] = {IDC_SAFECOLOR_LIMIT, IDC_SAFECOLOR_WARNING, IDC_SAFECOLOR_IGNORE};
    for (int action = 0; action < 3; ++action) {
        CQVSafeColorDlg dialog;
        dialog.m_SafeColor.nAction = (action + 1) % 3;
        EXPECT_EQ(IDOK, Use(dialog, [&](Driver& user, HWND wnd) {
                      user.click(wnd, radios[action]);
                      user.click(wnd, IDOK);
                  }));
        EXPECT_EQ(action, dialog.m_SafeColor.nAction);
    }
}

TEST_F(SafeColorDialog, ChromaInCodesIsLeftAlone) {
    CQVSafeColorDlg dialog;
    dialog.m_SafeColor.nChromaUnit = 0;
    dialog.m_SafeColor.dChromaHigh = 77.0;
    EXPECT_EQ(IDOK, Use(dialog, [&](Driver& user, HWND wnd) {
                  EXPECT_EQ(L"0", textOf(Chroma(user, wnd))); // as the number edit is made
                  user.click(wnd, IDC_SAFECOLOR_LIMIT);
                  user.click(wnd, IDOK);
              }));
    EXPECT_EQ(77.0, dialog.m_SafeColor.dChromaHigh);
}

TEST_F(SafeColorDialog, HelpGoesToTheHost) {
    HelpTaker taker;
    CQVSafeColorDlg dialog;
    EXPECT_EQ(IDCANCEL, Use(dialog, [&](Driver& user, HWND wnd) {
                  EXPECT_EQ(0, user.send(wnd, kHelpRequest)); // nobody there
                  user.onUi([&] { dialog.SetOPALMainWnd(&taker); });
                  EXPECT_EQ(0, user.send(wnd, kHelpRequest));
                  EXPECT_EQ(1, taker.calls);
                  user.escape();
              }));
}

TEST_F(SafeColorDialog, ImpossibleRecordsDoNoHarm) {
    constexpr double kInfinite = std::numeric_limits<double>::infinity();
    for (const double value : {std::nan(""), kInfinite, -kInfinite, 1e308, -1e308}) {
        for (const int unit : {0, 1, -1, 7}) {
            CQVSafeColorDlg dialog;
            dialog.m_SafeColor.dLumLow = value;
            dialog.m_SafeColor.dLumHigh = -value;
            dialog.m_SafeColor.dChromaHigh = value;
            dialog.m_SafeColor.nLumUnit = unit;
            dialog.m_SafeColor.nAction = unit * 1000;
            EXPECT_EQ(IDOK, RunOnce(dialog, [&] { ::SendMessageW(dialog, WM_COMMAND, IDOK, 0); }));
            EXPECT_TRUE(dialog.m_SafeColor.dLumLow >= 0.0 && dialog.m_SafeColor.dLumLow <= 255.0);
            EXPECT_TRUE(dialog.m_SafeColor.dLumHigh >= 0.0 && dialog.m_SafeColor.dLumHigh <= 255.0);
            EXPECT_TRUE(dialog.m_SafeColor.dChromaHigh >= 0.0 && dialog.m_SafeColor.dChromaHigh <= 115.0);
        }
    }
}

TEST_F(SafeColorDialog, ManyRunsLeaveNothingBehind) {
    qvtest::expectNoLeak(kLifeRuns,
                         [] {
                             CQVSafeColorDlg dialog;
                             EXPECT_EQ(IDOK,
                                       RunOnce(dialog, [&] { ::SendMessageW(dialog, WM_COMMAND, IDOK, 0); }));
                         },
                         {.heapBlocks = kStatics});
}
