// The look-in combo box of the file dialog.
#pragma once

#include "LookInFolders.h"
#include "QVComboLBoxEx.h"

#include <QVComboBox.h>
#include <QVEdit.h>

#include <memory>

namespace _qv_commonwnd {

class CQVComboBoxSt : public _qv_commonctrl::CQVComboBox {
    DECLARE_DYNAMIC(CQVComboBoxSt)

  public:
    CQVComboBoxSt();
    ~CQVComboBoxSt() override;

    // Takes the list, and an edit field that nobody wears, over; once. Done when the window is subclassed.
    void EnableListHook();
    // Gives both back.
    void DisableListHook();
    BOOL IsListHooked() const { return m_bHooked; }

    CLookInFolders& Folders() { return m_folders; }

  protected:
    void PreSubclassWindow() override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    void DrawEntry(CDC* dc, int item, const CRect& rect, UINT itemState) override;

  private:
    BOOL m_bHooked;
    DWORD m_dwStyle; // the combo box's style when the list was taken over
    std::unique_ptr<CQVComboLBoxEx> m_pList;
    std::unique_ptr<_qv_commonctrl::CQVEdit> m_pEdit;
    CToolTipCtrl* m_pToolTip; // owned; null: none
    CLookInFolders m_folders;
};

// One line in the font that suits its script, cut with an ellipsis.
void DrawFolderText(CDC* dc, const CString& text, const CRect& rect, COLORREF color, UINT dpi);

} // namespace _qv_commonwnd
