#include "QVBaseCtrl.h"

#include "QVSkin.h"
#include "skin/SkinnedWindows.h"

namespace _qv_commonctrl {

UINT QV_GetSkinChangeMessage() {
    static const UINT message = ::RegisterWindowMessageW(L"QVCommonCtrl.SkinChange");
    return message;
}

CQVBaseCtrl::CQVBaseCtrl() = default;

CQVBaseCtrl::~CQVBaseCtrl() {
    DetachSkin();
}

void CQVBaseCtrl::AttachSkin(CWnd* wnd) {
    if (!wnd) {
        DetachSkin();
        return;
    }
    m_pSkinWnd = wnd;
    EnterSkinnedWindow(this);
}

void CQVBaseCtrl::AttachSkinAndFont(CWnd* wnd) {
    AttachSkin(wnd);
    if (wnd)
        NoteSkinFont(reinterpret_cast<HFONT>(::SendMessageW(wnd->GetSafeHwnd(), WM_GETFONT, 0, 0)));
}

void CQVBaseCtrl::DetachSkin() {
    LeaveSkinnedWindow(this);
    m_pSkinWnd = nullptr;
}

void CQVBaseCtrl::OnSkinChange(UINT, HWND wnd) {
    if (!::IsWindow(wnd))
        return;
    if (m_nFontIndex >= 0) {
        const CFont* font = QV_GetSysFont(m_nFontIndex, QV_GetWindowDpi(wnd));
        ::SendMessageW(wnd, WM_SETFONT, reinterpret_cast<WPARAM>(font->GetSafeHandle()), FALSE);
    }
    ::RedrawWindow(wnd, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME);
}

void CQVBaseCtrl::NoteSkinFont(HFONT font) {
    m_nFontIndex = -1;
    if (!font)
        return;
    // The font may come before the control is attached.
    const UINT dpi = QV_GetWindowDpi(m_pSkinWnd ? m_pSkinWnd->m_hWnd : nullptr);
    for (const int index : {QVFONT_UI, QVFONT_TITLE, QVFONT_UI_LATIN, QVFONT_UI_CJK, QVFONT_MONO}) {
        if (QV_GetSysFont(index, dpi)->GetSafeHandle() == font) {
            m_nFontIndex = index;
            return;
        }
    }
}

} // namespace _qv_commonctrl
