#include "DialogRun.h"

#include <QVCommonWnd.h>

#include <chrono>

using namespace _qv_commonwnd;

namespace {

using Clock = std::chrono::steady_clock;

constexpr UINT kReady = WM_APP + 1;
constexpr wchar_t kFilter[] = L"All|*.*|";

// What both kinds of dialog share while they run.
class Course {
  public:
    explicit Course(const std::function<void(HWND)>& action) : m_action(action) {}

    void OnNotify(HWND child, const NMHDR& header) {
        if (header.code != static_cast<UINT>(CDN_FOLDERCHANGE) || m_asked)
            return;
        m_asked = true;
        ::PostMessageW(child, kReady, 0, 0);
    }
    void OnReady(HWND child) {
        const HWND frame = ::GetParent(child);
        PaintNow(frame);
        m_seconds = std::chrono::duration<double>(Clock::now() - m_start).count();
        m_action(frame);
        ::PostMessageW(frame, WM_COMMAND, IDCANCEL, 0);
    }
    double Seconds() const { return m_seconds; }

  private:
    const std::function<void(HWND)>& m_action;
    Clock::time_point m_start = Clock::now();
    bool m_asked = false;
    double m_seconds = 0;
};

class CourseDialog : public CQVFileDialog {
  public:
    CourseDialog(Course& course, const std::wstring& folder)
        : CQVFileDialog(TRUE, nullptr, nullptr, OFN_ALLOWMULTISELECT, kFilter, nullptr, 0, FALSE, FALSE,
                        FDO_KEEPOK),
          m_course(course) {
        m_ofn.lpstrInitialDir = folder.c_str();
    }

  protected:
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) override {
        const BOOL answer = CQVFileDialog::OnNotify(wParam, lParam, result);
        m_course.OnNotify(m_hWnd, *reinterpret_cast<const NMHDR*>(lParam));
        return answer;
    }
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message != kReady)
            return CQVFileDialog::WindowProc(message, wParam, lParam);
        m_course.OnReady(m_hWnd);
        return 0;
    }

  private:
    Course& m_course;
};

UINT_PTR CALLBACK Hook(HWND child, UINT message, WPARAM, LPARAM lParam) {
    if (message == WM_INITDIALOG)
        ::SetWindowLongPtrW(child, GWLP_USERDATA, reinterpret_cast<const OPENFILENAMEW*>(lParam)->lCustData);
    auto* const course = reinterpret_cast<Course*>(::GetWindowLongPtrW(child, GWLP_USERDATA));
    if (course && message == WM_NOTIFY)
        course->OnNotify(child, *reinterpret_cast<const NMHDR*>(lParam));
    if (course && message == kReady)
        course->OnReady(child);
    return 0;
}

void RunBare(Course& course, const std::wstring& folder) {
    constexpr DWORD kNameChars = 260000;
    std::wstring names(kNameChars, L'\0');
    OPENFILENAMEW record = {};
    record.lStructSize = sizeof record;
    record.lpstrFilter = L"All\0*.*\0";
    record.lpstrFile = names.data();
    record.nMaxFile = kNameChars;
    record.lpstrInitialDir = folder.c_str();
    record.Flags = OFN_EXPLORER | OFN_ENABLEHOOK | OFN_HIDEREADONLY | OFN_ALLOWMULTISELECT;
    record.lpfnHook = Hook;
    record.lCustData = reinterpret_cast<LPARAM>(&course);
    ::GetOpenFileNameW(&record);
}

} // namespace

double RunDialog(Whose whose, const std::wstring& folder, const std::function<void(HWND frame)>& action) {
    Course course(action);
    if (whose == Whose::Bare) {
        RunBare(course, folder);
    } else {
        CourseDialog dialog(course, folder);
        dialog.DoModal();
    }
    return course.Seconds();
}

HWND ListOf(HWND frame) {
    const HWND view = ::FindWindowExW(frame, nullptr, L"SHELLDLL_DefView", nullptr);
    return view ? ::GetDlgItem(view, 1) : nullptr;
}

void PaintNow(HWND window) {
    ::RedrawWindow(window, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
}
