// CFrameWnd: a top-level window that lives by itself.
#include "handles/HandleOf.h"
#include "afx/FrameWnd.h"
#include "afx/Resources.h"
#include "afx/WinThread.h"
#include "afx/WndClass.h"

IMPLEMENT_DYNCREATE(CFrameWnd, CWnd)

BEGIN_MESSAGE_MAP(CFrameWnd, CWnd)
    ON_WM_CLOSE()
END_MESSAGE_MAP()

const CRect CFrameWnd::rectDefault(CW_USEDEFAULT, CW_USEDEFAULT, 0, 0);

CFrameWnd::CFrameWnd() = default;

CFrameWnd::~CFrameWnd() = default;

BOOL CFrameWnd::Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, const RECT& rect,
                       CWnd* pParentWnd, LPCTSTR lpszMenuName, DWORD dwExStyle, CCreateContext* pContext) {
    HMENU menu = nullptr;
    if (lpszMenuName) {
        menu = ::LoadMenuW(AfxFindResourceHandle(lpszMenuName, RT_MENU), lpszMenuName);
        if (!menu) {
            PostNcDestroy();
            return FALSE;
        }
    }
    const bool isDefault = rect.left == CW_USEDEFAULT;
    const int width = isDefault ? CW_USEDEFAULT : rect.right - rect.left;
    const int height = isDefault ? CW_USEDEFAULT : rect.bottom - rect.top;
    const BOOL created = CreateEx(dwExStyle, lpszClassName, lpszWindowName, dwStyle, rect.left, rect.top,
                                  width, height, HandleOf(pParentWnd), menu, pContext);
    if (!created && menu)
        ::DestroyMenu(menu);
    return created;
}

BOOL CFrameWnd::PreCreateWindow(CREATESTRUCT& cs) {
    if (!cs.lpszClass)
        cs.lpszClass = AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursorW(nullptr, IDC_ARROW),
                                           reinterpret_cast<HBRUSH>(static_cast<INT_PTR>(COLOR_WINDOW + 1)),
                                           ::LoadIconW(nullptr, IDI_APPLICATION));
    return CWnd::PreCreateWindow(cs);
}

void CFrameWnd::PostNcDestroy() {
    delete this;
}

void CFrameWnd::OnClose() {
    DestroyWindow();
}

BOOL CFrameWnd::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) {
    if (CWnd::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo))
        return TRUE;
    CWinThread* const thread = AfxGetThread();
    return thread && thread->OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
}
