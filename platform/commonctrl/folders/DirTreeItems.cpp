#include "DirTreeItems.h"

#include "DirIcons.h"
#include "FolderPath.h"

namespace _qv_commonctrl {

namespace {

// An item's lParam: whether it is no folder, and above that its place.
constexpr LPARAM kFileBit = 1;
constexpr int kPlaceShift = 1;

LPARAM LParamOf(bool file, LPARAM place) {
    return place << kPlaceShift | (file ? kFileBit : 0);
}

int CALLBACK CompareBySortKey(LPARAM a, LPARAM b, LPARAM context) {
    const auto& keys = *reinterpret_cast<const std::vector<std::string>*>(context);
    const auto first = static_cast<std::size_t>(a >> kPlaceShift);
    const auto second = static_cast<std::size_t>(b >> kPlaceShift);
    if (first < keys.size() && second < keys.size()) {
        if (const int order = keys[first].compare(keys[second]); order != 0)
            return order;
    }
    return first < second ? -1 : first > second;
}

} // namespace

DirTreeItems::~DirTreeItems() {
    if (m_icons)
        ImageList_Destroy(m_icons);
}

void DirTreeItems::RefreshIcons() {
    const HIMAGELIST icons = MakeDirIcons(QVCLR_TREE, QV_GetWindowDpi(m_tree.m_hWnd));
    if (!icons)
        return;
    m_tree.SendMessage(TVM_SETIMAGELIST, TVSIL_NORMAL, reinterpret_cast<LPARAM>(icons));
    if (m_icons)
        ImageList_Destroy(m_icons);
    m_icons = icons;
}

HTREEITEM DirTreeItems::Next(UINT code, HTREEITEM item) const {
    return reinterpret_cast<HTREEITEM>(
        m_tree.SendMessage(TVM_GETNEXTITEM, code, reinterpret_cast<LPARAM>(item)));
}

bool DirTreeItems::IsExpanded(HTREEITEM item) const {
    return (m_tree.GetItemState(item, TVIS_EXPANDED) & TVIS_EXPANDED) != 0;
}

FolderKind DirTreeItems::KindOf(HTREEITEM item) const {
    if (const auto special = m_specials.find(item); special != m_specials.end())
        return special->second.kind;
    return m_tree.GetItemData(item) & kFileBit ? FolderKind::File : FolderKind::Path;
}

std::wstring DirTreeItems::TextOf(HTREEITEM item) const {
    return m_tree.GetItemText(item).GetString();
}

std::wstring DirTreeItems::PathOf(HTREEITEM item) const {
    std::wstring below;
    for (; item; item = Next(TVGN_PARENT, item)) {
        if (const auto special = m_specials.find(item); special != m_specials.end()) {
            const std::wstring& path = special->second.path;
            return path.empty() || below.empty() ? path : JoinPath(path, below);
        }
        below = below.empty() ? TextOf(item) : JoinPath(TextOf(item), below);
    }
    return std::wstring();
}

std::wstring DirTreeItems::NameOf(HTREEITEM item) const {
    const auto special = m_specials.find(item);
    return special != m_specials.end() && !special->second.path.empty() ? special->second.path : TextOf(item);
}

Pidl DirTreeItems::PidlOf(HTREEITEM item) const {
    const auto special = m_specials.find(item);
    return Pidl(special != m_specials.end() ? ILCloneFull(special->second.pidl.get()) : nullptr);
}

HTREEITEM DirTreeItems::FindChild(HTREEITEM parent, const std::wstring& text,
                                  const std::wstring& path) const {
    for (HTREEITEM item = FirstChild(parent); item; item = NextSibling(item)) {
        const auto special = m_specials.find(item);
        if (special != m_specials.end() ? SameName(special->second.path, path) : SameName(TextOf(item), text))
            return item;
    }
    return nullptr;
}

HTREEITEM DirTreeItems::Insert(HTREEITEM parent, HTREEITEM after, FolderEntry& entry, LPARAM place) {
    const bool file = entry.kind == FolderKind::File;
    TVINSERTSTRUCTW insert = {};
    insert.hParent = parent;
    insert.hInsertAfter = after;
    insert.itemex.mask = TVIF_TEXT | TVIF_CHILDREN | TVIF_IMAGE | TVIF_SELECTEDIMAGE | TVIF_PARAM;
    insert.itemex.pszText = entry.name.data();
    insert.itemex.cChildren = file ? 0 : 1;
    insert.itemex.iImage = insert.itemex.iSelectedImage = static_cast<int>(entry.icon);
    insert.itemex.lParam = LParamOf(file, place);
    // Straight to the control: nobody on the way has a use for the ten thousand items of a large folder.
    const auto item = reinterpret_cast<HTREEITEM>(
        m_tree.DefWindowProc(TVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&insert)));
    const bool special = !entry.path.empty() || (entry.kind != FolderKind::Path && !file);
    if (item && special)
        m_specials[item] = {entry.kind, NormalFolderPath(entry.path), std::move(entry.pidl)};
    return item;
}

void DirTreeItems::SetPlace(HTREEITEM item, LPARAM place) {
    m_tree.SetItemData(item, LParamOf(KindOf(item) == FolderKind::File, place));
}

void DirTreeItems::SortChildren(HTREEITEM item, const std::vector<std::string>& sortKeys) {
    TVSORTCB sort = {item, &CompareBySortKey, reinterpret_cast<LPARAM>(&sortKeys)};
    m_tree.SendMessage(TVM_SORTCHILDRENCB, 0, reinterpret_cast<LPARAM>(&sort));
}

void DirTreeItems::SetHasChildren(HTREEITEM item, bool has) {
    TVITEMW record = {};
    record.mask = TVIF_CHILDREN | TVIF_HANDLE;
    record.hItem = item;
    record.cChildren = has;
    m_tree.SetItem(&record);
}

void DirTreeItems::ShowOpen(HTREEITEM item, bool open) {
    TVITEMW record = {};
    record.mask = TVIF_IMAGE | TVIF_SELECTEDIMAGE | TVIF_HANDLE;
    record.hItem = item;
    m_tree.GetItem(&record);
    const int shutIcon = static_cast<int>(FolderIcon::Folder);
    const int openIcon = static_cast<int>(FolderIcon::FolderOpen);
    if (record.iImage != shutIcon && record.iImage != openIcon)
        return;
    record.iImage = record.iSelectedImage = open ? openIcon : shutIcon;
    m_tree.SetItem(&record);
}

void DirTreeItems::Select(HTREEITEM item) {
    m_tree.SendMessage(TVM_SELECTITEM, TVGN_CARET, reinterpret_cast<LPARAM>(item));
    m_tree.SendMessage(TVM_ENSUREVISIBLE, 0, reinterpret_cast<LPARAM>(item));
    m_tree.Expand(item, TVE_EXPAND);
}

} // namespace _qv_commonctrl
