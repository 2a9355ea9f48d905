// CFrameWnd: an overlapped top-level window on the heap that deletes its object with the window.
#pragma once

#include "Wnd.h"

class CFrameWnd;

struct CCreateContext {
    CRuntimeClass* m_pNewViewClass = nullptr;
    CFrameWnd* m_pCurrentFrame = nullptr;
};

class AFXFRAME_API CFrameWnd : public CWnd {
    DECLARE_DYNCREATE(CFrameWnd)
  public:
    static const CRect rectDefault; // the system chooses place and size

    CFrameWnd();
    ~CFrameWnd() override;
    // Null class name: one of the framework's own. lpszMenuName: menu resource of the chain, null for none.
    virtual BOOL Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle = WS_OVERLAPPEDWINDOW,
                        const RECT& rect = rectDefault, CWnd* pParentWnd = nullptr,
                        LPCTSTR lpszMenuName = nullptr, DWORD dwExStyle = 0,
                        CCreateContext* pContext = nullptr);

  protected:
    BOOL PreCreateWindow(CREATESTRUCT& cs) override;
    void PostNcDestroy() override;
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;
    afx_msg void OnClose();
    DECLARE_MESSAGE_MAP()
};
