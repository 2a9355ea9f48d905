#include "ItemListing.h"

#include "FolderOrder.h"

namespace _qv_commonctrl {

void ItemListing::InsertTaken(DirTreeItems& items) {
    std::vector<FolderEntry> entries = m_listing->Take();
    if (entries.empty())
        return;
    const bool first = items.FirstChild(m_item) == nullptr;
    if (first)
        SortEntries(entries); // later ones are sorted with those that are there
    else if (!m_begun)
        NoteChildren(items);
    m_begun = true;
    for (FolderEntry& entry : entries) {
        if (m_former.contains(entry.path.empty() ? entry.name : NormalFolderPath(entry.path)))
            continue;
        const auto place = static_cast<LPARAM>(m_sortKeys.size());
        m_sortKeys.push_back(std::move(entry.sortKey));
        items.Insert(m_item, TVI_LAST, entry,
                     place); // the control knows its last child; others it would look for
    }
    if (!first)
        items.SortChildren(m_item, m_sortKeys);
}

void ItemListing::OnChildAdded(DirTreeItems& items, HTREEITEM child) {
    if (m_begun) // else the first entries find it among the children
        NoteChild(items, child);
}

void ItemListing::NoteChildren(DirTreeItems& items) {
    for (HTREEITEM child = items.FirstChild(m_item); child; child = items.NextSibling(child))
        NoteChild(items, child);
}

void ItemListing::NoteChild(DirTreeItems& items, HTREEITEM child) {
    FolderEntry entry;
    entry.name = items.TextOf(child);
    entry.kind = items.KindOf(child);
    m_former.insert(items.NameOf(child));
    items.SetPlace(child, static_cast<LPARAM>(m_sortKeys.size()));
    m_sortKeys.push_back(FolderSortKey(entry));
}

} // namespace _qv_commonctrl
