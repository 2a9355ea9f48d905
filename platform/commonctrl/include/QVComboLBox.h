// QVComboLBox.h: the drop-down list of a skinned combo box.
#pragma once

#include "QVSkin.h"
#include "QVBaseCtrl.h"

namespace _qv_commonctrl {

class CQVComboBox;

// The drop-down list window ("ComboLBox") of a skinned combo box: skin ground, rows, border and scroll bar. A
// combo box makes one for its own list; see CQVComboBox::SetListObject for one of a derived class.
class QVCOMMONCTRL_API CQVComboLBox : public CListBox, public CQVBaseCtrl {
    DECLARE_DYNAMIC(CQVComboLBox)

  public:
    CQVComboLBox();
    ~CQVComboLBox() override;

    // The combo box whose list this is; null for a list that was subclassed without one.
    CQVComboBox* GetCombo() const { return m_pCombo; }

  protected:
    void PreSubclassWindow() override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    // Draws row `item` (0-based) into `rect`; `itemState` holds ODS_SELECTED for the current row. The base
    // asks the combo box's DrawEntry, without one it draws the row's text.
    virtual void DrawEntry(CDC* dc, int item, const CRect& rect, UINT itemState);

  private:
    friend class ComboParts;
    void Paint(CDC* dc, const CRect& client);
    BOOL SelectUnderMouse(WPARAM keys, LPARAM point);

    CQVComboBox* m_pCombo = nullptr;
};

} // namespace _qv_commonctrl
