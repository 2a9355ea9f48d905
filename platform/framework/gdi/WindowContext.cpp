// The device context of a window, as the classes that hold one get it.
#include "WindowContext.h"
#include "handles/HandleOf.h"
#include "afx/ResourceException.h"

HDC WindowContext(const CWnd* pWnd, HDC(WINAPI* get)(HWND)) {
    HDC const dc = pWnd && !pWnd->m_hWnd ? nullptr : get(HandleOf(pWnd));
    if (!dc)
        AfxThrowResourceException();
    return dc;
}
