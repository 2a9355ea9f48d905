// QVDirTree.h: a skinned directory tree in a window of the host, and the folder it shows remembered.
//
//     m_pTree = QV_GetDirTree(this, CRect(8, 8, 260, 400));
//     auto* tree = static_cast<_qv_commonctrl::CQVDirTreeCtrl*>(m_pTree);
//     QV_InitFilePath(tree, L"ImportFolder", FALSE); // where the user was the last time
//     ...
//     QV_InitFilePath(tree, L"ImportFolder", TRUE);
//     QV_ReleaseDirTree(m_pTree);
#pragma once

#include "QVCommonWndApi.h"
#include <QVDirCtrl.h>

namespace _qv_commonwnd {

// All three: user-interface thread, the thread of `pParent`.

// Makes a tree of the shell's folders, rooted at the desktop, with the desktop selected. It is a
// CQVComboDTBox (a CQVDirTreeCtrl) with control id 0. `rect`: where it stands, client pixels of `pParent` as
// they are (not scaled). Folders are listed when they are opened, on threads of their own: a drive that does
// not answer holds up nothing but itself. `pParent` must be a window of the framework, which passes the
// tree's notifications back to it. The object is the caller's until QV_ReleaseDirTree; the parent may be
// destroyed before. Never null; when the window could not be made (null parent, parent without a window) the
// object has none, and everything done with it is harmless.
QVCOMMONWND_API CWnd* QV_GetDirTree(CWnd* pParent, CRect rect);

// Empties and destroys a tree of QV_GetDirTree and deletes the object. Null does nothing.
QVCOMMONWND_API void QV_ReleaseDirTree(CWnd* pTree);

// Saves or restores the selected folder under the profile section "PathSet" and the key `strKey`; any key
// will do, but "ResPath", "MediaPath" and "FilePath" are the library's own.
// `bSave` non-zero: stores the selected path; an empty one when nothing or a virtual folder is selected. An
// empty key stores nothing. Zero: selects the stored folder; the tree stays as it is when the key is empty,
// nothing is stored there, or the folder is not there or does not answer within 2 seconds (after 2 seconds that slow
// parents may take). Null tree: nothing happens.
QVCOMMONWND_API void QV_InitFilePath(_qv_commonctrl::CQVDirTreeCtrl* pTree, CString strKey, int bSave);

} // namespace _qv_commonwnd
