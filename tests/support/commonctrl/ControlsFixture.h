// What the tests of the skinned controls share: modeless dialogs of the templates, the two skins, painted pixels.
#pragma once

#include "ControlIds.h"
#include "Driver.h"
#include "LeakGuard.h"
#include "ModalScript.h"

#include "QVCommonCtrl.h"

#include <gtest/gtest.h>

namespace controls_test {

using namespace _qv_commonctrl;
using qvtest::Driver;
using qvtest::Picture;

// Runs the message loop until nothing is left to do.
void Pump();

// The folder of a shipped skin: "dark" or "light".
CString SkinFolder(const wchar_t* name);

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

class Controls : public ::testing::Test {
  protected:
    void SetUp() override;
    void TearDown() override;

    // The client area of a window as the screen shows it once all is painted.
    static Picture Shot(HWND wnd);
    static Picture WindowShot(HWND wnd);
    static RECT All(const Picture& picture) { return {0, 0, picture.width(), picture.height()}; }
};

} // namespace controls_test
