// Many dialogs in a row, and dialogs that are sent anything at all.
#include "FileDialogFixture.h"
#include "PreviewProbe.h"

#include "Census.h"

#include <cstdlib>
#include <random>

namespace filedialog_test {

using qvtest::Census;

namespace {

constexpr wchar_t kFilter[] = L"AVI|*.avi|All|*.*|";
constexpr int kViewCommands[] = {0x7029, 0x702A, 0x702B, 0x702C};
constexpr UINT_PTR kStepTimer = 77;
constexpr UINT kStepMs = 1;

int NumberFrom(const char* variable, int otherwise) {
    const char* const text = std::getenv(variable);
    return text ? std::atoi(text) : otherwise;
}

HWND ListOf(HWND frame) {
    return qvtest::findDescendant(frame, L"SysListView32");
}

// What a user does in a visit, step by step; the last step ends the dialog.
bool Visit(HWND frame, const std::wstring& sub, int step) {
    const HWND list = ListOf(frame);
    switch (step) {
    case 0:
    case 1:
    case 2:
    case 3:
        ::SendMessageW(::GetParent(list), WM_COMMAND, static_cast<WPARAM>(kViewCommands[step]), 0);
        return true;
    case 4:
        ListView_SetItemState(list, 0, LVIS_SELECTED, LVIS_SELECTED);
        return true;
    case 5:
        ListView_SetItemState(list, -1, 0, LVIS_SELECTED);
        return true;
    case 6:
        ::SendDlgItemMessageW(frame, kFileNameCombo, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(sub.c_str()));
        ::SendMessageW(frame, WM_COMMAND, IDOK, 0);
        return true;
    case 7:
        ::SendDlgItemMessageW(frame, kLookInCombo, CB_SHOWDROPDOWN, TRUE, 0);
        ::UpdateWindow(frame);
        ::SendDlgItemMessageW(frame, kLookInCombo, CB_SHOWDROPDOWN, FALSE, 0);
        return true;
    default:
        ::PostMessageW(frame, WM_COMMAND, IDCANCEL, 0);
        return false;
    }
}

// Makes a visit in any of the two dialogs, driven by a timer of the hook's window.
class Visitor {
  public:
    explicit Visitor(std::wstring sub) : m_sub(std::move(sub)) {}
    void OnNotify(HWND child, UINT code) {
        if (code == static_cast<UINT>(CDN_INITDONE))
            ::SetTimer(child, kStepTimer, kStepMs, nullptr);
    }
    void OnTimer(HWND child) {
        if (!Visit(::GetParent(child), m_sub, m_step++))
            ::KillTimer(child, kStepTimer);
    }

  private:
    std::wstring m_sub;
    int m_step = 0;
};

template <class Base> class Visited : public Base {
  public:
    template <class... Args>
    explicit Visited(const std::wstring& sub, Args... args) : Base(args...), m_visitor(sub) {}

  protected:
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) override {
        const BOOL answer = Base::OnNotify(wParam, lParam, result);
        m_visitor.OnNotify(this->m_hWnd, reinterpret_cast<const NMHDR*>(lParam)->code);
        return answer;
    }
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message != WM_TIMER || wParam != kStepTimer)
            return Base::WindowProc(message, wParam, lParam);
        m_visitor.OnTimer(this->m_hWnd);
        return 0;
    }

  private:
    Visitor m_visitor;
};

// Objects of each kind that so many runs leave behind.
std::map<std::string, long> GrowthOver(int runs, const std::function<void()>& run) {
    constexpr int kWarmUp = 4;
    constexpr int kWaits = 100; // for the system's threads to end
    constexpr DWORD kWaitMs = 20;
    for (int i = 0; i < kWarmUp; ++i)
        run();
    Census::take();
    const Census before = Census::take();
    for (int i = 0; i < runs; ++i)
        run();
    Census after = Census::take();
    for (int i = 0; i < kWaits && after.count("thread") > before.count("thread"); ++i) {
        ::Sleep(kWaitMs);
        after = Census::take();
    }
    std::map<std::string, long> growth;
    for (const char* kind :
         {"window", "menu", "icon", "accelerator", "pen", "brush", "bitmap", "font", "region", "palette",
          "memory dc", "window dc", "kernel handle", "thread", "heap block"})
        growth[kind] = after.count(kind) - before.count(kind);
    return growth;
}

} // namespace

class FileDialogLife : public FileDialog {
  protected:
    void SetUp() override {
        FileDialog::SetUp();
        m_folder.file(L"a.avi", "x");
        m_folder.file(L"b.avi", "x");
        m_folder.file(L"Sub\\deep.avi", "x");
        m_sub = m_folder.path(L"Sub");
    }
    std::wstring m_sub;
};

// The platform's own dialog may leave something behind each time (accelerators, blocks of its heap): ours must not
// leave more.
TEST_F(FileDialogLife, VisitsLeaveNoMoreBehindThanTheSystemsDialog) {
    constexpr int kBareRuns = 8;
    const int runs = NumberFrom("QV_DIALOG_VISITS", 24); // a long run is asked for by hand
    const auto bare = GrowthOver(kBareRuns, [&] {
        Visited<CFileDialog> dialog(m_sub, TRUE, nullptr, nullptr, OFN_HIDEREADONLY, kFilter, nullptr, 0,
                                    FALSE);
        dialog.m_ofn.lpstrInitialDir = m_folder.path().c_str();
        EXPECT_EQ(IDCANCEL, dialog.DoModal());
    });
    const auto ours = GrowthOver(runs, [&] {
        Visited<TestFileDialog> dialog(m_sub, TRUE, nullptr, nullptr, 0, kFilter, nullptr, 0, FALSE, FALSE,
                                       FDO_KEEPOK | FDO_IMPORTFOLDER);
        dialog.m_ofn.lpstrInitialDir = m_folder.path().c_str();
        EXPECT_EQ(IDCANCEL, dialog.DoModal());
    });
    constexpr double kHalfARun = 0.5;
    constexpr double kFontsOfStatics =
        2; // blocks that the platform's static text keeps of each font it is given
    for (const auto& [kind, growth] : ours) {
        const double ofTheSystem = static_cast<double>(bare.at(kind)) / kBareRuns;
        const double allowed = kind == "heap block" ? kFontsOfStatics : kHalfARun;
        EXPECT_LT(static_cast<double>(growth) / runs, ofTheSystem + allowed)
            << kind << ": " << growth << " against " << bare.at(kind);
    }
}

// Messages with any parameters that carry no pointers, to any window of the dialog, between real selections and
// changes of view.
class Storm {
  public:
    Storm(HWND frame, unsigned seed) : m_frame(frame), m_random(seed) {}

    void Send(int messages) {
        for (int i = 0; i < messages && ::IsWindow(m_frame); ++i)
            SendOne();
    }

  private:
    struct Kind {
        UINT first;
        UINT last;
    };

    unsigned Any(unsigned below) { return std::uniform_int_distribution<unsigned>(0, below - 1)(m_random); }

    HWND AnyWindow() {
        std::vector<HWND> windows = qvtest::findDescendants(m_frame, L"");
        windows.push_back(m_frame);
        return windows[Any(static_cast<unsigned>(windows.size()))];
    }

    void SendOne() {
        // Mouse, keys, painting, activation, scrolling, sizing and the private messages of the dialog; never those that
        // take pointers or end windows.
        static constexpr UINT kMessages[] = {
            WM_MOUSEMOVE,      WM_LBUTTONUP,      WM_MOUSELEAVE,    WM_NCMOUSEMOVE,   WM_NCMOUSELEAVE,
            WM_PAINT,          WM_NCPAINT,        WM_SETFOCUS,      WM_KILLFOCUS,     WM_CANCELMODE,
            WM_CAPTURECHANGED, WM_VSCROLL,        WM_HSCROLL,       WM_MOUSEWHEEL,    WM_TIMER,
            WM_ENABLE,         WM_SYSCOLORCHANGE, WM_NCACTIVATE,    WM_UPDATEUISTATE, WM_THEMECHANGED,
            WM_GETDLGCODE,     WM_SETREDRAW,      WM_KEYUP,         WM_QV_LISTSKIN,   WM_NULL,
            WM_QUERYUISTATE,   WM_GETFONT,        WM_GETTEXTLENGTH, WM_SHOWWINDOW,    WM_NCHITTEST};
        const UINT message = kMessages[Any(std::size(kMessages))];
        const WPARAM wParam = message == WM_TIMER ? 0x7F00 + Any(16) : Any(5) == 0 ? Any(0x10000) : Any(8);
        // The third parameter of these is a window or a null; anything else is co-ordinates.
        const bool takesWindow = message == WM_CAPTURECHANGED || message == WM_VSCROLL ||
                                 message == WM_HSCROLL || message == WM_TIMER || message == WM_NCACTIVATE ||
                                 message == WM_SHOWWINDOW;
        const LPARAM lParam = takesWindow ? 0 : MAKELPARAM(Any(800) - 50, Any(600) - 50);
        const WPARAM first = message == WM_NCPAINT ? 1
                             : message == WM_PAINT || message == WM_SETFOCUS || message == WM_KILLFOCUS
                                 ? 0
                                 : wParam;
        ::SendMessageW(AnyWindow(), message, first, lParam);
        if (Any(50) == 0)
            ActReally();
        if (Any(8) == 0)
            PumpSome();
    }

    void ActReally() {
        const HWND list = ListOf(m_frame);
        switch (Any(5)) {
        case 0:
            ::SendMessageW(::GetParent(list), WM_COMMAND, static_cast<WPARAM>(kViewCommands[Any(4)]), 0);
            break;
        case 1:
            ListView_SetItemState(list, static_cast<int>(Any(3)), LVIS_SELECTED, LVIS_SELECTED);
            break;
        case 2:
            ListView_SetItemState(list, -1, 0, LVIS_SELECTED);
            break;
        case 3:
            ::SendDlgItemMessageW(m_frame, kLookInCombo, CB_SHOWDROPDOWN, Any(2), 0);
            break;
        default:
            ::EnableWindow(m_frame, TRUE);
            ::ShowWindow(m_frame, SW_SHOWNA);
            break;
        }
    }

    // Posted messages and paintings, so that the queue does not fill up.
    static void PumpSome() {
        constexpr int kMost = 20;
        MSG message;
        for (int i = 0; i < kMost && ::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE); ++i)
            ::DispatchMessageW(&message);
    }

    HWND m_frame;
    std::mt19937 m_random;
};

TEST_F(FileDialogLife, RandomMessagesNeitherCrashNorHang) {
    constexpr int kMessages = 100000;
    constexpr int kRounds = 20;
    constexpr unsigned kSeed = 20240131;
    const int total = NumberFrom("QV_STORM_MESSAGES", kMessages);
    PreviewProbe preview(CSize(300, 100));
    const auto dialog = Make(Kind::Open, kFilter, OFN_ALLOWMULTISELECT);
    dialog->SetAdvanceWnd(&preview);
    dialog->EnableLayerInfo(2);
    ModalScript script(qvtest::Milliseconds(600000));
    script.step("send the messages", [&](Driver& user) {
        const HWND frame = Frame(user);
        Storm storm(frame, kSeed);
        for (int round = 0; round < kRounds; ++round)
            user.onUi([&] { storm.Send(total / kRounds); });
        user.onUi([&] {
            ::ReleaseCapture();
            for (const HWND window : qvtest::findDescendants(frame, L""))
                ::EnableWindow(window, TRUE);
            ::EnableWindow(frame, TRUE);
            ::PostMessageW(frame, WM_COMMAND, IDCANCEL, 0);
        });
    });
    EXPECT_EQ(IDCANCEL, script.run([&] { return dialog->DoModal(); }));
}

} // namespace filedialog_test
