#include "QVComboBoxEx.h"

#include "InnerCombo.h"

namespace _qv_commonctrl {

IMPLEMENT_DYNAMIC(CQVComboBoxEx, CComboBoxEx)

CQVComboBoxEx::CQVComboBoxEx() : m_pInner(new InnerCombo(*this)) {
}

CQVComboBoxEx::~CQVComboBoxEx() {
    if (m_hWnd)
        DestroyWindow();
    delete m_pInner;
}

void CQVComboBoxEx::PreSubclassWindow() {
    CComboBoxEx::PreSubclassWindow();
    AttachSkinAndFont(this);
    m_pInner->Attach();
}

void CQVComboBoxEx::OnSkinChange(UINT reason, HWND wnd) {
    CQVBaseCtrl::OnSkinChange(reason, wnd);
    if (m_hWnd) // the field inside has no object of its own
        RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}

LRESULT CQVComboBoxEx::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_SETFONT)
        NoteSkinFont(reinterpret_cast<HFONT>(wParam));
    if (message == WM_CTLCOLORSTATIC &&
        ::GetParent(m_hWnd)) // the ground behind the inner combo box's corners
        return ::SendMessageW(::GetParent(m_hWnd), message, wParam, reinterpret_cast<LPARAM>(m_hWnd));
    const LRESULT result = CComboBoxEx::WindowProc(message, wParam, lParam);
    if (message == WM_CREATE && result == 0)
        m_pInner->Attach();
    return result;
}

} // namespace _qv_commonctrl
