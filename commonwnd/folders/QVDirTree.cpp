#include "QVDirTree.h"

#include "module/StoredPaths.h"

#include <QVSkin.h>

using namespace _qv_commonctrl;

namespace _qv_commonwnd {

CWnd* QV_GetDirTree(CWnd* pParent, CRect rect) {
    // The selected folder stays marked while the user works elsewhere in the host's window; the desktop, the only root,
    // is open from the start and needs no expander.
    constexpr DWORD kStyle =
        WS_CHILD | WS_VISIBLE | WS_BORDER | TVS_HASBUTTONS | TVS_HASLINES | TVS_SHOWSELALWAYS;
    static_assert(kStyle == 0x50800023);
    constexpr UINT kControlId = 0;
    constexpr int kFoldersOnly = 1;
    auto* tree = new CQVComboDTBox;
    if (!pParent || !tree->Create(kStyle, rect, pParent, kControlId))
        return tree;
    tree->SetFont(QV_GetSysFont(QVFONT_UI, QV_GetWindowDpi(tree->m_hWnd)));
    tree->SetTreeCtrl(kFoldersOnly);
    tree->SetDesktopFolder();
    tree->SelectItem(tree->GetRootItem());
    return tree;
}

void QV_ReleaseDirTree(CWnd* pTree) {
    if (!pTree)
        return;
    if (pTree->m_hWnd) {
        pTree->SendMessage(TVM_DELETEITEM, 0, reinterpret_cast<LPARAM>(TVI_ROOT));
        pTree->DestroyWindow();
    }
    delete pTree;
}

// The exported signature takes the key by value.
// NOLINTNEXTLINE(performance-unnecessary-value-param)
void QV_InitFilePath(CQVDirTreeCtrl* pTree, CString strKey, int bSave) {
    if (!pTree)
        return;
    if (bSave) {
        StorePath(strKey, pTree->GetPathName());
    } else if (!strKey.IsEmpty()) {
        const CString path = StoredPath(strKey);
        if (!path.IsEmpty())
            pTree->SetPathName(path);
    }
}

} // namespace _qv_commonwnd
