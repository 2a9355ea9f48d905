// QVDirTreeImpl.h: what stands behind CQVDirTreeCtrl: items, their folders, listings under way.
#pragma once

#include "QVDirCtrl.h"
#include "QVDirTreePending.h"

#include <map>
#include <unordered_map>
#include <unordered_set>

namespace _qv_commonctrl {

class CQVDirTreeImpl {
  public:
    explicit CQVDirTreeImpl(CQVDirTreeCtrl& tree) : m_tree(tree) {}
    ~CQVDirTreeImpl();
    CQVDirTreeImpl(const CQVDirTreeImpl&) = delete;
    CQVDirTreeImpl& operator=(const CQVDirTreeImpl&) = delete;

    static UINT ListedMessage();

    void SetContent(FolderContent content) { m_content = content; }
    bool SetDesktop();
    bool Select(const std::wstring& path);
    std::wstring PathOf(HTREEITEM item) const; // empty for a virtual folder
    void ListAgain(HTREEITEM item);

    // The user (or a caller) expands an item. TRUE: not yet, its folder is being listed first.
    bool OnExpanding(HTREEITEM item);
    void OnExpanded(HTREEITEM item, bool expanded);
    void OnListed(UINT id);
    void OnItemDeleted(HTREEITEM item);
    void OnWindowGone();
    void RefreshIcons();
    bool IsListing() const { return !m_pending.empty(); }

  private:
    // A folder whose place is not its parent's path and its own text.
    struct Special {
        FolderKind kind;
        std::wstring path;
        Pidl pidl;
    };
    enum class AfterListing { Nothing, Expand };
    static constexpr LPARAM kNoPlace = (LPARAM{1} << 62) - 1; // inserted outside a listing

    FolderKind KindOf(HTREEITEM item) const;
    std::wstring TextOf(HTREEITEM item) const;
    HTREEITEM Next(UINT code, HTREEITEM item) const;
    HTREEITEM Insert(HTREEITEM parent, HTREEITEM after, FolderEntry& entry, LPARAM place);
    void SetHasChildren(HTREEITEM item, bool has);
    bool StartListing(HTREEITEM item, AfterListing after);
    void Forget(HTREEITEM item);
    DirTreePending* PendingOf(HTREEITEM item);
    void InsertTaken(DirTreePending& pending);
    void NoteChildren(DirTreePending& pending);
    bool EnsureListed(HTREEITEM item, ULONGLONG deadline);
    HTREEITEM FindChild(HTREEITEM parent, const std::wstring& text, const std::wstring& path) const;
    HTREEITEM ChildOrNew(HTREEITEM parent, const std::wstring& text, const std::wstring& path,
                         ULONGLONG deadline);
    HTREEITEM FindStart(const std::wstring& path, std::size_t& used, ULONGLONG deadline);

    CQVDirTreeCtrl& m_tree;
    FolderContent m_content = FolderContent::FoldersOnly;
    std::unordered_map<HTREEITEM, Special> m_specials;
    std::unordered_set<HTREEITEM> m_listed;
    std::map<UINT, DirTreePending> m_pending;
    UINT m_lastId = 0;
    HIMAGELIST m_icons = nullptr;
};

} // namespace _qv_commonctrl
