// CClientDC: gets the context of the client area of a window, and releases it.
#include "WindowContext.h"
#include "handles/HandleOf.h"
#include "afx/ClientDC.h"

IMPLEMENT_DYNAMIC(CClientDC, CDC)

CClientDC::CClientDC(CWnd* pWnd) : m_hWnd(HandleOf(pWnd)) {
    AttachWindowDC(WindowContext(pWnd, ::GetDC));
}

CClientDC::~CClientDC() {
    ::ReleaseDC(m_hWnd, Detach());
}
