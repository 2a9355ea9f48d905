#include "PathFinder.h"

#include <algorithm>

namespace _qv_commonctrl {

namespace {

constexpr DWORD kWayPatienceMs = 2000;    // for all folders on the way together
constexpr DWORD kFolderPatienceMs = 2000; // for the folder itself, however slow its parents are

} // namespace

PathFinder::PathFinder(DirTreeModel& model, const std::wstring& path)
    : m_model(model), m_items(model.Items()), m_path(NormalFolderPath(path)),
      m_deadline(GetTickCount64() + kWayPatienceMs) {
}

HTREEITEM PathFinder::Find() {
    const HTREEITEM desktop = m_items.Root();
    if (!desktop || m_path.empty())
        return nullptr;
    if (SameName(m_items.PathOf(desktop), m_path))
        return desktop;
    std::size_t at = RootLength(m_path);
    HTREEITEM parent = nullptr;
    HTREEITEM item = at > 0 ? FindRoot() : nullptr;
    while (item && at < m_path.size()) {
        at = m_path.find_first_not_of(L'\\', at);
        const std::size_t end = std::min(m_path.find(L'\\', at), m_path.size());
        const std::wstring text = m_path.substr(at, end - at);
        if (text == L"." || text == L"..") // relative parts name no item
            return nullptr;
        parent = item;
        m_model.EnsureListed(parent, m_deadline);
        item = ChildOrNew(parent, text, m_path.substr(0, end));
        at = end;
    }
    // What was listed may have gone since. A drive or share, and what a host has listed, is taken as it is.
    return item && (!parent || m_model.IsListedByHost(parent) || IsThere()) ? item : nullptr;
}

// The item of the path's drive or share.
HTREEITEM PathFinder::FindRoot() {
    const std::wstring root = m_path.substr(0, RootLength(m_path));
    const HTREEITEM desktop = m_items.Root();
    if (!m_model.EnsureListed(desktop, m_deadline))
        return nullptr;
    if (root.starts_with(L"\\\\"))
        return ChildOrNew(desktop, root, root);
    for (HTREEITEM item = m_items.FirstChild(desktop); item; item = m_items.NextSibling(item)) {
        if (m_items.KindOf(item) == FolderKind::Computer)
            return m_model.EnsureListed(item, m_deadline) ? ChildOrNew(item, root, root) : nullptr;
    }
    return ChildOrNew(desktop, root, root); // a name space without a computer
}

HTREEITEM PathFinder::ChildOrNew(HTREEITEM parent, const std::wstring& text, const std::wstring& path) {
    if (const HTREEITEM found = m_items.FindChild(parent, text, path))
        return found;
    if (!IsThere()) // then all folders on the way are there, too
        return nullptr;
    FolderEntry entry;
    entry.name = text;
    if (m_items.KindOf(parent) != FolderKind::Path) { // a drive or a share
        entry.path = path;
        entry.icon = FolderIcon::Drive;
    }
    const HTREEITEM item = m_items.Insert(parent, TVI_SORT, entry, DirTreeItems::kNoPlace);
    m_model.OnChildAdded(parent, item);
    return item;
}

bool PathFinder::IsThere() {
    if (m_there == Answer::NotAsked)
        m_there = FolderIsThere(m_path, kFolderPatienceMs) ? Answer::Yes : Answer::No;
    return m_there == Answer::Yes;
}

} // namespace _qv_commonctrl
