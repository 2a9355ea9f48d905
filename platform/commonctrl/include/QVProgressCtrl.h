// QVProgressCtrl.h: a skinned progress bar.
#pragma once

#include "QVSkin.h"
#include "QVBaseCtrl.h"

namespace _qv_commonctrl {

// A progress bar drawn with the skin; the PBM_* messages and the styles PBS_VERTICAL and PBS_MARQUEE keep
// their meaning.
class QVCOMMONCTRL_API CQVProgressCtrl : public CProgressCtrl, public CQVBaseCtrl {
    DECLARE_DYNAMIC(CQVProgressCtrl)

  public:
    CQVProgressCtrl();
    ~CQVProgressCtrl() override;

  protected:
    void PreSubclassWindow() override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

  private:
    void Paint(CDC* dc);
    CRect FilledPart(const CRect& inside) const;
    void SetMarquee(bool on, UINT stepMs);

    int m_nMarqueeStep = -1; // steps the marquee has made; -1: it does not run
};

} // namespace _qv_commonctrl
