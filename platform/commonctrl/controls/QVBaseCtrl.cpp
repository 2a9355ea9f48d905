#include "QVBaseCtrl.h"

#include "QVSkin.h"
#include "skin/QVSkinBroadcast.h"

#include <algorithm>
#include <vector>

namespace _qv_commonctrl {

namespace {

constexpr wchar_t kSkinChangeMessage[] = L"QVCommonCtrl.SkinChange";

std::vector<CQVBaseCtrl*>& AttachedControls() {
    static std::vector<CQVBaseCtrl*> controls;
    return controls;
}

bool IsAttached(const CQVBaseCtrl* control) {
    const auto& controls = AttachedControls();
    return std::find(controls.begin(), controls.end(), control) != controls.end();
}

} // namespace

UINT QV_GetSkinChangeMessage() {
    static const UINT message = ::RegisterWindowMessageW(kSkinChangeMessage);
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
    if (!IsAttached(this))
        AttachedControls().push_back(this);
}

void CQVBaseCtrl::DetachSkin() {
    std::erase(AttachedControls(), this);
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
    const UINT dpi = QV_GetWindowDpi(m_pSkinWnd->GetSafeHwnd());
    for (const int index : {QVFONT_UI, QVFONT_TITLE, QVFONT_UI_LATIN, QVFONT_UI_CJK, QVFONT_MONO}) {
        if (QV_GetSysFont(index, dpi)->GetSafeHandle() == font) {
            m_nFontIndex = index;
            return;
        }
    }
}

void QV_BroadcastSkinChange() {
    // A handler may destroy controls or make new ones, so the list is copied and every entry is looked up
    // again.
    const std::vector<CQVBaseCtrl*> controls = AttachedControls();
    for (CQVBaseCtrl* control : controls) {
        if (!IsAttached(control))
            continue;
        const HWND wnd = control->GetSkinWnd()->GetSafeHwnd();
        if (!wnd)
            continue;
        control->OnSkinChange(0, wnd);
        if (::IsWindow(wnd))
            ::SendMessageW(wnd, QV_GetSkinChangeMessage(), 0, 0);
    }
    for (CQVBaseCtrl* control : controls) {
        if (IsAttached(control) && control->GetSkinWnd()->GetSafeHwnd())
            ::RedrawWindow(*control->GetSkinWnd(), nullptr, nullptr, RDW_UPDATENOW);
    }
}

} // namespace _qv_commonctrl
