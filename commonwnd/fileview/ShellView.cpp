#include "ShellView.h"

#include <iterator>

namespace _qv_commonwnd {

IMPLEMENT_DYNAMIC(CShellView, CWnd)

namespace {

constexpr wchar_t kShellViewClass[] = L"SHELLDLL_DefView";

// Messages that tell a view of changed files, or at which it changes them.
bool MayChangeFiles(UINT message) {
    return message >= WM_USER || message == WM_COMMAND || message == WM_SETTINGCHANGE ||
           message == WM_SYSCOLORCHANGE || message == WM_DEVICECHANGE;
}

bool ChangesItems(UINT code) {
    switch (code) {
    case LVN_INSERTITEM:
    case LVN_DELETEITEM:
    case LVN_DELETEALLITEMS:
    case LVN_ENDLABELEDITA:
    case LVN_ENDLABELEDITW:
        return true;
    default:
        return false;
    }
}

} // namespace

HWND ShellViewOf(HWND frame) {
    return frame ? ::FindWindowExW(frame, nullptr, kShellViewClass, nullptr) : nullptr;
}

HWND ShellListIn(HWND view) {
    return view ? ::GetDlgItem(view, kShellListId) : nullptr;
}

bool IsShellView(HWND wnd) {
    wchar_t name[std::size(kShellViewClass) + 1] = L"";
    return ::GetClassNameW(wnd, name, static_cast<int>(std::size(name))) &&
           ::lstrcmpiW(name, kShellViewClass) == 0;
}

CShellView::CShellView() = default;

CShellView::~CShellView() = default;

void CShellView::PreSubclassWindow() {
    CWnd::PreSubclassWindow();
    m_answers.Forget();
}

LRESULT CShellView::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_NOTIFY && reinterpret_cast<const NMHDR*>(lParam)->idFrom == kShellListId)
        return OnListNotify(wParam, lParam);
    const bool changing = MayChangeFiles(message);
    if (changing)
        m_answers.Forget();
    const LRESULT result = CWnd::WindowProc(message, wParam, lParam);
    if (changing) // the list may have asked meanwhile
        m_answers.Forget();
    return result;
}

// Only two kinds of notification concern the list's object; the others come by the thousand.
LRESULT CShellView::OnListNotify(WPARAM wParam, LPARAM lParam) {
    const UINT code = reinterpret_cast<const NMHDR*>(lParam)->code;
    switch (code) {
    case NM_CUSTOMDRAW:
    case LVN_ITEMCHANGED:
        return CWnd::WindowProc(WM_NOTIFY, wParam, lParam);
    case LVN_GETDISPINFOW:
        return Answer(wParam, lParam);
    default:
        break;
    }
    const LRESULT result = DefWindowProc(WM_NOTIFY, wParam, lParam);
    if (ChangesItems(code))
        m_answers.Forget();
    return result;
}

LRESULT CShellView::Answer(WPARAM wParam, LPARAM lParam) {
    LVITEMW& item = reinterpret_cast<NMLVDISPINFOW*>(lParam)->item;
    if (m_answers.Fill(item))
        return 0;
    const UINT asked = item.mask;
    const LRESULT result = DefWindowProc(WM_NOTIFY, wParam, lParam);
    m_answers.Keep(asked, item);
    return result;
}

} // namespace _qv_commonwnd
