// The drop-down list of the file dialog's look-in combo box: folders with icons, indented by their depth.
#pragma once

#include <QVComboLBox.h>

namespace _qv_commonwnd {

class CQVComboBoxSt;

class CQVComboLBoxEx : public _qv_commonctrl::CQVComboLBox {
    DECLARE_DYNAMIC(CQVComboLBoxEx)

  public:
    CQVComboLBoxEx();
    ~CQVComboLBoxEx() override;

    // Whether the list always shows (a combo box of the simple kind).
    void SetSimple(BOOL bSimple) { m_bSimple = bSimple; }
    BOOL IsSimple() const { return m_bSimple; }
    // The combo box whose rows these are; borrowed. Null: rows are texts only.
    void SetOwnerCombo(CQVComboBoxSt* pCombo) { m_pOwnerCombo = pCombo; }

  protected:
    void DrawEntry(CDC* dc, int item, const CRect& rect, UINT itemState) override;

  private:
    BOOL m_bSimple;
    CQVComboBoxSt* m_pOwnerCombo;
};

} // namespace _qv_commonwnd
