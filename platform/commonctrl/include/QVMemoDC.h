// QVMemoDC.h: composes a picture in memory and copies it to the target once, when the object dies.
#pragma once

#include "QVCommonCtrlDef.h"

namespace _qv_commonctrl {

//     void CMyWnd::OnPaint() {
//         CPaintDC paint(this);
//         CRect client; GetClientRect(client);
//         CQVMemoDC dc(&paint, client);
//         dc.FillSolidRect(client, QV_GetSysColor(QVCLR_WINDOW));
//     }
class QVCOMMONCTRL_API CQVMemoDC : public CDC {
  public:
    // A picture of `rect` (logical co-ordinates of `target`, which the picture shares). Only the part inside
    // the target's clip box is copied. Drawing goes straight to `target` when no memory bitmap can be had.
    CQVMemoDC(CDC* target, const CRect& rect);
    CQVMemoDC(const CQVMemoDC&) = delete;
    CQVMemoDC& operator=(const CQVMemoDC&) = delete;
    // Copies the picture (SRCCOPY) unless Cancel or a Copy function was called.
    ~CQVMemoDC() override;

    // Copies now, leaving pixels of colour `key` of the target as they are.
    void CopyTransparent(COLORREF key);
    // Copies nothing when the object dies.
    void Cancel();

  private:
    CDC* m_pTarget;
    CRect m_rect;
    CBitmap m_bitmap;
    CBitmap* m_pOldBitmap = nullptr;
    bool m_bCopied = false;
};

} // namespace _qv_commonctrl
