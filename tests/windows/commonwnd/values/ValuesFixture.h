// What the tests of the dialogs for one value share: a user who works the dialog while it runs.
#pragma once

#include "QVCommonWnd.h"
#include "res/ResourceIds.h"

#include "LeakGuard.h"
#include "ModalScript.h"
#include "SkinnedTest.h"

#include <functional>
#include <string>

namespace values_test {

using namespace _qv_commonwnd;
using qvtest::Driver;
using qvtest::ModalScript;
using qvtest::textOf;

using Act = std::function<void(Driver&, HWND)>;

inline constexpr int kLifeRuns = 200;

class Values : public qvtest::SkinnedTest {
  protected:
    // Runs the dialog while the user acts on it; returns its end code.
    template <class Dialog> static INT_PTR Use(Dialog& dialog, const Act& act) {
        return Run([&dialog] { return dialog.DoModal(); }, act);
    }

    static INT_PTR Run(const std::function<INT_PTR()>& body, const Act& act) {
        return qvtest::runBeside(body, {.className = L"#32770"}, act);
    }

    // Runs a dialog without input: the action is done inside its modal loop, on its thread, once the dialog stands on
    // the screen with everything painted. (The loop shows it when no message waits, which may be later than the timer
    // that starts the action: it would end unseen in some runs, and what painting caches would look like a loss.)
    template <class Dialog> static INT_PTR RunOnce(Dialog& dialog, const std::function<void()>& action) {
        Once([&dialog, action] {
            dialog.ShowWindow(SW_SHOW);
            dialog.RedrawWindow(nullptr, nullptr,
                                RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_UPDATENOW | RDW_ALLCHILDREN);
            action();
        });
        return dialog.DoModal();
    }

    static HWND Control(Driver& user, HWND dialog, int id) { return user.waitControl(dialog, id); }

    // Puts a text into the clipboard and pastes it over the whole of an edit.
    static void Paste(Driver& user, HWND edit, const std::wstring& text);

    // OK must have no effect.
    static void ExpectRefused(Driver& user, HWND dialog) {
        user.click(dialog, IDOK);
        user.settle();
        EXPECT_TRUE(::IsWindowVisible(dialog));
    }

  private:
    static void Once(const std::function<void()>& action);
};

} // namespace values_test
