#include "TestHost.h"

TestHost::TestHost(int width, int height) {
    CreateEx(0, AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursorW(nullptr, IDC_ARROW)), L"Test host",
             WS_POPUP | WS_VISIBLE | WS_CLIPCHILDREN, kLeft, kTop, width, height, nullptr, nullptr);
    SetForegroundWindow();
    Settle();
}

TestHost::~TestHost() {
    DestroyWindow();
    Settle();
}

void TestHost::Loop() {
    m_ended = false;
    MSG message;
    while (!m_ended && ::GetMessageW(&message, nullptr, 0, 0) > 0) {
        ::TranslateMessage(&message);
        ::DispatchMessageW(&message);
    }
}

LRESULT TestHost::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_ERASEBKGND) {
        CRect client;
        GetClientRect(client);
        CDC::FromHandle(reinterpret_cast<HDC>(wParam))->FillSolidRect(client, ground);
        return TRUE;
    }
    return CWnd::WindowProc(message, wParam, lParam);
}
