// InnerCombo.h: the combo box inside a ComboBoxEx32 window.
#pragma once

#include "QVComboBox.h"

namespace _qv_commonctrl {

// The entries belong to the window round it, which is asked for texts, images and indentation.
class InnerCombo : public CQVComboBox {
  public:
    explicit InnerCombo(const CWnd& outer) : m_outer(outer) {}
    // Leaves the window: the outer one may live on without its object.
    ~InnerCombo() override;

    // Wears the outer window's combo box, unless it is not there yet or somebody else wears it.
    void Attach();

  protected:
    void DrawEntry(CDC* dc, int item, const CRect& rect, UINT itemState) override;
    BOOL HasEditField() const override { return ::SendMessageW(m_outer, CBEM_GETEDITCONTROL, 0, 0) != 0; }

  private:
    void DrawImage(CDC* dc, const COMBOBOXEXITEMW& entry, UINT itemState, CRect& place) const;

    const CWnd& m_outer;
};

} // namespace _qv_commonctrl
