// QVVUTableCtrl.h - one level meter with peak hold and clip mark. Window class "QVVUTableCtrl".
//
//   CQVVUTableCtrl meter;
//   meter.Create(WS_CHILD | WS_VISIBLE, CRect(8, 8, 23, 214), this, 0);
//   meter.SetPos(static_cast<int>(QVX_DBToPos(peakDB)));              // each time a level is measured
//
// The bar grows from the foot; its colours change at -9 dB and -3 dB of the scale of QVX_DBToPos, its pattern
// too, so that it reads without colours. A level that drops leaves its peak as a mark, for 1.5 s from the
// drop; then the mark falls at 25 points a second. Level 100 lights the clip mark at the top as long as it
// lasts and for 3 s from its end. A click puts both out.
#pragma once

#include "QVExtraCtrlDef.h"

#include <QVBaseCtrl.h>

namespace _qv_extractrl {

class QVEXTRACTRL_API CQVVUTableCtrl : public CWnd, public _qv_commonctrl::CQVBaseCtrl {
    DECLARE_DYNAMIC(CQVVUTableCtrl)

  public:
    CQVVUTableCtrl();
    ~CQVVUTableCtrl() override;

    // A child window of class "QVVUTableCtrl"; rect in client pixels of the parent, may be empty. nID:
    // control id. FALSE when the window cannot be made.
    BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParent, UINT nID);

    // The level: 0 (foot) to 100 (top), bounded. The rows that look different are painted before the call
    // returns; when none does, nothing is painted. Without a window only the level is kept.
    void SetPos(int nPos);
    // The same for many meters at once, which for meters of one window costs little more than copying the
    // changed pixels. pPos: nCount levels. ppMeters: as many meters, of which null ones are left out.
    static void SetPos(CQVVUTableCtrl* const* ppMeters, const int* pPos, int nCount);
    int GetPos() const;

    // The level that the peak mark shows: GetPos or higher.
    int GetPeak() const;
    // TRUE while the clip mark is lit.
    BOOL IsClipped() const;
    // Brings the peak mark down to the level and puts the clip mark out.
    void ResetPeak();

    void OnSkinChange(UINT reason, HWND wnd) override;

  protected:
    void PreSubclassWindow() override;
    void PostNcDestroy() override;

    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnDestroy();
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg LRESULT OnDpiChanged(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

  private:
    friend class CQVMeterClock;
    class CQVMeterFace* m_pFace; // owned
};

} // namespace _qv_extractrl
