// QVRectTracker.h - moves a rectangle (a picture) inside a range (a frame). Window class "QVRectTracker".
//
//   CQVRectTracker tracker;
//   tracker.SubclassDlgItem(31032, this);
//   tracker.SetRectRange(CRect(0, 0, 720, 576));
//   tracker.SetTrackRect(CPoint(100, 80), CRect(0, 0, 320, 240));
//
// The range is shown as large as the control allows, in its proportions. The user drags the rectangle, or
// moves it by arrow keys: 1 unit, with Shift 10. Escape while dragging puts it back, also out of the range.
// Each step sends QVN_TRACKERMOVE to the parent. All co-ordinates are units of the range, as the host counts
// them (usually picture pixels).
#pragma once

#include "QVExtraCtrlDef.h"

#include <QVBaseCtrl.h>

namespace _qv_extractrl {

// Bits of CQVRectTracker::m_nOption.
enum QVTrackerOption : int {
    QVTRACKER_FRAME = 0x01,         // the rectangle is drawn with a frame and corner marks
    QVTRACKER_GRID = 0x02,          // lines at the thirds of the range
    QVTRACKER_KEEP_IN_RANGE = 0x20, // the user cannot move the rectangle out of the range
};

// Values of CQVRectTracker::m_nTrackerMode.
enum QVTrackerMode : int {
    QVTRACKER_MOVE = 0,      // in both directions; also any value that is not listed here
    QVTRACKER_MOVE_HORZ = 1, // sideways only
    QVTRACKER_MOVE_VERT = 2, // up and down only
    QVTRACKER_LOCKED = 3,    // not by the user
};

class QVEXTRACTRL_API CQVRectTracker : public CWnd, public _qv_commonctrl::CQVBaseCtrl {
    DECLARE_DYNAMIC(CQVRectTracker)

  public:
    // Empty range, empty rectangle, option 33, mode 0.
    CQVRectTracker();
    ~CQVRectTracker() override;

    // A child window of class "QVRectTracker". nID: control id. FALSE when the window cannot be made.
    BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParent, UINT nID);

    // The range. An empty or reversed one shows no picture and lets nothing be moved.
    void SetRectRange(const CRect& rcRange);
    CRect GetRectRange() const { return m_rcRange; }

    // The rectangle: rcSize's width and height (reversed: 0) with its top-left corner at ptPos. The program
    // may put it anywhere, also out of the range; the user's next move brings it back. No message is sent.
    void SetTrackRect(CPoint ptPos, const CRect& rcSize);
    CRect GetTrackRect() const { return m_rcTrack; }

    // A picture to show in the rectangle, stretched to it. Borrowed: it must live until another one (or null)
    // is set or the control is gone, and must not be selected into a device context meanwhile.
    void SetPicture(HBITMAP hPicture);

    // How the sizes are written: a _qv_commonctrl::QVTextStyle.
    void SetTextStyle(int nStyle);

    void OnSkinChange(UINT reason, HWND wnd) override;

    int m_nOption = QVTRACKER_FRAME | QVTRACKER_KEEP_IN_RANGE; // QVTrackerOption bits; read at each use
    int m_nTrackerMode = QVTRACKER_MOVE;                       // a QVTrackerMode; read at each use

  protected:
    void PreSubclassWindow() override;
    void PostNcDestroy() override;

    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg UINT OnGetDlgCode();
    afx_msg void OnSetFocus(CWnd* pOldWnd);
    afx_msg void OnKillFocus(CWnd* pNewWnd);
    afx_msg void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnMouseMove(UINT nFlags, CPoint point);
    afx_msg void OnLButtonUp(UINT nFlags, CPoint point);
    afx_msg void OnCaptureChanged(CWnd* pWnd);
    afx_msg BOOL OnSetCursor(CWnd* pWnd, UINT nHitTest, UINT message);
    DECLARE_MESSAGE_MAP()

  private:
    struct QVTrackerView View() const;
    CRect HitRect() const;
    bool CanMove() const;
    void MoveByUser(LONGLONG nLeft, LONGLONG nTop);
    void TakeRect(const CRect& rcMoved);
    void Redraw();

    CRect m_rcRange;
    CRect m_rcTrack;
    HBITMAP m_hPicture = nullptr;
    int m_nTextStyle = 18; // QVTEXT_LABEL
    bool m_bDragging = false;
    CPoint m_ptDragStart; // client pixels
    CRect m_rcDragStart;  // the rectangle when the drag began
};

} // namespace _qv_extractrl
