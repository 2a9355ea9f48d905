// FolderLister.h: the host's own listing of folders, when it has set one.
#pragma once

#include "FolderEntries.h"

namespace _qv_commonctrl {

// Asks the host. `byHost` of the result is FALSE when there is no lister or it leaves the folder to the system.
FolderResult AskFolderLister(const std::wstring& folder, FolderContent content, const FolderSink& sink);

} // namespace _qv_commonctrl
