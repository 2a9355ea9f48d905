#include "QVBaseFrame.h"

#include "NonClientFrame.h"

namespace _qv_commonctrl {

CQVBaseFrame::CQVBaseFrame() : m_pFrame(new NonClientFrame) {
}

CQVBaseFrame::~CQVBaseFrame() {
    delete m_pFrame;
}

void CQVBaseFrame::AttachFrame(CWnd* wnd) {
    if (!wnd || !wnd->GetSafeHwnd())
        return;
    AttachSkin(wnd);
    m_pFrame->Attach(wnd->GetSafeHwnd());
}

void CQVBaseFrame::DetachFrame() {
    DetachSkin();
    m_pFrame->Detach();
}

void CQVBaseFrame::SetAutoSize(BOOL enable, CWnd* wnd, DWORD) {
    m_pFrame->SetAutoSize(enable != FALSE, wnd ? wnd->m_hWnd : nullptr);
}

void CQVBaseFrame::SetChildWindow(CWnd* child, int mode, DWORD flags) {
    if (child && m_pFrame->Window())
        m_pFrame->RegisterChild(child->GetSafeHwnd(), mode, flags);
}

CRect CQVBaseFrame::GetFrameEdges() const {
    return m_pFrame->Edges();
}

BOOL CQVBaseFrame::HandleFrameMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) {
    return m_pFrame->Handle(message, wParam, lParam, result);
}

} // namespace _qv_commonctrl
