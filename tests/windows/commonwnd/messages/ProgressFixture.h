// What the tests of the progress window share.
#pragma once

#include "QVCommonWnd.h"
#include "res/ResourceIds.h"

#include "LeakGuard.h"
#include "ModalScript.h"
#include "SkinnedTest.h"

#include <climits>
#include <cmath>
#include <functional>
#include <limits>
#include <string>
#include <utility>

namespace progress_test {

using namespace _qv_commonwnd;
using qvtest::Driver;
using qvtest::ModalScript;
using qvtest::textOf;

using Act = std::function<void(Driver&, HWND)>;

class Progress : public qvtest::SkinnedTest {
  protected:
    void SetUp() override {
        SkinnedTest::SetUp();
        CZ5ProgressDlg::EndProgressWnd(0);
        CZ5ProgressDlg::SetCurPos(0, 0);
        wchar_t none[] = L"";
        CZ5ProgressDlg::SetTextShow(none);
    }
    void TearDown() override {
        CZ5ProgressDlg::EndProgressWnd(0);
        SkinnedTest::TearDown();
    }

    // Shows the window and acts on it; the action ends it.
    static void Run(const wchar_t* title, int range, float step, const Act& act) {
        CZ5ProgressDlg::EndProgressWnd(0);
        qvtest::runBeside(
            [&] { CZ5ProgressDlg::ProgressWndDoModle(const_cast<wchar_t*>(title), range, step); },
            {.className = L"#32770"}, act);
    }

    static int Bar(Driver& user, HWND window) {
        return static_cast<int>(user.send(user.waitControl(window, IDC_PROGRESS_BAR), PBM_GETPOS));
    }

    static std::pair<int, int> Range(Driver& user, HWND window) {
        const HWND bar = user.waitControl(window, IDC_PROGRESS_BAR);
        return {static_cast<int>(user.send(bar, PBM_GETRANGE, TRUE)),
                static_cast<int>(user.send(bar, PBM_GETRANGE, FALSE))};
    }

    static void WaitBar(Driver& user, HWND window, int pos) {
        user.waitFor("the bar at " + std::to_string(pos), [&] { return Bar(user, window) == pos; });
    }

    // Each tick changes the number of dots.
    static void WaitTicks(Driver& user, HWND window, int count) {
        const HWND message = user.waitControl(window, IDC_PROGRESS_TEXT);
        for (int i = 0; i < count; ++i) {
            const int before = ::GetWindowTextLengthW(message);
            user.waitFor("a tick", [&] { return ::GetWindowTextLengthW(message) != before; });
        }
    }
};

// A window whose ticks the test makes itself.
class SteppedWindow : public CZ5ProgressDlg {
  public:
    SteppedWindow(wchar_t* title, int range, float step) {
        m_strTitle = title;
        m_nRange = range;
        if (step > 0.0f)
            m_fStep = step;
        EXPECT_TRUE(Create(IDD_PROGRESS));
        KillTimer(kTimer);
    }
    ~SteppedWindow() override { DestroyWindow(); }

    void Tick() { OnTimer(kTimer); }
    std::wstring Message() const { return qvtest::textOf(m_stText.GetSafeHwnd()); }
    int Bar() const {
        return static_cast<int>(::SendMessageW(m_ctrlProgress.GetSafeHwnd(), PBM_GETPOS, 0, 0));
    }

  private:
    static constexpr UINT_PTR kTimer = 12;
};

} // namespace progress_test
