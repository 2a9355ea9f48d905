#include "QVVUTableCtrl.h"

#include "support/QVControlClass.h"
#include "QVMeterClock.h"
#include "QVMeterFace.h"

namespace _qv_extractrl {

namespace {

struct MeterClass {
    static CQVControlClass& ControlClass();
};

// A DC of its own, because a host may set a single meter many times a second, which is painted without
// WM_PAINT.
CQVControlClass g_class(L"QVVUTableCtrl", nullptr, CS_OWNDC | CS_HREDRAW | CS_VREDRAW, 0,
                        &ControlProc<MeterClass>, [] { return static_cast<CWnd*>(new CQVVUTableCtrl); });

CQVControlClass& MeterClass::ControlClass() {
    return g_class;
}

} // namespace

IMPLEMENT_DYNAMIC(CQVVUTableCtrl, CWnd)

BEGIN_MESSAGE_MAP(CQVVUTableCtrl, CWnd)
    ON_WM_PAINT()
    ON_WM_ERASEBKGND()
    ON_WM_SIZE()
    ON_WM_DESTROY()
    ON_WM_LBUTTONDOWN()
    ON_MESSAGE(WM_DPICHANGED_AFTERPARENT, &CQVVUTableCtrl::OnDpiChanged)
END_MESSAGE_MAP()

CQVVUTableCtrl::CQVVUTableCtrl() : m_pFace(new CQVMeterFace) {
}

CQVVUTableCtrl::~CQVVUTableCtrl() {
    CQVMeterClock::Get().Remove(this);
    DestroyWindow(); // while this is still a meter, whose handlers the messages find
    delete m_pFace;
}

BOOL CQVVUTableCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParent, UINT nID) {
    return CWnd::Create(g_class.Name(), nullptr, dwStyle, rect, pParent, nID);
}

void CQVVUTableCtrl::PreSubclassWindow() {
    CWnd::PreSubclassWindow();
    AttachSkin(this);
    CRect client;
    GetClientRect(client);
    m_pFace->Resize(client.Size());
}

void CQVVUTableCtrl::PostNcDestroy() {
    DetachSkin();
    CWnd::PostNcDestroy();
    QV_DeleteTemplateObject(this);
}

void CQVVUTableCtrl::SetPos(int nPos) {
    CQVVUTableCtrl* const self = this;
    SetPos(&self, &nPos, 1);
}

void CQVVUTableCtrl::SetPos(CQVVUTableCtrl* const* ppMeters, const int* pPos, int nCount) {
    if (!ppMeters || !pPos)
        return;
    const ULONGLONG now = ::GetTickCount64();
    CQVMeterPainter painter(nCount > 1 ? QVMeterRound::ManyMeters : QVMeterRound::OneMeter);
    for (int i = 0; i < nCount; ++i) {
        CQVVUTableCtrl* const meter = ppMeters[i];
        if (!meter)
            continue;
        meter->m_pFace->SetLevel(meter->m_hWnd, pPos[i], now, painter);
        if (meter->m_hWnd && !meter->m_pFace->State().IsAtRest())
            CQVMeterClock::Get().Add(meter);
    }
}

int CQVVUTableCtrl::GetPos() const {
    return m_pFace->State().Level();
}

int CQVVUTableCtrl::GetPeak() const {
    return m_pFace->State().Peak();
}

BOOL CQVVUTableCtrl::IsClipped() const {
    return m_pFace->State().IsClipped();
}

void CQVVUTableCtrl::ResetPeak() {
    CQVMeterPainter painter(QVMeterRound::OneMeter);
    m_pFace->Reset(m_hWnd, painter);
}

void CQVVUTableCtrl::OnSkinChange(UINT reason, HWND wnd) {
    m_pFace->ForgetStrip();
    CQVBaseCtrl::OnSkinChange(reason, wnd);
}

void CQVVUTableCtrl::OnPaint() {
    CPaintDC dc(this);
    m_pFace->Paint(m_hWnd, dc.GetSafeHdc(), dc.m_ps.rcPaint);
}

BOOL CQVVUTableCtrl::OnEraseBkgnd(CDC*) {
    return TRUE; // every pixel is painted by OnPaint
}

void CQVVUTableCtrl::OnSize(UINT nType, int cx, int cy) {
    CWnd::OnSize(nType, cx, cy);
    m_pFace->Resize(CSize(cx, cy));
}

void CQVVUTableCtrl::OnDestroy() {
    CQVMeterClock::Get().Remove(this);
    CWnd::OnDestroy();
}

void CQVVUTableCtrl::OnLButtonDown(UINT, CPoint) {
    ResetPeak();
}

LRESULT CQVVUTableCtrl::OnDpiChanged(WPARAM, LPARAM) {
    m_pFace->ForgetStrip();
    Invalidate(FALSE);
    return 0;
}

} // namespace _qv_extractrl
