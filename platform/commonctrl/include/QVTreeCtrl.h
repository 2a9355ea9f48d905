// QVTreeCtrl.h: a skinned tree view.
#pragma once

#include "QVSkin.h"
#include "QVBaseCtrl.h"
#include "QVSetupMoment.h"

namespace _qv_commonctrl {

// A tree view with skinned rows, expanders and scroll bars; custom draw as with the list.
class QVCOMMONCTRL_API CQVTreeCtrl : public CTreeCtrl, public CQVBaseCtrl {
    DECLARE_DYNAMIC(CQVTreeCtrl)

  public:
    CQVTreeCtrl();
    ~CQVTreeCtrl() override;
    void OnSkinChange(UINT reason, HWND wnd) override;

  protected:
    void PreSubclassWindow() override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override;

  private:
    void SetUp();
    void ApplyColors();

    QVSetupMoment m_setup;
};

// What a tree of any class answers to its custom-draw notification in order to look like CQVTreeCtrl: the
// rows are painted with the skin's colours and expanders and the tree's own font and images. Returns the
// answer.
QVCOMMONCTRL_API LRESULT QV_PaintTreeItem(NMTVCUSTOMDRAW& draw);

} // namespace _qv_commonctrl
