// The shell's list that the system makes anew for each folder.
#include "FileDialogFixture.h"

namespace filedialog_test {

namespace {

// Watches the paintings of the shell's lists on this thread.
class PaintWatch {
  public:
    explicit PaintWatch(const TestFileDialog& dialog) {
        s_dialog = &dialog;
        s_skinned = s_bare = 0;
        m_hook = ::SetWindowsHookExW(WH_CALLWNDPROC, &Note, nullptr, ::GetCurrentThreadId());
    }
    ~PaintWatch() { ::UnhookWindowsHookEx(m_hook); }
    PaintWatch(const PaintWatch&) = delete;
    PaintWatch& operator=(const PaintWatch&) = delete;

    static int Skinned() { return s_skinned; }
    static int Bare() { return s_bare; }

  private:
    static bool IsShellList(HWND wnd) {
        wchar_t name[32] = L"";
        return ::GetClassNameW(::GetParent(wnd), name, 32) && std::wstring(name) == L"SHELLDLL_DefView" &&
               ::GetDlgCtrlID(wnd) == 1;
    }
    static LRESULT CALLBACK Note(int code, WPARAM wParam, LPARAM lParam) {
        const auto& sent = *reinterpret_cast<const CWPSTRUCT*>(lParam);
        if (code == HC_ACTION && (sent.message == WM_PAINT || sent.message == WM_ERASEBKGND) &&
            IsShellList(sent.hwnd)) {
            const CWnd* const skinned = s_dialog->m_pSkinnedList;
            ++(skinned && skinned->m_hWnd == sent.hwnd ? s_skinned : s_bare);
        }
        return ::CallNextHookEx(nullptr, code, wParam, lParam);
    }

    static inline const TestFileDialog* s_dialog = nullptr;
    static inline int s_skinned = 0;
    static inline int s_bare = 0;
    HHOOK m_hook;
};

// Looks at a frame as soon as it has been shown.
class ShowWatch {
  public:
    explicit ShowWatch(const TestFileDialog& dialog) {
        s_dialog = &dialog;
        s_shown = s_waiting = 0;
        m_hook = ::SetWindowsHookExW(WH_CALLWNDPROCRET, &Note, nullptr, ::GetCurrentThreadId());
    }
    ~ShowWatch() { ::UnhookWindowsHookEx(m_hook); }
    ShowWatch(const ShowWatch&) = delete;
    ShowWatch& operator=(const ShowWatch&) = delete;

    static int Shown() { return s_shown; }
    static int Waiting() { return s_waiting; } // for the first painting

  private:
    static LRESULT CALLBACK Note(int code, WPARAM wParam, LPARAM lParam) {
        const auto& done = *reinterpret_cast<const CWPRETSTRUCT*>(lParam);
        if (code == HC_ACTION && done.message == WM_WINDOWPOSCHANGED && s_dialog->m_hWnd &&
            done.hwnd == ::GetParent(s_dialog->m_hWnd) &&
            (reinterpret_cast<const WINDOWPOS*>(done.lParam)->flags & SWP_SHOWWINDOW)) {
            ++s_shown;
            s_waiting += ::GetUpdateRect(done.hwnd, nullptr, FALSE) != FALSE;
        }
        return ::CallNextHookEx(nullptr, code, wParam, lParam);
    }

    static inline const TestFileDialog* s_dialog = nullptr;
    static inline int s_shown = 0;
    static inline int s_waiting = 0;
    HHOOK m_hook;
};

} // namespace

TEST_F(FileDialog, FrameIsPaintedAsSoonAsItIsShown) {
    const auto dialog = Make(Kind::Open);
    const ShowWatch watch(*dialog);
    Run(*dialog, [](Driver& user) { user.click(Frame(user), IDCANCEL); });
    EXPECT_EQ(1, ShowWatch::Shown());
    EXPECT_EQ(0, ShowWatch::Waiting());
}

// What the system paints before that would flash up in its white.
TEST_F(FileDialog, NoListIsPaintedBeforeItIsSkinned) {
    m_folder.file(L"one.avi", "1");
    m_folder.file(L"sub\\two.avi", "2");
    m_folder.file(L"sub\\three.avi", "3");
    const auto dialog = Make(Kind::Open);
    const PaintWatch watch(*dialog);
    Run(*dialog, [&](Driver& user) {
        const HWND frame = Frame(user);
        const HWND first = List(user, frame, 2);
        user.settle();
        EXPECT_GT(PaintWatch::Skinned(), 0);
        const int before = PaintWatch::Skinned();
        Confirm(user, m_folder.path(L"sub"));
        user.waitFor("another list",
                     [&] { return dialog->m_pSkinnedList && *dialog->m_pSkinnedList != first; });
        List(user, frame, 2);
        user.waitFor("its painting", [&] { return PaintWatch::Skinned() > before; });
        user.settle();
        user.click(frame, IDCANCEL);
    });
    EXPECT_EQ(0, PaintWatch::Bare());
}

} // namespace filedialog_test
