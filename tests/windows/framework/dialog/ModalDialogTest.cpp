// The framework's own modal loop.
#include "FormDlg.h"
#include "LeakGuard.h"
#include "ModalScript.h"
#include "TestWnd.h"

#include <gtest/gtest.h>

using namespace qvtest;

namespace {

class OwnerWnd : public TestWnd {
  public:
    BOOL CreateOwner() {
        return CreateEx(0, AfxRegisterWndClass(0), L"owner", WS_POPUP | WS_VISIBLE, 100, 80, 500, 400,
                        nullptr, nullptr);
    }
};

class Modal : public ::testing::Test {
  protected:
    void SetUp() override { ASSERT_TRUE(m_owner.CreateOwner()); }
    OwnerWnd m_owner;
};

// Ends the form by a control of its own.
void ClickInForm(ModalScript& script, int id) {
    script.step("click " + std::to_string(id), [id](Driver& user) {
        const HWND form = user.waitWindow({.title = L"Form"});
        user.click(form, id);
    });
}

TEST_F(Modal, OkAndCancelButtons) {
    for (int id : {IDOK, IDCANCEL}) {
        FormDlg dlg(&m_owner);
        ModalScript script;
        ClickInForm(script, id);
        EXPECT_EQ(id, script.run([&] { return dlg.DoModal(); }));
        EXPECT_EQ(nullptr, dlg.m_hWnd);
        EXPECT_EQ(1, dlg.m_nPostNcDestroy);
    }
}

TEST_F(Modal, EnterAndEscapeKeys) {
    for (const auto& [key, answer] : {std::pair<WORD, int>{VK_RETURN, IDOK}, {VK_ESCAPE, IDCANCEL}}) {
        FormDlg dlg(&m_owner);
        ModalScript script;
        script.step("press", [key = key](Driver& user) {
            const HWND form = user.waitWindow({.title = L"Form"});
            user.waitFocus(user.waitControl(form, IDC_TEXT));
            user.press(key);
        });
        EXPECT_EQ(answer, script.run([&] { return dlg.DoModal(); }));
        EXPECT_GT(dlg.m_nPreTranslated, 0);
    }
}

TEST_F(Modal, TabMovesTheFocus) {
    FormDlg dlg(&m_owner);
    ModalScript script;
    script.step("tab", [](Driver& user) {
        const HWND form = user.waitWindow({.title = L"Form"});
        user.waitFocus(user.waitControl(form, IDC_TEXT));
        user.press(VK_TAB);
        user.waitFocus(user.waitControl(form, IDC_NUMBER));
        user.escape();
    });
    EXPECT_EQ(IDCANCEL, script.run([&] { return dlg.DoModal(); }));
}

TEST_F(Modal, OwnerIsDisabledMeanwhileAndActiveAfterwards) {
    m_owner.SetActiveWindow();
    FormDlg dlg(&m_owner);
    ModalScript script;
    script.step("look at the owner", [&](Driver& user) {
        const HWND form = user.waitWindow({.title = L"Form"});
        EXPECT_EQ(m_owner.m_hWnd, ::GetWindow(form, GW_OWNER));
        EXPECT_FALSE(::IsWindowEnabled(m_owner.m_hWnd));
        user.click(form, IDOK);
    });
    EXPECT_EQ(IDOK, script.run([&] { return dlg.DoModal(); }));
    EXPECT_TRUE(m_owner.IsWindowEnabled());
    EXPECT_EQ(m_owner.m_hWnd, ::GetActiveWindow());
}

TEST_F(Modal, OwnerIsEnabledBeforeTheDialogGoes) {
    FormDlg dlg(&m_owner);
    bool enabledAtDestroy = false;
    dlg.m_onInit = [](FormDlg& form) {
        form.EndDialog(7);
        return TRUE;
    };
    dlg.m_onAny = [&](FormDlg&, UINT message) {
        if (message == WM_DESTROY)
            enabledAtDestroy = m_owner.IsWindowEnabled();
    };
    EXPECT_EQ(7, dlg.DoModal());
    EXPECT_TRUE(enabledAtDestroy);
}

TEST_F(Modal, OwnerThatWasDisabledStaysSo) {
    m_owner.EnableWindow(FALSE);
    FormDlg dlg(&m_owner);
    dlg.m_onInit = [](FormDlg& form) {
        form.EndDialog(7);
        return TRUE;
    };
    EXPECT_EQ(7, dlg.DoModal());
    EXPECT_FALSE(m_owner.IsWindowEnabled());
}

TEST_F(Modal, ChildAsParentMeansItsTopLevelWindow) {
    TestWnd child;
    ASSERT_TRUE(child.CreateChild(m_owner, 1));
    FormDlg dlg(&child);
    HWND owner = nullptr;
    dlg.m_onInit = [&](FormDlg& form) {
        owner = ::GetWindow(form.m_hWnd, GW_OWNER);
        form.EndDialog(1);
        return TRUE;
    };
    dlg.DoModal();
    EXPECT_EQ(m_owner.m_hWnd, owner);
}

TEST_F(Modal, EndDialogInAnyHandler) {
    for (UINT ending :
         std::initializer_list<UINT>{WM_INITDIALOG, WM_SHOWWINDOW, WM_SIZE, WM_PAINT, WM_ERASEBKGND, WM_TIMER,
                                     WM_ACTIVATE, WM_CTLCOLOREDIT, WM_KICKIDLE, WM_SETFONT}) {
        FormDlg dlg(&m_owner);
        constexpr int kAnswer = 77;
        bool ended = false;
        dlg.m_onInit = [](FormDlg& form) {
            form.SetTimer(1, 10, nullptr);
            return TRUE;
        };
        dlg.m_onAny = [&](FormDlg& form, UINT message) {
            if (message == ending && !ended) {
                ended = true;
                form.EndDialog(kAnswer);
            }
        };
        EXPECT_EQ(kAnswer, dlg.DoModal()) << "message " << ending;
        EXPECT_EQ(nullptr, dlg.m_hWnd);
        EXPECT_TRUE(m_owner.IsWindowEnabled());
    }
}

TEST_F(Modal, EndDialogTwiceKeepsTheLastAnswer) {
    FormDlg dlg(&m_owner);
    dlg.m_onInit = [](FormDlg& form) {
        form.EndDialog(1);
        form.EndDialog(2);
        return TRUE;
    };
    EXPECT_EQ(2, dlg.DoModal());
}

TEST_F(Modal, DialogInADialog) {
    FormDlg outer(&m_owner);
    outer.m_onGo = [&](FormDlg& form) {
        FormDlg second(&form, IDD_HIDDEN);
        form.EndDialog(static_cast<int>(second.DoModal()) + 10);
    };
    ModalScript script;
    ClickInForm(script, IDC_GO);
    script.step("end the inner one", [](Driver& user) {
        const HWND dialog = user.waitWindow({.title = L"Shown by the loop"});
        EXPECT_FALSE(::IsWindowEnabled(findWindow({.title = L"Form"})));
        user.click(dialog, IDOK);
    });
    EXPECT_EQ(IDOK + 10, script.run([&] { return outer.DoModal(); }));
}

TEST_F(Modal, DestroyedFromOutsideIsACancel) {
    FormDlg dlg(&m_owner);
    dlg.m_onGo = [](FormDlg& form) { ::DestroyWindow(form.m_hWnd); };
    ModalScript script;
    ClickInForm(script, IDC_GO);
    EXPECT_EQ(IDCANCEL, script.run([&] { return dlg.DoModal(); }));
    EXPECT_EQ(nullptr, dlg.m_hWnd);
    EXPECT_TRUE(m_owner.IsWindowEnabled());
}

TEST_F(Modal, DestroyedInItsOwnInitialisation) {
    FormDlg dlg(&m_owner);
    dlg.m_onInit = [](FormDlg& form) {
        form.DestroyWindow();
        return FALSE;
    };
    EXPECT_NE(IDOK, dlg.DoModal());
    EXPECT_EQ(nullptr, dlg.m_hWnd);
    EXPECT_TRUE(m_owner.IsWindowEnabled());
}

TEST_F(Modal, OwnerDestroyedMeanwhile) {
    FormDlg dlg(&m_owner);
    dlg.m_onGo = [&](FormDlg&) { m_owner.DestroyWindow(); };
    ModalScript script;
    ClickInForm(script, IDC_GO);
    EXPECT_EQ(IDCANCEL, script.run([&] { return dlg.DoModal(); }));
    EXPECT_EQ(nullptr, dlg.m_hWnd);
    EXPECT_EQ(nullptr, m_owner.m_hWnd);
}

TEST_F(Modal, ObjectDeletedMeanwhile) {
    auto* const dlg = new FormDlg(&m_owner);
    dlg->m_onInit = [](FormDlg& form) {
        form.PostMessage(WM_APP);
        return TRUE;
    };
    class Killer : public TestWnd {
      public:
        FormDlg* m_pVictim = nullptr;

      protected:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
            if (message == WM_APP)
                delete m_pVictim;
            return TestWnd::WindowProc(message, wParam, lParam);
        }
    } killer;
    ASSERT_TRUE(killer.CreateTop());
    killer.m_pVictim = dlg;
    killer.PostMessage(WM_APP);
    EXPECT_EQ(IDCANCEL, dlg->DoModal());
    EXPECT_TRUE(m_owner.IsWindowEnabled());
}

TEST_F(Modal, QuitEndsTheLoopAndGoesOn) {
    FormDlg dlg(&m_owner);
    dlg.m_onInit = [](FormDlg&) {
        ::PostQuitMessage(33);
        return TRUE;
    };
    EXPECT_NE(IDOK, dlg.DoModal());
    EXPECT_TRUE(m_owner.IsWindowEnabled());
    MSG message = {};
    ASSERT_TRUE(::PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
    EXPECT_EQ(33u, message.wParam);
}

TEST_F(Modal, WhatCannotBeMadeAnswersMinusOne) {
    FormDlg missing(&m_owner, 999);
    EXPECT_EQ(-1, missing.DoModal());
    FormDlg broken(&m_owner, IDD_BROKEN);
    EXPECT_EQ(-1, broken.DoModal());
    CDialog none;
    EXPECT_EQ(-1, none.DoModal());
    EXPECT_TRUE(m_owner.IsWindowEnabled());
}

TEST_F(Modal, FailedExchangeAtTheStartEndsTheDialog) {
    class Refusing : public CDialog {
      public:
        explicit Refusing(CWnd* pParent) : CDialog(IDD_FORM, pParent) {}

      protected:
        void DoDataExchange(CDataExchange* pDX) override { pDX->Fail(); }
    } dlg(&m_owner);
    EXPECT_EQ(-1, dlg.DoModal());
}

TEST_F(Modal, RunningDialogCannotBeRunAgain) {
    FormDlg dlg(&m_owner);
    INT_PTR second = 0;
    dlg.m_onInit = [&](FormDlg& form) {
        second = form.DoModal();
        form.EndDialog(5);
        return TRUE;
    };
    EXPECT_EQ(5, dlg.DoModal());
    EXPECT_EQ(-1, second);
    dlg.m_onInit = [](FormDlg& form) {
        form.EndDialog(6);
        return TRUE;
    };
    EXPECT_EQ(6, dlg.DoModal()) << "an object can run as often as one likes";
}

TEST_F(Modal, HiddenTemplateIsShownAndCentredOverItsOwner) {
    FormDlg dlg(&m_owner, IDD_HIDDEN);
    ModalScript script;
    script.step("measure", [&](Driver& user) {
        const HWND dialog = user.waitWindow({.title = L"Shown by the loop"});
        CRect own;
        CRect owner;
        ::GetWindowRect(dialog, &own);
        ::GetWindowRect(m_owner.m_hWnd, &owner);
        EXPECT_NEAR(owner.CenterPoint().x, own.CenterPoint().x, 1);
        EXPECT_NEAR(owner.CenterPoint().y, own.CenterPoint().y, 1);
        user.enter();
    });
    EXPECT_EQ(IDOK, script.run([&] { return dlg.DoModal(); }));
}

TEST_F(Modal, PlaceChosenByTheDialogIsKept) {
    FormDlg dlg(&m_owner, IDD_HIDDEN);
    dlg.m_onInit = [](FormDlg& form) {
        form.SetWindowPos(nullptr, 3, 4, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
        return TRUE;
    };
    ModalScript script;
    script.step("measure", [&](Driver& user) {
        CRect own;
        ::GetWindowRect(user.waitWindow({.title = L"Shown by the loop"}), &own);
        EXPECT_EQ(CPoint(3, 4), own.TopLeft());
        user.enter();
    });
    EXPECT_EQ(IDOK, script.run([&] { return dlg.DoModal(); }));
}

TEST_F(Modal, ThrowingInitialisationDoesNotHang) {
    FormDlg dlg(&m_owner);
    dlg.m_onInit = [](FormDlg& form) -> BOOL {
        form.PostMessage(WM_COMMAND, IDCANCEL);
        throw 5;
    };
    EXPECT_EQ(IDCANCEL, dlg.DoModal());
    EXPECT_TRUE(m_owner.IsWindowEnabled());
}

TEST_F(Modal, TemporaryObjectsOfTheCallerSurviveTheLoop) {
    CWnd* const desktop = CWnd::GetDesktopWindow();
    FormDlg dlg(&m_owner);
    dlg.m_onAny = [](FormDlg& form, UINT message) {
        if (message == WM_KICKIDLE)
            form.EndDialog(1);
    };
    dlg.DoModal();
    EXPECT_EQ(desktop, CWnd::GetDesktopWindow());
    EXPECT_EQ(::GetDesktopWindow(), desktop->m_hWnd);
}

TEST_F(Modal, TemplateInMemory) {
    const HRSRC resource = ::FindResourceW(nullptr, MAKEINTRESOURCEW(IDD_FORM), RT_DIALOG);
    const HGLOBAL memory = ::LoadResource(nullptr, resource);
    class Memory : public CDialog {
      public:
        BOOL OnInitDialog() override {
            EndDialog(9);
            return TRUE;
        }
    } dlg;
    ASSERT_TRUE(dlg.InitModalIndirect(static_cast<LPCDLGTEMPLATE>(::LockResource(memory)), &m_owner));
    EXPECT_EQ(9, dlg.DoModal());
    ASSERT_TRUE(dlg.InitModalIndirect(memory, &m_owner));
    EXPECT_EQ(9, dlg.DoModal());
}

TEST_F(Modal, ModelessDialogComesAndGoes) {
    FormDlg dlg;
    ASSERT_TRUE(dlg.Create(IDD_FORM, &m_owner));
    EXPECT_EQ(&dlg, CWnd::FromHandlePermanent(dlg.m_hWnd));
    EXPECT_TRUE(m_owner.IsWindowEnabled());
    EXPECT_FALSE(dlg.Create(IDD_FORM, &m_owner)) << "it has a window";
    EXPECT_TRUE(dlg.DestroyWindow());
    EXPECT_EQ(1, dlg.m_nPostNcDestroy);
    EXPECT_FALSE(dlg.Create(static_cast<UINT>(999), &m_owner));
}

TEST_F(Modal, ManyRunsLeaveNothingBehind) {
    expectNoLeak(50, [&] {
        FormDlg dlg(&m_owner);
        dlg.m_onAny = [](FormDlg& form, UINT message) {
            if (message == WM_KICKIDLE)
                form.EndDialog(1);
        };
        dlg.DoModal();
    });
}

} // namespace
