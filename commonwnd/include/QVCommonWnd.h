// QVCommonWnd.h: the skinned common windows of QVCommonWndU.dll. Include this header and link
// libQVCommonWndU.
//
//     #include <QVCommonWnd.h>
//     using namespace _qv_commonwnd;
//
//     QV_InitCommonWnd();
//     CQVFileDialog dialog(TRUE, nullptr, nullptr, OFN_FILEMUSTEXIST | OFN_ALLOWMULTISELECT,
//                          L"Video|*.avi;*.mov|All files|*.*|", this, 0, FALSE, FALSE, FDO_KEEPOK);
//     if (dialog.DoModal() == IDOK)
//         for (POSITION pos = dialog.GetStartPosition(); pos;)
//             Import(dialog.GetNextPathName(pos));
//     if (QV_MessageBox(L"Import", L"Make proxies now?", 0, this) == QVMESSAGE_YES)
//         MakeProxies();
//     QV_ReleaseCommonWnd();
//
// What holds for all of it:
//  - Threads: everything runs on the host's user-interface thread, unless a member says otherwise. The
//    directory tree lists folders on threads of the control library; of the host nothing runs there but a
//    lister that it has set itself (QV_SetFolderLister).
//  - Texts are UTF-16; paths are absolute Windows paths with back slashes. Lengths count UTF-16 units.
//  - Pixels are those of a 96 DPI window and are scaled with the window's DPI.
//  - Dialogs are objects of the host: construct, set public members, DoModal, read back. Pointers given to a
//    dialog are borrowed and must outlive its DoModal. What a dialog creates it destroys.
//  - DoModal answers IDOK (1) or IDCANCEL (2), and -1 when the window could not be created.
//  - A dialog without a parent is owned by the host's main window (AfxGetMainWnd), if there is one; the
//    folder chooser by the active window.
//  - Nothing throws. Bad input (null pointers, missing files, broken data) has a documented answer.
//  - Texts come from the dictionary, colours, fonts and images from the skin, remembered folders from the
//    profile.
#pragma once

#include "QVCommonWndApi.h"

#include "QVModule.h"
#include "QVColorStatic.h"
#include "QVXMessageBox.h"
#include "QVFileDialog.h"
#include "QVPathDialog.h"
#include "QVDirTree.h"
#include "QVSetResPath.h"
#include "QVPathSettings.h"
#include "QVFilePathShowTip.h"
#include "Z5ProgressDlg.h"
#include "QVSafeColorDlg.h"
#include "QVVUFrame.h"
#include "QVGetIntDlg.h"
#include "QVGetStrDlg.h"
#include "QVGetPointDlg.h"
#include "QVPicturePosDlg.h"
