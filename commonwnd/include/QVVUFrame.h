// QVVUFrame.h: a window of audio level meters: inputs, tracks and outputs.
//
//     CQVVUFrame meters;
//     meters.CreateEx(0, AfxRegisterWndClass(CS_DBLCLKS), L"Meters", WS_OVERLAPPEDWINDOW,
//                     CRect(100, 100, 800, 460), this, 0);
//     meters.ShowWindow(SW_SHOW);
//     int in[2] = {62, 58}, track[8] = {}, out[2] = {70, 71}; // percent of the scale: QVX_DBToPos
//     meters.SetUVValue(2, in, 8, track, 2, out, 0, 0);       // with each measurement
#pragma once

#include "QVCommonWndApi.h"
#include <QVBaseFrame.h>
#include <QVButton.h>
#include <QVExtraCtrl.h>

namespace _qv_commonwnd {

// The host owns the object; the window owns its meters and buttons. User-interface thread.
class QVCOMMONWND_API CQVVUFrame : public CWnd, public _qv_commonctrl::CQVBaseFrame {
    DECLARE_DYNCREATE(CQVVUFrame)

  public:
    // The most channels of each group. Values that may be used as constants and by reference.
    static const int kMostInputs = 4;
    static const int kMostTracks = 95;
    static const int kMostOutputs = 8;

    CQVVUFrame();
    ~CQVVUFrame() override;

    // Shows levels: `nIn` inputs from `pIn`, `nTrack` tracks from `pTrack`, `nOut` outputs from `pOut`, each
    // 0 (bottom) to 100 (top of the scale), bounded. Other counts than before change the face first; more
    // than 4, 95 and 8, or negative ones, leave the old face, and only levels that have a meter are shown. A
    // null array leaves its group as it is. The last two arguments have no effect. Unchanged levels cost no
    // painting.
    void SetUVValue(int nIn, int* pIn, int nTrack, int* pTrack, int nOut, int* pOut, int, int);

    // All meters of the shown groups to 0.
    void ClearUVValue();

    // TRUE: closing destroys the window; FALSE (the default): it is only hidden, and the host can show it
    // again.
    void SetAutoClose(BOOL bAutoClose);

    void OnSkinChange(UINT reason, HWND wnd) override;

  protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnDestroy();
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg HBRUSH OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor);
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnGetMinMaxInfo(MINMAXINFO* pInfo);
    afx_msg void OnTimer(UINT_PTR nIDEvent);
    afx_msg void OnClose();
    DECLARE_MESSAGE_MAP()

  private:
    static constexpr int kSlots = 108; // 0-3 inputs, 4-11 outputs, 12 and up tracks

    void SetUVFace(long nIn, long nTrack, long nOut);
    void ResizeToFace();
    void StretchMeters(int clientHeight);
    void PaintLine(CDC* pDC, int* pMarks, int nMarks, CRect rect);
    void DeleteSlots();

    _qv_extractrl::CQVVUTableCtrl* m_pMeter[kSlots] = {};
    _qv_commonctrl::CQVButton* m_pButton[kSlots] = {};
    int m_nInCount = 0;
    int m_nTrackCount = 0;
    int m_nOutCount = 0;
    int m_nTrackCreated = 0;
    class CVUFaceLayout* m_pLayout; // owned
    BOOL m_bAutoClose = FALSE;
    int m_nWidth = 100; // of the content, pixels
    CPen* m_pTickPen;   // owned: skin pens
    CPen* m_pShadowPen;
    CBrush m_brPanel; // ground behind the buttons
};

} // namespace _qv_commonwnd
