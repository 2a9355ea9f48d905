// FolderEntries.h: what a folder holds, listed from the host, the file system or the shell's name space.
// Called on worker threads; nothing here knows a window.
#pragma once

#include "module/Guards.h"

#include <shlobj.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace _qv_commonctrl {

enum class FolderKind {
    Desktop,  // the root of the name space
    Computer, // holds the drives
    Virtual,  // known to the shell only
    Path,     // a folder of the file system
    File,     // no folder at all
};

enum class FolderIcon { Folder, FolderOpen, File, Drive, Computer, Desktop, Network, User };

struct FolderEntry {
    std::wstring name; // as shown
    std::wstring path; // empty: virtual, or the parent's path and the name
    Pidl pidl;         // virtual folders only
    FolderKind kind = FolderKind::Path;
    FolderIcon icon = FolderIcon::Folder;
    uint64_t size = 0; // bytes; files only
    FILETIME modified = {};
    std::string sortKey; // empty where the shell's own order holds
};

enum class FolderContent { FoldersAndFiles = 0, FoldersOnly = 1 };

// Which folder to list.
struct FolderRequest {
    FolderKind kind = FolderKind::Desktop;
    std::wstring path; // of a Path
    Pidl pidl;         // of a Virtual
    FolderContent content = FolderContent::FoldersOnly;
};

enum class FolderOutcome {
    Listed,   // to its end
    Denied,   // the user may not see what is in it
    Gone,     // there is no such folder any more
    NoAnswer, // the drive or the server did not answer, or broke off
};

struct FolderResult {
    FolderOutcome outcome = FolderOutcome::NoAnswer;
    bool byHost = false; // the host's own lister has answered: what is in it need not be on a drive

    bool Succeeded() const { return outcome == FolderOutcome::Listed; }
};

// Takes one entry after the other, while the folder is being read. FALSE: nobody waits for more.
using FolderSink = std::function<bool(FolderEntry&& entry)>;

// Gives the entries of a folder to the sink in the order in which the system reads them, each with its sort key. Hidden
// entries are left out.
FolderResult ListFolder(const FolderRequest& request, const FolderSink& sink);

} // namespace _qv_commonctrl
