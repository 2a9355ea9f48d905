// QVListControls.h: skinned header, list, tree and progress bar.
#pragma once

#include "QVSkin.h"
#include "QVBaseCtrl.h"

namespace _qv_commonctrl {

class QVCOMMONCTRL_API CQVHeaderCtrl : public CHeaderCtrl, public CQVBaseCtrl {
    DECLARE_DYNAMIC(CQVHeaderCtrl)

  public:
    CQVHeaderCtrl();
    ~CQVHeaderCtrl() override;

  protected:
    void PreSubclassWindow() override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
};

// A list view with skinned rows, header and scroll bars.
class QVCOMMONCTRL_API CQVListCtrl : public CListCtrl, public CQVBaseCtrl {
    DECLARE_DYNAMIC(CQVListCtrl)

  public:
    CQVListCtrl();
    ~CQVListCtrl() override;
    void OnSkinChange(UINT reason, HWND wnd) override;

  protected:
    void PreSubclassWindow() override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

  private:
    CQVHeaderCtrl m_header;
};

// A tree view with skinned rows and scroll bars.
class QVCOMMONCTRL_API CQVTreeCtrl : public CTreeCtrl, public CQVBaseCtrl {
    DECLARE_DYNAMIC(CQVTreeCtrl)

  public:
    CQVTreeCtrl();
    ~CQVTreeCtrl() override;
    void OnSkinChange(UINT reason, HWND wnd) override;

  protected:
    void PreSubclassWindow() override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
};

// A progress bar drawn with the skin; the PBM_* messages keep their meaning.
class QVCOMMONCTRL_API CQVProgressCtrl : public CProgressCtrl, public CQVBaseCtrl {
    DECLARE_DYNAMIC(CQVProgressCtrl)

  public:
    CQVProgressCtrl();
    ~CQVProgressCtrl() override;

  protected:
    void PreSubclassWindow() override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
};

} // namespace _qv_commonctrl
