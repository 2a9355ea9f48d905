// CPaintDC: begins the painting of a window, and ends it.
#include "handles/HandleOf.h"
#include "afx/PaintDC.h"
#include "afx/ResourceException.h"

IMPLEMENT_DYNAMIC(CPaintDC, CDC)

CPaintDC::CPaintDC(CWnd* pWnd) : m_ps(), m_hWnd(HandleOf(pWnd)) {
    if (!m_hWnd || !::BeginPaint(m_hWnd, &m_ps))
        AfxThrowResourceException();
    AttachWindowDC(m_ps.hdc);
}

CPaintDC::~CPaintDC() {
    Detach();
    ::EndPaint(m_hWnd, &m_ps);
}
