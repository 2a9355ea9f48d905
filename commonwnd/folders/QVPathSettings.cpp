#include "QVPathSettings.h"

#include "module/StoredPaths.h"
#include "QVSetResPath.h"

#include <shlwapi.h>

namespace _qv_commonwnd {

void QV_InitResPath() {
    // A missing media folder alone is no reason to ask.
    if (PathFileExistsW(StoredPath(kResPathKey)))
        return;
    CQVSetResPath dialog(nullptr);
    dialog.DoModal();
}

} // namespace _qv_commonwnd
