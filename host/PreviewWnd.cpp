#include "PreviewWnd.h"

#include <QVMemoDC.h>
#include <QVSkin.h>

using namespace _qv_commonctrl;

namespace {

constexpr int kWidthPx = 360; // of the frame on the screen; the height follows its proportions
constexpr int kGapPx = 12;

} // namespace

BEGIN_MESSAGE_MAP(CPreviewWnd, CWnd)
    ON_WM_PAINT()
    ON_WM_ERASEBKGND()
END_MESSAGE_MAP()

CPreviewWnd::CPreviewWnd() = default;

CPreviewWnd::~CPreviewWnd() {
    DestroyWindow();
}

BOOL CPreviewWnd::Show(CWnd* owner, CSize frame, HBITMAP picture, CSize pictureSize) {
    m_frame = frame;
    m_picture = picture;
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

void CPreviewWnd::MovePicture(CPoint pos) {
    m_pos = pos;
    if (m_hWnd)
        RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
}

BOOL CPreviewWnd::OnEraseBkgnd(CDC*) {
    return TRUE;
}

void CPreviewWnd::OnPaint() {
    CPaintDC paint(this);
    CRect client;
    GetClientRect(&client);
    CQVMemoDC dc(&paint, client);
    dc.FillSolidRect(client, RGB(0, 0, 0));
    if (m_picture && m_frame.cx > 0 && m_frame.cy > 0) {
        CDC source;
        source.CreateCompatibleDC(&dc);
        const HGDIOBJ old = ::SelectObject(source.GetSafeHdc(), m_picture);
        BITMAP bitmap = {};
        ::GetObjectW(m_picture, sizeof bitmap, &bitmap);
        dc.SetStretchBltMode(HALFTONE);
        dc.StretchBlt(m_pos.x * client.Width() / m_frame.cx, m_pos.y * client.Height() / m_frame.cy,
                      m_pictureSize.cx * client.Width() / m_frame.cx,
                      m_pictureSize.cy * client.Height() / m_frame.cy, &source, 0, 0, bitmap.bmWidth,
                      bitmap.bmHeight, SRCCOPY);
        ::SelectObject(source.GetSafeHdc(), old);
    }
    dc.Draw3dRect(client, QV_GetSysColor(QVCLR_FRAME_OUTER), QV_GetSysColor(QVCLR_FRAME_OUTER));
}
