// CWindowDC: gets the context of a window with its frame, and releases it.
#include "WindowContext.h"
#include "handles/HandleOf.h"
#include "afx/WindowDC.h"

IMPLEMENT_DYNAMIC(CWindowDC, CDC)

CWindowDC::CWindowDC(CWnd* pWnd) : m_hWnd(HandleOf(pWnd)) {
    AttachWindowDC(WindowContext(pWnd, ::GetWindowDC));
}

CWindowDC::~CWindowDC() {
    ::ReleaseDC(m_hWnd, Detach());
}
