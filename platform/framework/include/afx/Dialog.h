// CDialog: a dialog window made from a template, modal or modeless.
//
//     CMyDlg dlg(IDD_MINE, pParent);
//     if (dlg.DoModal() == IDOK) ...
//
// A modal dialog runs in the framework's own loop: the object may live on the stack, messages go through
// PreTranslateMessage, and its owner is disabled meanwhile. Templates are looked for as AfxFindResourceHandle
// says.
#pragma once

#include "DataExchange.h"

struct DialogTemplate;

class AFXFRAME_API CDialog : public CWnd {
    DECLARE_DYNAMIC(CDialog)
  public:
    CDialog(); // for modeless dialogs and InitModalIndirect
    explicit CDialog(LPCTSTR lpszTemplateName, CWnd* pParentWnd = nullptr);
    explicit CDialog(UINT nIDTemplate, CWnd* pParentWnd = nullptr);
    ~CDialog() override;

    // ---- Modeless. Null parent: the program's main window, if any. FALSE when the template is missing or
    // broken.
    virtual BOOL Create(LPCTSTR lpszTemplateName, CWnd* pParentWnd = nullptr);
    virtual BOOL Create(UINT nIDTemplate, CWnd* pParentWnd = nullptr);
    // hInst: the module the controls' classes belong to; null: the resource handle in force. lpDialogInit is
    // accepted and without effect.
    virtual BOOL CreateIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd = nullptr,
                                void* lpDialogInit = nullptr, HINSTANCE hInst = nullptr);

    // ---- Modal. The template memory of InitModalIndirect is borrowed until DoModal has returned.
    BOOL InitModalIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd = nullptr,
                           void* lpDialogInit = nullptr);
    BOOL InitModalIndirect(HGLOBAL hDialogTemplate, CWnd* pParentWnd = nullptr);
    // Returns what EndDialog was given; -1 when the dialog could not be made; IDCANCEL when its window was
    // destroyed from outside.
    virtual INT_PTR DoModal();
    // May be called from any handler, OnInitDialog included; the window goes when the handler has returned.
    void EndDialog(int nResult);

    // ---- Inside the dialog.
    void MapDialogRect(LPRECT lpRect) const { ::MapDialogRect(m_hWnd, lpRect); } // dialog units to pixels
    void NextDlgCtrl() const { ::SendMessageW(m_hWnd, WM_NEXTDLGCTL, FALSE, FALSE); }
    void PrevDlgCtrl() const { ::SendMessageW(m_hWnd, WM_NEXTDLGCTL, TRUE, FALSE); }
    void GotoDlgCtrl(CWnd* pWndCtrl);
    void SetDefID(UINT nID) { ::SendMessageW(m_hWnd, DM_SETDEFID, nID, 0); }
    DWORD GetDefID() const { return static_cast<DWORD>(::SendMessageW(m_hWnd, DM_GETDEFID, 0, 0)); }

    // FALSE: the function has put the focus on a control itself. The base class exchanges data to the
    // controls.
    virtual BOOL OnInitDialog();
    virtual void OnSetFont(CFont*) {}
    // End a modal dialog with IDOK (after data exchange from the controls) or IDCANCEL. For a modeless dialog
    // redefine them: they only hide it.
    virtual void OnOK();
    virtual void OnCancel();

    BOOL PreTranslateMessage(MSG* pMsg) override;
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;

  protected:
    LPCTSTR m_lpszTemplateName = nullptr; // name, or id by MAKEINTRESOURCE; null: none
    LPCDLGTEMPLATE m_lpDialogTemplate = nullptr;
    HGLOBAL m_hDialogTemplate = nullptr;
    CWnd* m_pParentWnd = nullptr;
    HWND m_hWndTop = nullptr; // a top window that was disabled with the owner

    virtual void PreInitDialog() {}
    // Owner of the modal run, disabled if it was not so already; and back.
    HWND PreModal();
    void PostModal();

    afx_msg LRESULT HandleInitDialog(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT HandleSetFont(WPARAM wParam, LPARAM lParam);

  private:
    bool m_bCentre = false; // the template leaves the place to the framework

    DialogTemplate ModalTemplate() const;
    BOOL CreateDlgIndirect(LPCDLGTEMPLATE lpDialogTemplate, HWND hWndParent, HINSTANCE hInst);
    DECLARE_MESSAGE_MAP()
};
