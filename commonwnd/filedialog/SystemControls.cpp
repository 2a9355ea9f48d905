#include "SystemControls.h"

#include <QVSkin.h>

namespace _qv_commonwnd {

namespace {

constexpr int kComboRowPx = 16;
constexpr WPARAM kClosedField = static_cast<WPARAM>(-1);
constexpr wchar_t kToolBarClass[] = L"ToolbarWindow32";

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

HWND ViewToolBarOf(HWND frame) {
    HWND bar = frame ? ::FindWindowExW(frame, nullptr, kToolBarClass, L"") : nullptr;
    while (bar && ::GetDlgCtrlID(bar) == kPlacesBarId)
        bar = ::FindWindowExW(frame, bar, kToolBarClass, L"");
    return bar;
}

void GrowFrame(HWND frame, int byPx) {
    CRect window;
    ::GetWindowRect(frame, &window);
    ::SetWindowPos(frame, nullptr, 0, 0, window.Width(), window.Height() + byPx,
                   SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

} // namespace _qv_commonwnd
