#include "DirTreeWnd.h"

#include "res/resource.h"

#include <QVDict.h>

using namespace _qv_commonctrl;
using namespace _qv_commonwnd;

namespace {

constexpr wchar_t kStoreKey[] = L"GalleryTree";

} // namespace

CDirTreeWnd::CDirTreeWnd(CWnd* parent) : CQVDialog(IDD_GALLERY_TREE, parent) {
}

CDirTreeWnd::~CDirTreeWnd() {
    QV_ReleaseDirTree(m_tree);
}

BOOL CDirTreeWnd::OnInitDialog() {
    CQVDialog::OnInitDialog();
    SetWindowText(QV_LoadSysString(L"IDS_GALLERY_DIRTREE"));
    SetDlgItemText(IDOK, QV_LoadSysString(L"IDS_COMMON_OK"));
    SetDlgItemText(IDCANCEL, QV_LoadSysString(L"IDS_COMMON_CANCEL"));
    m_tree = static_cast<CQVDirTreeCtrl*>(QV_GetDirTree(this, TakePlaceOfTree()));
    m_tree->ModifyStyle(0, WS_TABSTOP);
    m_tree->SetWindowPos(&CWnd::wndTop, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    QV_InitFilePath(m_tree, kStoreKey, FALSE);
    m_tree->SetFocus();
    return FALSE; // the focus is set
}

// The template holds a label where the tree is to stand.
CRect CDirTreeWnd::TakePlaceOfTree() {
    CRect place;
    CWnd* const mark = GetDlgItem(IDC_GALLERY_TREE_PLACE);
    mark->GetWindowRect(&place);
    ScreenToClient(&place);
    mark->DestroyWindow();
    return place;
}

void CDirTreeWnd::OnOK() {
    QV_InitFilePath(m_tree, kStoreKey, TRUE);
    m_chosen = m_tree->GetPathName();
    CQVDialog::OnOK();
}
