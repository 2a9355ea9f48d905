// QVDirTreePending.h: an item of the directory tree whose folder is being listed.
#pragma once

#include "QVFolderListing.h"

#include <commctrl.h>

#include <set>

namespace _qv_commonctrl {

struct NameLess { // as the file system tells names apart
    bool operator()(const std::wstring& a, const std::wstring& b) const {
        return CompareStringOrdinal(a.c_str(), static_cast<int>(a.size()), b.c_str(),
                                    static_cast<int>(b.size()), TRUE) == CSTR_LESS_THAN;
    }
};

struct DirTreePending {
    HTREEITEM item = nullptr;
    std::unique_ptr<FolderListing> listing;
    bool expand = false; // as soon as there is something to show
    bool begun = false;  // some of the folder's entries are in the tree
    // Children that were there before: put there by a call that could not wait, or by a listing that broke off.
    std::set<std::wstring, NameLess> former;
    std::vector<std::string> sortKeys; // of the children inserted so far, by their place of insertion
};

} // namespace _qv_commonctrl
