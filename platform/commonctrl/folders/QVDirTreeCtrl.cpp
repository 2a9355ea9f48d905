#include "QVDirTreeCtrl.h"

#include "DirTreeModel.h"

namespace _qv_commonctrl {

IMPLEMENT_DYNAMIC(CQVDirTreeCtrl, CQVTreeCtrl)

CQVDirTreeCtrl::CQVDirTreeCtrl() : m_pModel(new DirTreeModel(*this)) {
}

CQVDirTreeCtrl::~CQVDirTreeCtrl() {
    delete m_pModel;
}

void CQVDirTreeCtrl::SetTreeCtrl(int kind) {
    m_pModel->SetContent(kind == static_cast<int>(FolderContent::FoldersAndFiles)
                             ? FolderContent::FoldersAndFiles
                             : FolderContent::FoldersOnly);
}

BOOL CQVDirTreeCtrl::SetDesktopFolder() {
    try {
        return m_hWnd && m_pModel->SetDesktop();
    } catch (const std::exception&) { // memory ran out
        return FALSE;
    }
}

BOOL CQVDirTreeCtrl::SetPathName(LPCWSTR path) {
    try {
        return m_hWnd && path && *path && m_pModel->Select(path);
    } catch (const std::exception&) {
        return FALSE;
    }
}

CString CQVDirTreeCtrl::GetPathName() const {
    const HTREEITEM selected = m_hWnd ? GetSelectedItem() : nullptr;
    return selected ? m_pModel->Items().PathOf(selected).c_str() : L"";
}

void CQVDirTreeCtrl::OnSkinChange(UINT reason, HWND wnd) {
    m_pModel->Items().RefreshIcons();
    CQVTreeCtrl::OnSkinChange(reason, wnd);
}

BOOL CQVDirTreeCtrl::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) {
    if (message != WM_NOTIFY || !result)
        return CQVTreeCtrl::OnChildNotify(message, wParam, lParam, result);
    auto* const notification = reinterpret_cast<NMTREEVIEWW*>(lParam);
    switch (notification->hdr.code) {
    case TVN_ITEMEXPANDINGW:
        if (notification->action & TVE_EXPAND) {
            *result = m_pModel->OnExpanding(notification->itemNew.hItem);
            return *result != 0; // the parent hears of it when there is something to expand
        }
        break;
    case TVN_ITEMEXPANDEDW:
        m_pModel->OnExpanded(notification->itemNew.hItem, (notification->action & TVE_EXPAND) != 0);
        break;
    case TVN_DELETEITEMW:
        m_pModel->OnItemDeleted(notification->itemOld.hItem);
        break;
    }
    return CQVTreeCtrl::OnChildNotify(message, wParam, lParam, result);
}

LRESULT CQVDirTreeCtrl::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == DirTreeModel::ListedMessage()) {
        m_pModel->OnListed(static_cast<UINT>(wParam));
        return 0;
    }
    if (message == WM_KEYDOWN && wParam == VK_F5) {
        m_pModel->ListAgain(GetSelectedItem());
        return 0;
    }
    if (message == WM_SETCURSOR && LOWORD(lParam) == HTCLIENT && m_pModel->IsListing()) {
        ::SetCursor(::LoadCursorW(nullptr, IDC_APPSTARTING));
        return TRUE;
    }
    if (message == WM_NCDESTROY) // before the base: PostNcDestroy may delete this object
        m_pModel->OnWindowGone();
    return CQVTreeCtrl::WindowProc(message, wParam, lParam);
}

} // namespace _qv_commonctrl
