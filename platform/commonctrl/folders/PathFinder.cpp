#include "PathFinder.h"

#include <algorithm>

namespace _qv_commonctrl {

namespace {

constexpr DWORD kPatienceMs = 2000; // for all folders on the way together

} // namespace

PathFinder::PathFinder(DirTreeModel& model)
    : m_model(model), m_items(model.Items()), m_deadline(GetTickCount64() + kPatienceMs) {
}

HTREEITEM PathFinder::Find(const std::wstring& wanted) {
    const std::wstring path = NormalFolderPath(wanted);
    const HTREEITEM desktop = m_items.Root();
    if (!desktop || path.empty())
        return nullptr;
    if (SameName(m_items.PathOf(desktop), path))
        return desktop;
    std::size_t at = RootLength(path);
    HTREEITEM item = at > 0 ? FindRoot(path.substr(0, at)) : nullptr;
    while (item && at < path.size()) {
        at = path.find_first_not_of(L'\\', at);
        const std::size_t end = std::min(path.find(L'\\', at), path.size());
        const std::wstring text = path.substr(at, end - at);
        if (text == L"." || text == L"..") // relative parts name no item
            return nullptr;
        m_model.EnsureListed(item, m_deadline);
        item = ChildOrNew(item, text, path.substr(0, end));
        at = end;
    }
    return item;
}

// The item of a drive or a share.
HTREEITEM PathFinder::FindRoot(const std::wstring& root) {
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
    const ULONGLONG now = GetTickCount64();
    if (!FolderIsThere(path, m_deadline > now ? static_cast<DWORD>(m_deadline - now) : 0))
        return nullptr;
    FolderEntry entry;
    entry.name = text;
    if (m_items.KindOf(parent) != FolderKind::Path) { // a drive or a share
        entry.path = path;
        entry.icon = FolderIcon::Drive;
    }
    const HTREEITEM item = m_items.Insert(parent, TVI_SORT, entry, DirTreeItems::kNoPlace);
    m_items.SetHasChildren(parent, true);
    return item;
}

} // namespace _qv_commonctrl
