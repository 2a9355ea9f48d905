#include "ValuesFixture.h"

using namespace values_test;

namespace {

constexpr long kStatics = 1; // of the template

constexpr int kEdit = 111;
constexpr wchar_t kForbidden[] = L"\\/:";

class StringDialog : public Values {
  protected:
    static HWND Edit(Driver& user, HWND dialog) { return Control(user, dialog, kEdit); }

    // Where a child stands, client pixels of its dialog.
    static CRect Place(HWND dialog, int id) {
        CRect rect;
        const HWND child = qvtest::findControl(dialog, id);
        ::GetWindowRect(child, &rect);
        ::MapWindowPoints(nullptr, dialog, reinterpret_cast<POINT*>(&rect), 2);
        return rect;
    }

    static INT_PTR Type(CQVGetStrDlg& dialog, const std::wstring& text) {
        return Use(dialog, [&](Driver& user, HWND wnd) {
            user.replaceText(Edit(user, wnd), text);
            user.enter();
        });
    }
};

} // namespace

TEST_F(StringDialog, Defaults) {
    const CQVGetStrDlg dialog;
    EXPECT_EQ(260, dialog.m_nMaxLen);
    EXPECT_EQ(FALSE, dialog.m_bAllowEmpty);
    EXPECT_EQ(FALSE, dialog.m_bModalWindow);
    EXPECT_STREQ(L"Input", dialog.m_strPrompt);
    EXPECT_TRUE(dialog.m_strText.IsEmpty() && dialog.m_strTitle.IsEmpty() &&
                dialog.m_strInvalidChar.IsEmpty());
}

TEST_F(StringDialog, TypingReplacesTheSelectedText) {
    CQVGetStrDlg dialog;
    dialog.m_strTitle = L"Name";
    dialog.m_strPrompt = L"Sequence";
    dialog.m_strText = L"old name";
    EXPECT_EQ(IDOK, Use(dialog, [&](Driver& user, HWND wnd) {
                  EXPECT_EQ(L"Name", textOf(wnd));
                  EXPECT_EQ(L"Sequence", user.text(wnd, IDC_VALUE_LABEL));
                  EXPECT_EQ(L"OK", user.text(wnd, IDOK));
                  user.waitFocus(Edit(user, wnd));
                  user.type(L"新 name");
                  user.enter();
              }));
    EXPECT_STREQ(L"新 name", dialog.m_strText);
}

TEST_F(StringDialog, PromptedLayout) {
    CQVGetStrDlg dialog;
    Use(dialog, [&](Driver& user, HWND wnd) {
        CRect window;
        ::GetWindowRect(wnd, &window);
        EXPECT_EQ(CSize(305, 115), window.Size());
        CRect client;
        ::GetClientRect(wnd, &client);
        EXPECT_EQ(CRect(6, 8, 66, 22), Place(wnd, IDC_VALUE_LABEL));
        EXPECT_EQ(CRect(6, 26, client.right - 6, 48), Place(wnd, kEdit));
        EXPECT_EQ(CRect(client.right - 90, 58, client.right - 20, 80), Place(wnd, IDCANCEL));
        EXPECT_EQ(CRect(client.right - 170, 58, client.right - 100, 80), Place(wnd, IDOK));
        EXPECT_FALSE(::IsWindowVisible(qvtest::findControl(wnd, IDC_VALUE_EDIT)));
        user.escape();
    });
}

TEST_F(StringDialog, EmptyTextOnlyWhenAllowed) {
    CQVGetStrDlg dialog;
    dialog.m_strText = L"x";
    EXPECT_EQ(IDCANCEL, Use(dialog, [&](Driver& user, HWND wnd) {
                  user.waitFocus(Edit(user, wnd));
                  user.press(VK_DELETE);
                  user.waitText(Edit(user, wnd), L"");
                  ExpectRefused(user, wnd);
                  user.escape();
              }));
    dialog.m_bAllowEmpty = TRUE;
    dialog.m_strText = L"x";
    EXPECT_EQ(IDOK, Use(dialog, [&](Driver& user, HWND wnd) {
                  user.waitFocus(Edit(user, wnd));
                  user.press(VK_DELETE);
                  user.click(wnd, IDOK);
              }));
    EXPECT_TRUE(dialog.m_strText.IsEmpty());
}

TEST_F(StringDialog, ForbiddenCharactersAreTold) {
    CQVGetStrDlg dialog;
    dialog.m_strInvalidChar = kForbidden;
    EXPECT_EQ(IDOK, Use(dialog, [&](Driver& user, HWND wnd) {
                  user.replaceText(Edit(user, wnd), L"a:b");
                  user.enter();
                  const HWND box = user.waitWindow({.className = L"#32770", .owner = wnd});
                  const HWND text = qvtest::findControl(box, 0xFFFF);
                  EXPECT_EQ(L"Invalid character: \\/:", textOf(text));
                  user.enter();
                  user.waitGone(box);
                  user.waitFocus(Edit(user, wnd));
                  EXPECT_EQ(L"a:b", textOf(Edit(user, wnd)));
                  user.replaceText(Edit(user, wnd), L"ab");
                  user.enter();
              }));
    EXPECT_STREQ(L"ab", dialog.m_strText);
}

TEST_F(StringDialog, TheLimitHoldsForTypingAndPasting) {
    CQVGetStrDlg dialog;
    dialog.m_nMaxLen = 5;
    EXPECT_EQ(IDOK, Use(dialog, [&](Driver& user, HWND wnd) {
                  const HWND edit = Edit(user, wnd);
                  user.replaceText(edit, L"12345678");
                  user.waitText(edit, L"12345");
                  Paste(user, edit, std::wstring(1 << 20, L'z'));
                  EXPECT_EQ(L"zzzzz", textOf(edit));
                  user.click(wnd, IDOK);
              }));
    EXPECT_STREQ(L"zzzzz", dialog.m_strText);
}

TEST_F(StringDialog, AMegabyteGoesInAndComesBack) {
    CQVGetStrDlg dialog;
    dialog.m_strText = CString(L'm', 1 << 20);
    dialog.m_strPrompt = CString(L'p', 1 << 20);
    dialog.m_strTitle = CString(L't', 1 << 20);
    EXPECT_EQ(IDOK, Use(dialog, [&](Driver& user, HWND wnd) { user.click(wnd, IDOK); }));
    EXPECT_EQ(1 << 20, dialog.m_strText.GetLength());
}

TEST_F(StringDialog, WindowModeMovesItsButtonsAtEachSize) {
    CQVGetStrDlg dialog;
    dialog.m_strText = L"note";
    EXPECT_EQ(IDOK, Run([&] { return dialog.DoModalWindow(); },
                        [&](Driver& user, HWND wnd) {
                            EXPECT_TRUE(dialog.m_bModalWindow);
                            CRect window;
                            ::GetWindowRect(wnd, &window);
                            EXPECT_NE(CSize(305, 115), window.Size()); // the template's own
                            const CRect before = Place(wnd, IDOK);
                            const CRect cancel = Place(wnd, IDCANCEL);
                            for (int i = 1; i <= 3; ++i) {
                                user.onUi([&] {
                                    ::SetWindowPos(wnd, nullptr, 0, 0, window.Width() + 20 * i,
                                                   window.Height() + 40 * i, SWP_NOMOVE | SWP_NOZORDER);
                                });
                                EXPECT_EQ(CRect(before.left, before.top + 13 * i, before.left + 70,
                                                before.top + 13 * i + 22),
                                          Place(wnd, IDOK));
                                EXPECT_EQ(CRect(cancel.left, cancel.top + 13 * i, cancel.left + 70,
                                                cancel.top + 13 * i + 22),
                                          Place(wnd, IDCANCEL));
                                CRect client;
                                ::GetClientRect(wnd, &client);
                                EXPECT_EQ(CRect(10, 10, client.right - 10, client.bottom - 30),
                                          Place(wnd, kEdit));
                                EXPECT_FALSE(::IsWindowVisible(qvtest::findControl(wnd, IDC_VALUE_LABEL)));
                            }
                            user.click(wnd, IDOK);
                        }));
    EXPECT_FALSE(dialog.m_bModalWindow);
    EXPECT_STREQ(L"note", dialog.m_strText);
}

TEST_F(StringDialog, OneObjectRunsAgain) {
    CQVGetStrDlg dialog;
    EXPECT_EQ(IDOK, Type(dialog, L"first"));
    EXPECT_EQ(IDOK, Type(dialog, L"second"));
    EXPECT_STREQ(L"second", dialog.m_strText);
}

TEST_F(StringDialog, ManyRunsLeaveNothingBehind) {
    qvtest::expectNoLeak(kLifeRuns,
                         [] {
                             CQVGetStrDlg dialog;
                             dialog.m_strText = L"x";
                             EXPECT_EQ(IDOK,
                                       RunOnce(dialog, [&] { ::SendMessageW(dialog, WM_COMMAND, IDOK, 0); }));
                         },
                         {.heapBlocks = kStatics});
}
