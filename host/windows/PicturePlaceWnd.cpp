#include "PicturePlaceWnd.h"

#include <QVMemoDC.h>
#include <QVSkin.h>

using namespace _qv_commonctrl;

namespace {

constexpr int kWidthPx = 360; // of the frame on the screen; the height follows its proportions
constexpr int kGapPx = 12;

} // namespace

BEGIN_MESSAGE_MAP(CPicturePlaceWnd, CWnd)
    ON_WM_PAINT()
    ON_WM_ERASEBKGND()
END_MESSAGE_MAP()

CPicturePlaceWnd::~CPicturePlaceWnd() {
    DestroyWindow();
}

BOOL CPicturePlaceWnd::Show(CWnd* owner, CSize frame, CPixelBitmap& picture, CSize pictureSize) {
    m_frame = frame;
    m_picture = &picture;
    m_pictureSize = pictureSize;
    const int width = QV_ScalePx(owner->GetSafeHwnd(), kWidthPx);
    const int height = frame.cx > 0 ? width * frame.cy / frame.cx : width;
    CRect beside;
    owner->GetWindowRect(&beside);
    const CPoint corner(beside.left + QV_ScalePx(owner->GetSafeHwnd(), kGapPx), beside.top);
    if (!CreateEx(WS_EX_TOOLWINDOW, AfxRegisterWndClass(CS_HREDRAW | CS_VREDRAW), L"", WS_POPUP,
                  CRect(corner, CSize(width, height)), owner, 0))
        return FALSE;
    ShowWindow(SW_SHOWNA);
    return TRUE;
}

void CPicturePlaceWnd::MovePicture(CPoint pos) {
    m_pos = pos;
    if (m_hWnd)
        RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
}

BOOL CPicturePlaceWnd::OnEraseBkgnd(CDC*) {
    return TRUE;
}

void CPicturePlaceWnd::OnPaint() {
    CPaintDC paint(this);
    CRect client;
    GetClientRect(&client);
    CQVMemoDC dc(&paint, client);
    dc.FillSolidRect(client, RGB(0, 0, 0));
    if (!m_picture->IsEmpty() && m_frame.cx > 0 && m_frame.cy > 0)
        PaintPicture(dc, client);
    dc.Draw3dRect(client, QV_GetSysColor(QVCLR_FRAME_OUTER), QV_GetSysColor(QVCLR_FRAME_OUTER));
}

void CPicturePlaceWnd::PaintPicture(CDC& dc, const CRect& client) {
    CDC source;
    source.CreateCompatibleDC(&dc);
    CBitmap* const former = source.SelectObject(m_picture->Bitmap());
    dc.SetStretchBltMode(HALFTONE);
    dc.StretchBlt(m_pos.x * client.Width() / m_frame.cx, m_pos.y * client.Height() / m_frame.cy,
                  m_pictureSize.cx * client.Width() / m_frame.cx,
                  m_pictureSize.cy * client.Height() / m_frame.cy, &source, 0, 0, m_picture->Size().cx,
                  m_picture->Size().cy, SRCCOPY);
    source.SelectObject(former);
}
