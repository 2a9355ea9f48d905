// ShellEntries.h: the part of the name space above the file system.
#pragma once

#include "FolderEntries.h"

namespace _qv_commonctrl {

// What lies on the desktop: the computer, the user's folders and folders on the desktop itself.
bool ListDesktop(FolderContent content, std::vector<FolderEntry>& entries);

// The drives. Only fixed drives are touched (for their label): a network drive that is gone or an empty
// reader takes no time.
bool ListDrives(std::vector<FolderEntry>& entries);

// What a folder of the name space holds; `pidl` is its own place. A folder that holds nothing is listed, too.
bool ListShellItems(IShellFolder* folder, PCIDLIST_ABSOLUTE pidl, FolderContent content,
                    std::vector<FolderEntry>& entries);

// A folder that only the shell knows.
bool ListShellFolder(PCIDLIST_ABSOLUTE folder, FolderContent content, std::vector<FolderEntry>& entries);

// The shell's name of the desktop.
std::wstring DesktopName();

} // namespace _qv_commonctrl
