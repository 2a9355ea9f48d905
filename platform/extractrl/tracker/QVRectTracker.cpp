#include "QVRectTracker.h"

#include "support/QVControlClass.h"
#include "QVTrackerPainter.h"

#include <QVMemoDC.h>
#include <QVSkin.h>

#include <algorithm>

namespace _qv_extractrl {

using namespace _qv_commonctrl;

namespace {

constexpr int kSmallStep = 1;
constexpr int kLargeStep = 10;
constexpr int kMarginPx96 = 6;    // round the shown range
constexpr int kLeastHitPx96 = 12; // a tiny rectangle can still be caught by the mouse

struct TrackerClass {
    static CQVControlClass& ControlClass();
};

CQVControlClass g_class(L"QVRectTracker", nullptr, CS_HREDRAW | CS_VREDRAW, 0, &ControlProc<TrackerClass>,
                        [] { return static_cast<CWnd*>(new CQVRectTracker); });

CQVControlClass& TrackerClass::ControlClass() {
    return g_class;
}

} // namespace

IMPLEMENT_DYNAMIC(CQVRectTracker, CWnd)

BEGIN_MESSAGE_MAP(CQVRectTracker, CWnd)
    ON_WM_PAINT()
    ON_WM_ERASEBKGND()
    ON_WM_GETDLGCODE()
    ON_WM_SETFOCUS()
    ON_WM_KILLFOCUS()
    ON_WM_KEYDOWN()
    ON_WM_LBUTTONDOWN()
    ON_WM_MOUSEMOVE()
    ON_WM_LBUTTONUP()
    ON_WM_CAPTURECHANGED()
    ON_WM_SETCURSOR()
END_MESSAGE_MAP()

CQVRectTracker::CQVRectTracker() = default;

CQVRectTracker::~CQVRectTracker() {
    DestroyWindow(); // while this is still a tracker, whose handlers the messages find
}

BOOL CQVRectTracker::Create(DWORD dwStyle, const RECT& rect, CWnd* pParent, UINT nID) {
    return CWnd::Create(g_class.Name(), nullptr, dwStyle, rect, pParent, nID);
}

void CQVRectTracker::PreSubclassWindow() {
    CWnd::PreSubclassWindow();
    AttachSkin(this);
}

void CQVRectTracker::PostNcDestroy() {
    DetachSkin();
    CWnd::PostNcDestroy();
    QV_DeleteTemplateObject(this);
}

void CQVRectTracker::SetRectRange(const CRect& rcRange) {
    m_rcRange = rcRange;
    Redraw();
}

void CQVRectTracker::SetTrackRect(CPoint ptPos, const CRect& rcSize) {
    const CRect size(0, 0, std::max(rcSize.Width(), 0), std::max(rcSize.Height(), 0));
    m_rcTrack = QV_MoveRectTo(size, ptPos.x, ptPos.y);
    Redraw();
}

void CQVRectTracker::SetPicture(HBITMAP hPicture) {
    m_hPicture = hPicture;
    Redraw();
}

void CQVRectTracker::SetTextStyle(int nStyle) {
    m_nTextStyle = nStyle;
    Redraw();
}

void CQVRectTracker::OnSkinChange(UINT reason, HWND wnd) {
    CQVBaseCtrl::OnSkinChange(reason, wnd);
}

void CQVRectTracker::Redraw() {
    if (m_hWnd)
        Invalidate(FALSE);
}

QVTrackerView CQVRectTracker::View() const {
    CRect client;
    if (m_hWnd)
        GetClientRect(client);
    return QV_GetTrackerView(m_rcRange, client, QV_ScalePx(m_hWnd, kMarginPx96));
}

bool CQVRectTracker::CanMove() const {
    return m_nTrackerMode != QVTRACKER_LOCKED && !View().IsEmpty();
}

CRect CQVRectTracker::HitRect() const {
    CRect hit = View().ToClient(m_rcTrack);
    const int least = QV_ScalePx(m_hWnd, kLeastHitPx96);
    hit.InflateRect(std::max(least - hit.Width(), 0) / 2, std::max(least - hit.Height(), 0) / 2);
    return hit;
}

// One step of a move. No distance changes nothing, wherever the program has put the rectangle. The window may
// be gone afterwards.
void CQVRectTracker::MoveByUser(LONGLONG nLeft, LONGLONG nTop) {
    if (m_nTrackerMode == QVTRACKER_MOVE_HORZ)
        nTop = m_rcTrack.top;
    else if (m_nTrackerMode == QVTRACKER_MOVE_VERT)
        nLeft = m_rcTrack.left;
    if (nLeft == m_rcTrack.left && nTop == m_rcTrack.top)
        return;
    const CRect moved = QV_MoveRectTo(m_rcTrack, nLeft, nTop);
    TakeRect(m_nOption & QVTRACKER_KEEP_IN_RANGE ? QV_KeepInRange(moved, m_rcRange) : moved);
}

void CQVRectTracker::TakeRect(const CRect& rcMoved) {
    if (rcMoved == m_rcTrack)
        return;
    m_rcTrack = rcMoved;
    Redraw();
    UpdateWindow(); // a drag must not outrun its picture
    const HWND parent = ::GetParent(m_hWnd);
    if (parent)
        ::SendMessageW(parent, QVN_TRACKERMOVE, static_cast<WPARAM>(GetDlgCtrlID()),
                       reinterpret_cast<LPARAM>(this));
}

void CQVRectTracker::OnPaint() {
    CPaintDC paint(this);
    CRect client;
    GetClientRect(client);
    CQVMemoDC dc(&paint, client);
    QV_PaintTracker(dc, client,
                    {View(), m_rcTrack, m_hPicture, m_nOption, m_nTextStyle, ::GetFocus() == m_hWnd,
                     QV_GetWindowDpi(m_hWnd)});
}

BOOL CQVRectTracker::OnEraseBkgnd(CDC*) {
    return TRUE; // every pixel is painted by OnPaint
}

UINT CQVRectTracker::OnGetDlgCode() {
    // Escape is wanted only while it means "put it back".
    return DLGC_WANTARROWS | (m_bDragging ? DLGC_WANTALLKEYS : 0);
}

void CQVRectTracker::OnSetFocus(CWnd* pOldWnd) {
    CWnd::OnSetFocus(pOldWnd);
    Redraw();
}

void CQVRectTracker::OnKillFocus(CWnd* pNewWnd) {
    CWnd::OnKillFocus(pNewWnd);
    Redraw();
}

void CQVRectTracker::OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags) {
    if (m_bDragging) {
        if (nChar == VK_ESCAPE) {
            const CRect before = m_rcDragStart;
            ::ReleaseCapture();
            TakeRect(before);
        }
        return;
    }
    const LONGLONG step = ::GetKeyState(VK_SHIFT) < 0 ? kLargeStep : kSmallStep;
    const LONGLONG left = m_rcTrack.left;
    const LONGLONG top = m_rcTrack.top;
    const bool isArrow = nChar >= VK_LEFT && nChar <= VK_DOWN;
    if (!isArrow)
        CWnd::OnKeyDown(nChar, nRepCnt, nFlags);
    else if (CanMove())
        MoveByUser(left + (nChar == VK_RIGHT  ? step
                           : nChar == VK_LEFT ? -step
                                              : 0),
                   top + (nChar == VK_DOWN ? step
                          : nChar == VK_UP ? -step
                                           : 0));
}

void CQVRectTracker::OnLButtonDown(UINT, CPoint point) {
    SetFocus();
    if (!CanMove() || !HitRect().PtInRect(point))
        return;
    m_bDragging = true;
    m_ptDragStart = point;
    m_rcDragStart = m_rcTrack;
    SetCapture();
    Redraw();
}

void CQVRectTracker::OnMouseMove(UINT nFlags, CPoint point) {
    if (!m_bDragging) {
        CWnd::OnMouseMove(nFlags, point);
        return;
    }
    if (point == m_ptDragStart) {
        TakeRect(m_rcDragStart);
        return;
    }
    // From the drag's start, so that roundings do not add up and the range's edge does not lose the pointer.
    const QVTrackerView view = View();
    MoveByUser(m_rcDragStart.left + view.ToRangeWidth(point.x - m_ptDragStart.x),
               m_rcDragStart.top + view.ToRangeHeight(point.y - m_ptDragStart.y));
}

void CQVRectTracker::OnLButtonUp(UINT, CPoint) {
    if (m_bDragging)
        ::ReleaseCapture();
}

void CQVRectTracker::OnCaptureChanged(CWnd*) {
    m_bDragging = false;
    Redraw();
}

BOOL CQVRectTracker::OnSetCursor(CWnd* pWnd, UINT nHitTest, UINT message) {
    CPoint point;
    ::GetCursorPos(&point);
    ScreenToClient(&point);
    if (nHitTest != HTCLIENT || !CanMove() || !HitRect().PtInRect(point))
        return CWnd::OnSetCursor(pWnd, nHitTest, message);
    ::SetCursor(::LoadCursorW(nullptr, IDC_SIZEALL));
    return TRUE;
}

} // namespace _qv_extractrl
