#include "FileDialogIds.h"

#include <QVSkin.h>

namespace _qv_commonwnd {

namespace {

constexpr int kComboRowPx = 16;
constexpr WPARAM kClosedField = static_cast<WPARAM>(-1);

} // namespace

void SetComboHeights(HWND combo) {
    const LPARAM height = _qv_commonctrl::QV_ScalePx(combo, kComboRowPx);
    ::SendMessageW(combo, CB_SETITEMHEIGHT, kClosedField, height);
    COMBOBOXINFO info = {};
    info.cbSize = sizeof info;
    // Some systems give rows a height of their own only in combo boxes that their parent draws; their list takes it.
    if (::SendMessageW(combo, CB_SETITEMHEIGHT, 0, height) == CB_ERR && ::GetComboBoxInfo(combo, &info))
        ::SendMessageW(info.hwndList, LB_SETITEMHEIGHT, 0, height);
}

HWND ShellViewOf(HWND frame) {
    return frame ? ::FindWindowExW(frame, nullptr, kShellViewClass, nullptr) : nullptr;
}

bool IsShellView(HWND wnd) {
    wchar_t name[std::size(kShellViewClass) + 1] = L"";
    return ::GetClassNameW(wnd, name, static_cast<int>(std::size(name))) &&
           ::lstrcmpiW(name, kShellViewClass) == 0;
}

HWND ShellListIn(HWND view) {
    return view ? ::GetDlgItem(view, kShellListId) : nullptr;
}

HWND ShellListOf(HWND frame) {
    return ShellListIn(ShellViewOf(frame));
}

HWND ViewToolBarOf(HWND frame) {
    HWND bar = frame ? ::FindWindowExW(frame, nullptr, kToolBarClass, L"") : nullptr;
    while (bar && ::GetDlgCtrlID(bar) == kPlacesBarId)
        bar = ::FindWindowExW(frame, bar, kToolBarClass, L"");
    return bar;
}

} // namespace _qv_commonwnd
