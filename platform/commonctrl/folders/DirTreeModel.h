// DirTreeModel.h: which folders of a directory tree have been listed, and the listings under way.
#pragma once

#include "ItemListing.h"

#include <map>
#include <unordered_map>

namespace _qv_commonctrl {

class DirTreeModel {
  public:
    // What the worker threads post to the tree's window: wParam is the number of the listing.
    static UINT ListedMessage();

    explicit DirTreeModel(CQVDirTreeCtrl& tree) : m_items(tree) {}

    void SetContent(FolderContent content) { m_content = content; }
    // Empties the tree and roots it at the desktop.
    bool SetDesktop();
    // Goes to a path: see PathFinder. FALSE, and nothing changes, when it is not there.
    bool Select(const std::wstring& path);
    // Lists an item's folder anew; a listing under way ends without effect.
    void ListAgain(HTREEITEM item);
    bool IsListing() const { return !m_listings.empty(); }
    // Waits for an item's folder to be listed. FALSE when that fails or takes longer.
    bool EnsureListed(HTREEITEM item, ULONGLONG deadline);

    // Whether a folder's children are the host's, which need not be on a drive.
    bool IsListedByHost(HTREEITEM item) const;

    // A call has put a child into the tree.
    void OnChildAdded(HTREEITEM parent, HTREEITEM child);
    // The user (or a caller) expands an item. TRUE: not yet, its folder is being listed first.
    bool OnExpanding(HTREEITEM item);
    void OnExpanded(HTREEITEM item, bool expanded) { m_items.ShowOpen(item, expanded); }
    void OnListed(UINT id);
    void OnItemDeleted(HTREEITEM item);
    void OnWindowGone();

    DirTreeItems& Items() { return m_items; }

  private:
    enum class AfterListing { Nothing, Expand };
    using Listings = std::map<UINT, ItemListing>;

    bool StartListing(HTREEITEM item, AfterListing after);
    Listings::iterator ListingOf(HTREEITEM item);
    void Forget(HTREEITEM item);

    DirTreeItems m_items;
    FolderContent m_content = FolderContent::FoldersOnly;
    std::unordered_map<HTREEITEM, FolderResult> m_listed;
    Listings m_listings;
    UINT m_lastId = 0;
};

} // namespace _qv_commonctrl
