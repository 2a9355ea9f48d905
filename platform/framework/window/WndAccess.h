// The private ends of CWnd that the window procedure and the table of temporary objects work on.
#pragma once

#include "afx/Wnd.h"

#include <memory>

struct AfxWndAccess {
    static std::unique_ptr<CWnd> MakeTemporary(HWND hWnd) { return std::unique_ptr<CWnd>(new CWnd(hWnd)); }
    static LRESULT Call(CWnd* pWnd, UINT message, WPARAM wParam, LPARAM lParam) {
        return pWnd->WindowProc(message, wParam, lParam);
    }
};
