// DirTreeItems.h: the items of a directory tree and the folders that they stand for.
#pragma once

#include "FolderEntries.h"
#include "QVDirTreeCtrl.h"

#include <unordered_map>

namespace _qv_commonctrl {

class DirTreeItems {
  public:
    // The place of an item that was inserted outside a listing: behind all others.
    static constexpr LPARAM kNoPlace = (LPARAM{1} << 62) - 1;

    explicit DirTreeItems(CQVDirTreeCtrl& tree) : m_tree(tree) {}
    ~DirTreeItems();
    DirTreeItems(const DirTreeItems&) = delete;
    DirTreeItems& operator=(const DirTreeItems&) = delete;

    // Composes the icons anew for the present skin and DPI.
    void RefreshIcons();

    HWND Window() const { return m_tree.m_hWnd; }
    HTREEITEM Root() const { return Next(TVGN_ROOT, nullptr); }
    HTREEITEM FirstChild(HTREEITEM item) const { return Next(TVGN_CHILD, item); }
    HTREEITEM NextSibling(HTREEITEM item) const { return Next(TVGN_NEXT, item); }
    bool IsExpanded(HTREEITEM item) const;

    FolderKind KindOf(HTREEITEM item) const;
    std::wstring TextOf(HTREEITEM item) const;
    std::wstring PathOf(HTREEITEM item) const; // empty for a virtual folder
    // What tells an item from the others of its folder: its path when it has one of its own, else its text.
    std::wstring NameOf(HTREEITEM item) const;
    Pidl PidlOf(HTREEITEM item) const; // of a virtual folder
    // The child that has a path of its own equal to `path`, or else the text `text`; null when there is none.
    HTREEITEM FindChild(HTREEITEM parent, const std::wstring& text, const std::wstring& path) const;

    // `place` is the number of the entry within its listing, by which SortChildren finds its key. The entry's
    // texts are used up.
    HTREEITEM Insert(HTREEITEM parent, HTREEITEM after, FolderEntry& entry, LPARAM place);
    void SetPlace(HTREEITEM item, LPARAM place);
    // Sorts by the keys of a listing; children without a key stay last.
    void SortChildren(HTREEITEM item, const std::vector<std::string>& sortKeys);
    void SetHasChildren(HTREEITEM item, bool has);
    void ShowOpen(HTREEITEM item,
                  bool open); // a folder's icon; drives and the like look the same open and shut
    void Expand(HTREEITEM item, UINT code) { m_tree.Expand(item, code); }
    void Select(HTREEITEM item);

    void Forget(HTREEITEM item) { m_specials.erase(item); }
    void ForgetAll() { m_specials.clear(); }

  private:
    // A folder whose place is not its parent's path and its own text.
    struct Special {
        FolderKind kind;
        std::wstring path;
        Pidl pidl;
    };

    HTREEITEM Next(UINT code, HTREEITEM item) const;

    CQVDirTreeCtrl& m_tree;
    std::unordered_map<HTREEITEM, Special> m_specials;
    HIMAGELIST m_icons = nullptr;
};

} // namespace _qv_commonctrl
