// QVFolderLister.h: a host that lists folders in place of the system.
#pragma once

#include "QVCommonCtrlDef.h"

namespace _qv_commonctrl {

// What a QVFolderLister has done.
enum QVListerAnswer : int {
    QVLISTER_ASK_SYSTEM = 0, // nothing: the folder is the system's to list
    QVLISTER_LISTED = 1,
    QVLISTER_FAILED = 2, // the folder is the lister's, and its server does not answer
    QVLISTER_DENIED = 3, // the user may not see what is in it
    QVLISTER_GONE = 4,   // there is no such folder any more
};

// Called by a lister for each entry. `context` is what the lister was called with. FALSE: nobody waits for the rest any
// more, and the lister may as well return.
typedef BOOL(CALLBACK* QVAddFolderEntry)(void* context, LPCWSTR name, BOOL isFolder);

// Lists a folder in place of the system: for hosts whose media lie on a server with an interface of its own. Called on
// worker threads, on several at a time, and may take as long as it likes.
typedef QVListerAnswer(CALLBACK* QVFolderLister)(LPCWSTR folder, QVAddFolderEntry add, void* context);

// Sets the lister of all directory trees and lists; null removes it. Returns the former one. Any thread.
QVCOMMONCTRL_API QVFolderLister QV_SetFolderLister(QVFolderLister lister);

} // namespace _qv_commonctrl
