#include "QVPaintMemoDC.h"

#include "QVSkin.h"

namespace _qv_commonctrl {

QVPaintTarget::QVPaintTarget(CWnd* wnd) : m_paint(wnd) {
    wnd->GetClientRect(m_client);
}

CQVPaintMemoDC::CQVPaintMemoDC(CWnd* wnd, int groundColor)
    : QVPaintTarget(wnd), CQVMemoDC(&m_paint, m_client) {
    FillSolidRect(m_client, QV_GetSysColor(groundColor));
}

} // namespace _qv_commonctrl
