// ItemListing.h: an item of the directory tree whose folder is being listed.
#pragma once

#include "DirTreeItems.h"
#include "FolderListing.h"
#include "FolderPath.h"

#include <set>

namespace _qv_commonctrl {

class ItemListing {
  public:
    ItemListing(HTREEITEM item, std::unique_ptr<FolderListing> listing, bool expandThen)
        : expand(expandThen), m_item(item), m_listing(std::move(listing)) {}

    HTREEITEM Item() const { return m_item; }
    bool Wait(DWORD milliseconds) const { return m_listing->Wait(milliseconds); }
    FolderResult Result() const { return m_listing->Result(); } // to be asked after the end only

    // A call has put a child into the tree: the listing is not to bring it once more.
    void OnChildAdded(DirTreeItems& items, HTREEITEM child);
    // Puts what was read since the last time into the tree, in its place.
    void InsertTaken(DirTreeItems& items);

    bool expand; // as soon as there is something to show

  private:
    void NoteChildren(DirTreeItems& items);
    void NoteChild(DirTreeItems& items, HTREEITEM child);

    HTREEITEM m_item;
    std::unique_ptr<FolderListing> m_listing;
    bool m_begun = false; // some of the folder's entries are in the tree
    // Children that were there before: put there by a call that could not wait, or by a listing that broke
    // off.
    std::set<std::wstring, NameLess> m_former;
    std::vector<std::string> m_sortKeys; // of the children inserted so far, by their place
};

} // namespace _qv_commonctrl
