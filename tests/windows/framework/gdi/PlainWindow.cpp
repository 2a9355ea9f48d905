#include "PlainWindow.h"

PlainWindow::PlainWindow(UINT nClassStyle) {
    WNDCLASSW description = {};
    description.style = nClassStyle;
    description.lpfnWndProc = ::DefWindowProcW;
    description.hInstance = ::GetModuleHandleW(nullptr);
    description.lpszClassName = L"QVPlainTestWindow";
    m_class = ::RegisterClassW(&description);
    m_hWnd = ::CreateWindowExW(WS_EX_TOOLWINDOW, MAKEINTATOM(m_class), L"", WS_POPUP | WS_VISIBLE, 50, 50,
                               kClientPx, kClientPx, nullptr, nullptr, description.hInstance, nullptr);
}

PlainWindow::~PlainWindow() {
    ::DestroyWindow(m_hWnd);
    ::UnregisterClassW(MAKEINTATOM(m_class), ::GetModuleHandleW(nullptr));
}
