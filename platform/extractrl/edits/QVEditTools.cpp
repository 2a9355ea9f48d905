#include "QVEditTools.h"

#include "QVExtraCtrlDef.h"
#include "support/QVGuards.h"

#include <algorithm>
#include <string_view>

namespace _qv_extractrl {

namespace {

// More than any number or label has; the rest of a huge text is never copied.
constexpr size_t kMostClipboardChars = 512;

constexpr wchar_t kFirstFullWidth = 0xFF01; // full-width '!'
constexpr wchar_t kLastFullWidth = 0xFF5E;  // full-width '~'
constexpr wchar_t kFullWidthOffset = 0xFEE0;
constexpr wchar_t kMinusSign = 0x2212;

std::wstring Trimmed(std::wstring_view text) {
    constexpr std::wstring_view kBlanks = L" \t\r\n\u00A0\u3000";
    const size_t first = text.find_first_not_of(kBlanks);
    if (first == std::wstring_view::npos)
        return {};
    return std::wstring(text.substr(first, text.find_last_not_of(kBlanks) - first + 1));
}

bool IsDigit(wchar_t c) {
    return c >= L'0' && c <= L'9';
}

bool HasPostedCommand(HWND parent) {
    MSG message;
    return ::PeekMessageW(&message, parent, WM_COMMAND, WM_COMMAND, PM_NOREMOVE | PM_NOYIELD) != FALSE;
}

} // namespace

std::wstring QV_ReadClipboard(HWND wnd) {
    const QVClipboardScope clipboard(wnd);
    if (!clipboard.IsOpen())
        return {};
    const HANDLE data = ::GetClipboardData(CF_UNICODETEXT);
    const auto* const text = data ? static_cast<const wchar_t*>(::GlobalLock(data)) : nullptr;
    if (!text)
        return {};
    const size_t capacity = ::GlobalSize(data) / sizeof(wchar_t);
    const size_t length = ::wcsnlen(text, std::min(capacity, kMostClipboardChars));
    std::wstring result = Trimmed({text, length});
    ::GlobalUnlock(data);
    return result;
}

wchar_t QV_NarrowChar(wchar_t c) {
    if (c >= kFirstFullWidth && c <= kLastFullWidth)
        return static_cast<wchar_t>(c - kFullWidthOffset);
    return c == kMinusSign ? L'-' : c;
}

void QV_SendEditNotify(CWnd* control, int code) {
    const HWND parent = ::GetParent(control->m_hWnd);
    if (parent)
        ::SendMessageW(parent, QVN_EDITNOTIFY, static_cast<WPARAM>(code), reinterpret_cast<LPARAM>(control));
}

void QV_SendEnter(CWnd* control) {
    const HWND wnd = control->m_hWnd;
    const HWND parent = ::GetParent(wnd);
    if (!parent)
        return;
    QV_SendEditNotify(control, QVEDIT_ENTER);
    if (!::IsWindow(wnd) || !::IsWindow(parent) || HasPostedCommand(parent))
        return;
    const LRESULT answer = ::SendMessageW(parent, DM_GETDEFID, 0, 0);
    if (HIWORD(answer) != DC_HASDEFID)
        return;
    const int id = LOWORD(answer);
    const HWND button = ::GetDlgItem(parent, id);
    if (button && ::IsWindowEnabled(button))
        ::PostMessageW(parent, WM_COMMAND, MAKEWPARAM(id, BN_CLICKED), reinterpret_cast<LPARAM>(button));
}

bool QV_TakesTyped(wchar_t typed, bool isAccepted, bool& inFraction) {
    if (!isAccepted && (typed == L'.' || typed == L','))
        inFraction = true;
    return isAccepted && !(inFraction && IsDigit(typed));
}

bool QV_EndsFraction(UINT message, WPARAM wParam) {
    switch (message) {
    case WM_KEYDOWN:
        return wParam == VK_BACK || wParam == VK_DELETE || wParam == VK_RETURN ||
               (wParam >= VK_PRIOR && wParam <= VK_DOWN); // Page Up to the arrows
    case WM_LBUTTONDOWN:
    case WM_KILLFOCUS:
    case WM_SETTEXT:
    case WM_PASTE:
    case WM_CUT:
    case WM_CLEAR:
    case WM_UNDO:
    case EM_SETSEL:
    case EM_REPLACESEL:
        return true;
    default:
        return false;
    }
}

bool QV_AsksForEnter(LPARAM dlgCodeParam) {
    const auto* const message = reinterpret_cast<const MSG*>(dlgCodeParam);
    return message && message->message == WM_KEYDOWN && message->wParam == VK_RETURN;
}

int QV_TakeNotches(int& rest, short delta) {
    rest += delta;
    const int notches = rest / WHEEL_DELTA;
    rest %= WHEEL_DELTA;
    return notches;
}

} // namespace _qv_extractrl
