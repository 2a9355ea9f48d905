// What the tests of the skinned controls share: modeless dialogs of the templates.
#pragma once

#include "ControlIds.h"
#include "Driver.h"
#include "LeakGuard.h"
#include "ModalScript.h"
#include "SkinnedTest.h"

namespace controls_test {

using namespace _qv_commonctrl;
using qvtest::Driver;
using qvtest::Picture;

inline void Pump() {
    qvtest::pumpMessages();
}

class TestDialog : public CQVDialog {
  public:
    explicit TestDialog(UINT templateId) : CQVDialog(templateId), m_templateId(templateId) {}

    // Makes and shows the window without a modal loop.
    void Open();
    // Width and height that the template asks for, from the system's own measures.
    CSize TemplateSize() const;
    HWND Item(int id) const { return ::GetDlgItem(m_hWnd, id); }
    CRect ItemRect(int id) const; // client co-ordinates

    void OnOK() override { ++okCount; }
    void OnCancel() override { ++cancelCount; }

    // What the close-up of check combo boxes told.
    int closeUps = 0;
    WPARAM closeUpId = 0;
    int okCount = 0;
    int cancelCount = 0;
    int clicks = 0; // of IDC_PUSH

  protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

  private:
    UINT m_templateId;
};

class Controls : public qvtest::SkinnedTest {};

} // namespace controls_test
