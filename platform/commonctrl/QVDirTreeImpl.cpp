#include "QVDirTreeImpl.h"

#include "QVDirIcons.h"
#include "QVRedrawPause.h"
#include "QVShellEntries.h"
#include "QVSkin.h"

namespace _qv_commonctrl {

namespace {

// How long a call may wait for a folder before it answers without it.
constexpr DWORD kOpenPatienceMs = 500;
constexpr LPARAM kFileItem = 1; // lParam of items that are no folders

} // namespace

CQVDirTreeImpl::~CQVDirTreeImpl() {
    if (m_icons)
        ImageList_Destroy(m_icons);
}

UINT CQVDirTreeImpl::ListedMessage() {
    static const UINT message = RegisterWindowMessageW(L"QVCommonCtrlU.FolderListed");
    return message;
}

HTREEITEM CQVDirTreeImpl::Next(UINT code, HTREEITEM item) const {
    return reinterpret_cast<HTREEITEM>(
        m_tree.SendMessage(TVM_GETNEXTITEM, code, reinterpret_cast<LPARAM>(item)));
}

FolderKind CQVDirTreeImpl::KindOf(HTREEITEM item) const {
    if (const auto special = m_specials.find(item); special != m_specials.end())
        return special->second.kind;
    return m_tree.GetItemData(item) == kFileItem ? FolderKind::File : FolderKind::Path;
}

std::wstring CQVDirTreeImpl::TextOf(HTREEITEM item) const {
    return m_tree.GetItemText(item).GetString();
}

std::wstring CQVDirTreeImpl::PathOf(HTREEITEM item) const {
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

void CQVDirTreeImpl::RefreshIcons() {
    const HIMAGELIST icons = MakeDirIcons(QVCLR_TREE, QV_GetWindowDpi(m_tree.m_hWnd));
    if (!icons)
        return;
    m_tree.SendMessage(TVM_SETIMAGELIST, TVSIL_NORMAL, reinterpret_cast<LPARAM>(icons));
    if (m_icons)
        ImageList_Destroy(m_icons);
    m_icons = icons;
}

bool CQVDirTreeImpl::SetDesktop() {
    FolderEntry root;
    root.name = DesktopName();
    if (root.name.empty() || !m_tree.m_hWnd)
        return false;
    RefreshIcons();
    m_tree.DeleteAllItems();
    OnWindowGone(); // below a parent that reflects nothing the deletions went unheard
    wchar_t path[MAX_PATH] = L"";
    if (SHGetSpecialFolderPathW(nullptr, path, CSIDL_DESKTOPDIRECTORY, FALSE))
        root.path = path;
    root.kind = FolderKind::Desktop;
    root.icon = FolderIcon::Desktop;
    const HTREEITEM item = Insert(TVI_ROOT, TVI_LAST, root);
    if (!item || !StartListing(item, AfterListing::Expand))
        return false;
    EnsureListed(item, GetTickCount64() + kOpenPatienceMs);
    return true;
}

HTREEITEM CQVDirTreeImpl::Insert(HTREEITEM parent, HTREEITEM after, FolderEntry& entry) {
    const bool file = entry.kind == FolderKind::File;
    TVINSERTSTRUCTW insert = {};
    insert.hParent = parent;
    insert.hInsertAfter = after;
    insert.itemex.mask = TVIF_TEXT | TVIF_CHILDREN | TVIF_IMAGE | TVIF_SELECTEDIMAGE | TVIF_PARAM;
    insert.itemex.pszText = entry.name.data();
    insert.itemex.cChildren = file ? 0 : 1;
    insert.itemex.iImage = insert.itemex.iSelectedImage = static_cast<int>(entry.icon);
    insert.itemex.lParam = file ? kFileItem : 0;
    // Straight to the control: nobody on the way has a use for the ten thousand items of a large folder.
    const auto item = reinterpret_cast<HTREEITEM>(
        m_tree.DefWindowProc(TVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&insert)));
    const bool special = !entry.path.empty() || (entry.kind != FolderKind::Path && !file);
    if (item && special)
        m_specials[item] = {entry.kind, NormalFolderPath(entry.path), std::move(entry.pidl)};
    return item;
}

void CQVDirTreeImpl::InsertAll(HTREEITEM parent, std::vector<FolderEntry>& entries) {
    for (FolderEntry& entry : entries)
        Insert(parent, TVI_LAST, entry); // the control knows its last child; a neighbour it would look for
}

void CQVDirTreeImpl::SetHasChildren(HTREEITEM item, bool has) {
    TVITEMW record = {};
    record.mask = TVIF_CHILDREN | TVIF_HANDLE;
    record.hItem = item;
    record.cChildren = has;
    m_tree.SetItem(&record);
}

bool CQVDirTreeImpl::StartListing(HTREEITEM item, AfterListing after) {
    for (auto& [id, pending] : m_pending) {
        if (pending.item == item) {
            pending.expand = pending.expand || after == AfterListing::Expand;
            return true;
        }
    }
    FolderRequest request;
    request.kind = KindOf(item);
    request.content = m_content;
    request.path = PathOf(item);
    if (request.kind == FolderKind::Virtual)
        request.pidl.reset(ILCloneFull(m_specials.at(item).pidl.get()));
    const UINT id = ++m_lastId;
    auto listing = FolderListing::Start(std::move(request), {m_tree.m_hWnd, ListedMessage(), id});
    if (!listing)
        return false;
    m_pending[id] = {item, std::move(listing), after == AfterListing::Expand};
    return true;
}

bool CQVDirTreeImpl::OnExpanding(HTREEITEM item) {
    if (m_listed.contains(item) || KindOf(item) == FolderKind::File)
        return false;
    return StartListing(item, AfterListing::Expand);
}

void CQVDirTreeImpl::OnExpanded(HTREEITEM item, bool expanded) {
    TVITEMW record = {};
    record.mask = TVIF_IMAGE | TVIF_SELECTEDIMAGE | TVIF_HANDLE;
    record.hItem = item;
    m_tree.GetItem(&record);
    const int shut = static_cast<int>(FolderIcon::Folder);
    const int open = static_cast<int>(FolderIcon::FolderOpen);
    if (record.iImage != shut && record.iImage != open)
        return; // drives and the like look the same open and shut
    record.iImage = record.iSelectedImage = expanded ? open : shut;
    m_tree.SetItem(&record);
}

void CQVDirTreeImpl::OnListed(UINT id) {
    const auto found = m_pending.find(id);
    if (found == m_pending.end()) // the item is gone, or a call has waited for the listing
        return;
    Pending pending = std::move(found->second);
    m_pending.erase(found);
    Apply(pending);
}

void CQVDirTreeImpl::Apply(Pending& pending) {
    pending.listing->Wait(INFINITE); // it has ended: this makes what it wrote visible here
    const HTREEITEM item = pending.item;
    const bool listed = pending.listing->Succeeded();
    std::vector<FolderEntry>& entries = pending.listing->Entries();
    const RedrawPause pause(m_tree.m_hWnd);
    InsertAll(item, entries);
    if (listed)
        m_listed.insert(item);
    if (!listed)
        return; // the expander stays: the folder may answer the next time
    SetHasChildren(item, !entries.empty());
    if (pending.expand && !entries.empty())
        m_tree.Expand(item, TVE_EXPAND);
}

bool CQVDirTreeImpl::EnsureListed(HTREEITEM item, ULONGLONG deadline) {
    if (m_listed.contains(item))
        return true;
    if (!StartListing(item, AfterListing::Nothing))
        return false;
    for (auto& [id, pending] : m_pending) {
        if (pending.item != item)
            continue;
        const ULONGLONG now = GetTickCount64();
        if (!pending.listing->Wait(deadline > now ? static_cast<DWORD>(deadline - now) : 0))
            return false;
        OnListed(UINT(id)); // a copy: the entry goes
        break;
    }
    return m_listed.contains(item);
}

void CQVDirTreeImpl::ListAgain(HTREEITEM item) {
    if (!item || KindOf(item) == FolderKind::File)
        return;
    const bool expanded = m_tree.GetItemState(item, TVIS_EXPANDED) & TVIS_EXPANDED;
    const RedrawPause pause(m_tree.m_hWnd);
    m_tree.Expand(item, TVE_COLLAPSE | TVE_COLLAPSERESET);
    m_listed.erase(item);
    SetHasChildren(item, true);
    if (expanded)
        StartListing(item, AfterListing::Expand);
}

void CQVDirTreeImpl::OnItemDeleted(HTREEITEM item) {
    m_listed.erase(item);
    m_specials.erase(item);
    std::erase_if(m_pending, [item](const auto& entry) { return entry.second.item == item; });
}

void CQVDirTreeImpl::OnWindowGone() {
    m_listed.clear();
    m_specials.clear();
    m_pending.clear();
}

} // namespace _qv_commonctrl
