#include "QVBaseFrame.h"

#include "QVFrameImpl.h"

namespace _qv_commonctrl {

CQVBaseFrame::CQVBaseFrame() : m_pImpl(new CQVFrameImpl) {
}

CQVBaseFrame::~CQVBaseFrame() {
    delete m_pImpl;
}

void CQVBaseFrame::AttachFrame(CWnd* wnd) {
    if (!wnd || !wnd->GetSafeHwnd())
        return;
    AttachSkin(wnd);
    m_pImpl->Attach(wnd->GetSafeHwnd());
}

void CQVBaseFrame::DetachFrame() {
    DetachSkin();
    m_pImpl->Detach();
}

void CQVBaseFrame::SetAutoSize(BOOL enable, CWnd* wnd, DWORD) {
    m_pImpl->SetAutoSize(enable != FALSE, wnd->GetSafeHwnd());
}

void CQVBaseFrame::SetChildWindow(CWnd* child, int mode, DWORD flags) {
    if (child && m_pImpl->Window())
        m_pImpl->RegisterChild(child->GetSafeHwnd(), mode, flags);
}

CRect CQVBaseFrame::GetFrameEdges() const {
    return m_pImpl->Edges();
}

BOOL CQVBaseFrame::HandleFrameMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) {
    return m_pImpl->Handle(message, wParam, lParam, result);
}

void CQVBaseFrame::OnSkinChange(UINT reason, HWND wnd) {
    CQVBaseCtrl::OnSkinChange(reason, wnd);
}

} // namespace _qv_commonctrl
