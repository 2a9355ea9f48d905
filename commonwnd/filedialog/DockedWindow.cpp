#include "DockedWindow.h"

#include <utility>

namespace _qv_commonwnd {

namespace {

constexpr UINT kPlaceOnly = SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED;

} // namespace

BOOL CDockedWindow::Dock(HWND window, HWND parent) {
    if (!::IsWindow(window) || !::IsWindow(parent))
        return FALSE;
    Undock();
    m_window = window;
    m_formerStyle = ::GetWindowLongPtrW(window, GWL_STYLE);
    m_formerParent = m_formerStyle & WS_CHILD ? ::GetAncestor(window, GA_PARENT) : nullptr;
    m_formerOwner = ::GetWindow(window, GW_OWNER);
    ::GetWindowRect(window, &m_formerPlace);
    if (m_formerParent)
        ::MapWindowPoints(nullptr, m_formerParent, reinterpret_cast<POINT*>(&m_formerPlace), 2);
    ::ShowWindow(window, SW_HIDE);
    const LONG_PTR style = ::GetWindowLongPtrW(window, GWL_STYLE);
    ::SetWindowLongPtrW(window, GWL_STYLE, (style & ~static_cast<LONG_PTR>(WS_POPUP)) | WS_CHILD);
    ::SetParent(window, parent);
    return TRUE;
}

void CDockedWindow::Undock() {
    const HWND window = std::exchange(m_window, nullptr);
    if (!::IsWindow(window) || (m_formerParent && !::IsWindow(m_formerParent)))
        return;
    ::ShowWindow(window, SW_HIDE);
    ::SetParent(window, m_formerParent);
    ::SetWindowLongPtrW(window, GWL_STYLE, m_formerStyle & ~static_cast<LONG_PTR>(WS_VISIBLE));
    if (!m_formerParent && ::IsWindow(m_formerOwner))
        ::SetWindowLongPtrW(window, GWLP_HWNDPARENT, reinterpret_cast<LONG_PTR>(m_formerOwner));
    ::SetWindowPos(window, nullptr, m_formerPlace.left, m_formerPlace.top, m_formerPlace.Width(),
                   m_formerPlace.Height(), kPlaceOnly);
}

} // namespace _qv_commonwnd
