// From DoModal to the file dialog's initialised state: ours against the bare system dialog with an empty hook.
#include <InTurn.h>
#include <QVCommonWnd.h>

#include <chrono>

using namespace _qv_commonwnd;

namespace {

using Clock = std::chrono::steady_clock;

constexpr double kGoalRatio = 1.15;
constexpr int kShowings = 30;
constexpr wchar_t kFolder[] = L"C:\\windows";

double SecondsSince(Clock::time_point start) {
    return std::chrono::duration<double>(Clock::now() - start).count();
}

class TimedDialog : public CQVFileDialog {
  public:
    TimedDialog()
        : CQVFileDialog(TRUE, nullptr, nullptr, OFN_FILEMUSTEXIST, L"All|*.*|", nullptr, 0, FALSE, FALSE,
                        FDO_KEEPOK) {
        m_ofn.lpstrInitialDir = kFolder;
    }

    double m_seconds = 0;
    Clock::time_point m_start = Clock::now();

  protected:
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) override {
        const BOOL answer = CQVFileDialog::OnNotify(wParam, lParam, result);
        if (reinterpret_cast<const NMHDR*>(lParam)->code == static_cast<UINT>(CDN_INITDONE)) {
            m_seconds = SecondsSince(m_start);
            ::PostMessageW(::GetParent(m_hWnd), WM_COMMAND, IDCANCEL, 0);
        }
        return answer;
    }
};

double Ours() {
    TimedDialog dialog;
    dialog.DoModal();
    return dialog.m_seconds;
}

struct BareRun {
    double seconds = 0;
    Clock::time_point start = Clock::now();
};

UINT_PTR CALLBACK EmptyHook(HWND dialog, UINT message, WPARAM, LPARAM lParam) {
    if (message == WM_INITDIALOG) {
        const auto* names = reinterpret_cast<const OPENFILENAMEW*>(lParam);
        ::SetWindowLongPtrW(dialog, GWLP_USERDATA, names->lCustData);
    }
    if (message == WM_NOTIFY &&
        reinterpret_cast<const NMHDR*>(lParam)->code == static_cast<UINT>(CDN_INITDONE)) {
        auto* run = reinterpret_cast<BareRun*>(::GetWindowLongPtrW(dialog, GWLP_USERDATA));
        run->seconds = SecondsSince(run->start);
        ::PostMessageW(::GetParent(dialog), WM_COMMAND, IDCANCEL, 0);
    }
    return 0;
}

double Bare() {
    BareRun run;
    wchar_t file[MAX_PATH] = {};
    OPENFILENAMEW names = {};
    names.lStructSize = sizeof(names);
    names.lpstrFilter = L"All\0*.*\0";
    names.lpstrFile = file;
    names.nMaxFile = MAX_PATH;
    names.lpstrInitialDir = kFolder;
    names.Flags = OFN_EXPLORER | OFN_ENABLEHOOK | OFN_HIDEREADONLY | OFN_FILEMUSTEXIST;
    names.lpfnHook = EmptyHook;
    names.lCustData = reinterpret_cast<LPARAM>(&run);
    ::GetOpenFileNameW(&names);
    return run.seconds;
}

[[maybe_unused]] const bool g_registered =
    registerInTurn({"file dialog, call to initialised", "bare with hook", kShowings, kGoalRatio}, Bare, Ours);

} // namespace
