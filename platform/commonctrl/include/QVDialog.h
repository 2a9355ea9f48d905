// QVDialog.h: the skinned dialog that every dialog of the library derives from.
#pragma once

#include "QVBaseFrame.h"

#include <vector>

namespace _qv_commonctrl {

// A CDialog with a skinned frame. At initialisation it
//  - sizes the window so that the client area is the template's;
//  - passes the caption and the texts of the template's controls (not of edits and combo boxes, whose text is the
//    user's) through the dictionary call-back, when one is set;
//  - subclasses the template's buttons, check boxes, radio buttons, group boxes, statics, edits, combo boxes,
//    lists, trees and progress bars that no object owns yet into skinned ones (it owns these objects);
//    owner-drawn buttons are left alone;
//  - gives every control the skin's UI font.
// A control that the derived dialog has subclassed before (DDX_Control, SubclassDlgItem) is left to it.
class QVCOMMONCTRL_API CQVDialog : public CDialog, public CQVBaseFrame {
    DECLARE_DYNAMIC(CQVDialog)

  public:
    CQVDialog();
    explicit CQVDialog(UINT templateId, CWnd* parent = nullptr);
    explicit CQVDialog(LPCWSTR templateName, CWnd* parent = nullptr);
    ~CQVDialog() override;

    BOOL OnInitDialog() override;
    // This and DoDataExchange are CDialog's; they are here for dialogs that forward to this class.
    BOOL PreTranslateMessage(MSG* msg) override;
    void OnSkinChange(UINT reason, HWND wnd) override;

  protected:
    void DoDataExchange(CDataExchange* dx) override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    void PostNcDestroy() override;

    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnPaint();
    afx_msg HBRUSH OnCtlColor(CDC* dc, CWnd* wnd, UINT ctlColor);
    afx_msg void OnDestroy();
    DECLARE_MESSAGE_MAP()

  private:
    void TranslateTemplate();
    void SkinTemplateControls();
    void SetControlFonts();

    std::vector<CWnd*> m_ownedControls; // objects made for the template's controls; deleted with the window
};

} // namespace _qv_commonctrl
