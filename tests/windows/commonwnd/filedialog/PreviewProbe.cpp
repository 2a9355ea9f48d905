#include "PreviewProbe.h"

#include <utility>

namespace filedialog_test {

namespace {

constexpr COLORREF kGround = RGB(20, 60, 60);

} // namespace

PreviewProbe::PreviewProbe(CSize size) {
    CreateEx(0, AfxRegisterWndClass(0), L"Preview", WS_POPUP, CRect(CPoint(10, 10), size), nullptr, 0);
}

PreviewProbe::~PreviewProbe() {
    if (m_hWnd)
        DestroyWindow();
}

std::vector<PreviewProbe::Note> PreviewProbe::TakeNotes() {
    const std::lock_guard lock(m_guard);
    return std::exchange(m_notes, {});
}

LRESULT PreviewProbe::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_ERASEBKGND) {
        CRect client;
        GetClientRect(&client);
        CDC::FromHandle(reinterpret_cast<HDC>(wParam))->FillSolidRect(client, kGround);
        return TRUE;
    }
    if (message != WM_QV_FILESELCHANGE)
        return CWnd::WindowProc(message, wParam, lParam);
    Note note;
    note.what = wParam;
    if (wParam == FILESEL_ONE) {
        note.isNull = lParam == 0;
        note.path = lParam ? reinterpret_cast<const wchar_t*>(lParam) : L"";
    } else if (wParam == FILESEL_SEVERAL) {
        note.count = *reinterpret_cast<const int*>(lParam);
    } else if (wParam == FILESEL_ATTACHED) {
        note.dialog = reinterpret_cast<CQVFileDialog*>(lParam);
    }
    const std::lock_guard lock(m_guard);
    m_notes.push_back(note);
    return 0;
}

} // namespace filedialog_test
