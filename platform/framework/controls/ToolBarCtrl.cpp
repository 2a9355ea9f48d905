#include "afxctl_bars.h"

IMPLEMENT_DYNAMIC(CToolBarCtrl, CWnd)

BOOL CToolBarCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    if (!CWnd::Create(TOOLBARCLASSNAMEW, nullptr, dwStyle, rect, pParentWnd, nID))
        return FALSE;
    SendMessage(TB_BUTTONSTRUCTSIZE, sizeof(TBBUTTON));
    return TRUE;
}

CImageList* CToolBarCtrl::SetImageList(CImageList* pImageList) {
    const HIMAGELIST list = pImageList ? pImageList->m_hImageList : nullptr;
    return CImageList::FromHandle(
        reinterpret_cast<HIMAGELIST>(SendMessage(TB_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(list))));
}

CString CToolBarCtrl::GetString(int nID) const {
    CString text;
    const int length = Ask(TB_GETBUTTONTEXTW, nID);
    if (length > 0) {
        const int stored = Ask(TB_GETBUTTONTEXTW, nID, text.GetBuffer(length));
        text.ReleaseBuffer(stored < 0 ? 0 : stored);
    }
    return text;
}
