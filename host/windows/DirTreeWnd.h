// DirTreeWnd.h: a window with a directory tree of the library, which comes back to the folder chosen the last time.
#pragma once

#include <QVCommonWnd.h>

class CDirTreeWnd : public _qv_commonctrl::CQVDialog {
  public:
    explicit CDirTreeWnd(CWnd* parent);
    ~CDirTreeWnd() override;

    BOOL OnInitDialog() override;
    // The folder after IDOK; empty for one without a path.
    CString Chosen() const { return m_chosen; }

  protected:
    void OnOK() override;

  private:
    CRect TakePlaceOfTree();

    _qv_commonctrl::CQVDirTreeCtrl* m_tree = nullptr; // the library's, to be handed back
    CString m_chosen;
};
