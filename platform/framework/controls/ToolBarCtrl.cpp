// CToolBarCtrl: creation, image list, texts of buttons.
#include "handles/HandleOf.h"
#include "text/FetchedText.h"
#include "afx/ToolBarCtrl.h"

IMPLEMENT_DYNAMIC(CToolBarCtrl, CWnd)

BOOL CToolBarCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    if (!CWnd::Create(TOOLBARCLASSNAMEW, nullptr, dwStyle, rect, pParentWnd, nID))
        return FALSE;
    SendMessage(TB_BUTTONSTRUCTSIZE, sizeof(TBBUTTON));
    return TRUE;
}

CImageList* CToolBarCtrl::SetImageList(CImageList* pImageList) {
    return CImageList::FromHandle(reinterpret_cast<HIMAGELIST>(
        SendMessage(TB_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(HandleOf(pImageList)))));
}

CString CToolBarCtrl::GetString(int nID) const {
    return FetchedText(Ask(TB_GETBUTTONTEXTW, nID),
                       [&](LPWSTR buffer) { return Ask(TB_GETBUTTONTEXTW, nID, buffer); });
}
