// QVCheckLBox.h: the drop-down list of a check combo box.
#pragma once

#include "QVCheckComboBox.h"
#include "QVComboLBox.h"

namespace _qv_commonctrl {

// A click toggles and does not close.
class CQVCheckLBox : public CQVComboLBox {
  protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

  private:
    CQVCheckComboBox* CheckCombo() const { return static_cast<CQVCheckComboBox*>(GetCombo()); }
};

} // namespace _qv_commonctrl
