#include "QVDirTreeImpl.h"

#include "QVDirIcons.h"
#include "QVFolderOrder.h"
#include "module/QVRedrawPause.h"
#include "QVShellEntries.h"
#include "QVSkin.h"

#include <algorithm>
#include <utility>

namespace _qv_commonctrl {

namespace {

// How long a call may wait for a folder before it answers without it.
constexpr DWORD kOpenPatienceMs = 500;

// An item's lParam: whether it is no folder, and above that its place of insertion.
constexpr LPARAM kFileBit = 1;
constexpr int kPlaceShift = 1;

LPARAM LParamOf(const FolderEntry& entry, LPARAM place) {
    return place << kPlaceShift | (entry.kind == FolderKind::File ? kFileBit : 0);
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
    return m_tree.GetItemData(item) & kFileBit ? FolderKind::File : FolderKind::Path;
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
    const HTREEITEM item = Insert(TVI_ROOT, TVI_LAST, root, kNoPlace);
    if (!item || !StartListing(item, AfterListing::Expand))
        return false;
    EnsureListed(item, GetTickCount64() + kOpenPatienceMs);
    return true;
}

HTREEITEM CQVDirTreeImpl::Insert(HTREEITEM parent, HTREEITEM after, FolderEntry& entry, LPARAM place) {
    const bool file = entry.kind == FolderKind::File;
    TVINSERTSTRUCTW insert = {};
    insert.hParent = parent;
    insert.hInsertAfter = after;
    insert.itemex.mask = TVIF_TEXT | TVIF_CHILDREN | TVIF_IMAGE | TVIF_SELECTEDIMAGE | TVIF_PARAM;
    insert.itemex.pszText = entry.name.data();
    insert.itemex.cChildren = file ? 0 : 1;
    insert.itemex.iImage = insert.itemex.iSelectedImage = static_cast<int>(entry.icon);
    insert.itemex.lParam = LParamOf(entry, place);
    // Straight to the control: nobody on the way has a use for the ten thousand items of a large folder.
    const auto item = reinterpret_cast<HTREEITEM>(
        m_tree.DefWindowProc(TVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&insert)));
    const bool special = !entry.path.empty() || (entry.kind != FolderKind::Path && !file);
    if (item && special)
        m_specials[item] = {entry.kind, NormalFolderPath(entry.path), std::move(entry.pidl)};
    return item;
}

void CQVDirTreeImpl::SetHasChildren(HTREEITEM item, bool has) {
    TVITEMW record = {};
    record.mask = TVIF_CHILDREN | TVIF_HANDLE;
    record.hItem = item;
    record.cChildren = has;
    m_tree.SetItem(&record);
}

DirTreePending* CQVDirTreeImpl::PendingOf(HTREEITEM item) {
    for (auto& [id, pending] : m_pending) {
        if (pending.item == item)
            return &pending;
    }
    return nullptr;
}

bool CQVDirTreeImpl::StartListing(HTREEITEM item, AfterListing after) {
    const bool expand = after == AfterListing::Expand;
    if (DirTreePending* const pending = PendingOf(item)) {
        pending->expand = pending->expand || expand;
        return true;
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
    DirTreePending& pending = m_pending[id];
    pending.item = item;
    pending.listing = std::move(listing);
    pending.expand = expand;
    return true;
}

bool CQVDirTreeImpl::OnExpanding(HTREEITEM item) {
    if (m_listed.contains(item) || KindOf(item) == FolderKind::File)
        return false;
    if (const DirTreePending* const pending = PendingOf(item); pending && pending->begun)
        return false; // what there is so far can be shown
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
    DirTreePending& pending = found->second;
    const HTREEITEM item = pending.item;
    const RedrawPause pause(m_tree.m_hWnd);
    const bool ended = pending.listing->Wait(0); // asked before the entries are taken: then these are all
    InsertTaken(pending);
    const bool some = Next(TVGN_CHILD, item) != nullptr;
    // A listing that failed leaves the expander as it is: the folder may answer the next time.
    const bool failed = ended && !pending.listing->Succeeded();
    const bool expand =
        some && !failed && std::exchange(pending.expand, false); // from then on it is the user's
    if (ended)
        m_pending.erase(found);
    if (ended && !failed) {
        m_listed.insert(item);
        SetHasChildren(item, some);
    }
    if (expand)
        m_tree.Expand(item, TVE_EXPAND); // last: a host that hears of it may do anything
}

void CQVDirTreeImpl::InsertTaken(DirTreePending& pending) {
    std::vector<FolderEntry> entries = pending.listing->Take();
    if (entries.empty())
        return;
    const HTREEITEM item = pending.item;
    const bool first = Next(TVGN_CHILD, item) == nullptr;
    if (first)
        SortEntries(entries); // later ones are sorted with those that are there
    else if (!pending.begun)
        NoteChildren(pending);
    pending.begun = true;
    for (FolderEntry& entry : entries) {
        if (pending.former.contains(entry.path.empty() ? entry.name : NormalFolderPath(entry.path)))
            continue;
        const auto place = static_cast<LPARAM>(pending.sortKeys.size());
        pending.sortKeys.push_back(std::move(entry.sortKey));
        Insert(item, TVI_LAST, entry,
               place); // the control knows its last child; a neighbour it would look for
    }
    if (first)
        return;
    TVSORTCB sort = {item, &CompareBySortKey, reinterpret_cast<LPARAM>(&pending.sortKeys)};
    m_tree.SendMessage(TVM_SORTCHILDRENCB, 0, reinterpret_cast<LPARAM>(&sort));
}

void CQVDirTreeImpl::NoteChildren(DirTreePending& pending) {
    for (HTREEITEM child = Next(TVGN_CHILD, pending.item); child; child = Next(TVGN_NEXT, child)) {
        FolderEntry entry;
        entry.name = TextOf(child);
        entry.kind = KindOf(child);
        const auto special = m_specials.find(child);
        const bool hasPath = special != m_specials.end() && !special->second.path.empty();
        pending.former.insert(hasPath ? special->second.path : entry.name);
        m_tree.SetItemData(child, LParamOf(entry, static_cast<LPARAM>(pending.sortKeys.size())));
        pending.sortKeys.push_back(FolderSortKey(entry));
    }
}

bool CQVDirTreeImpl::EnsureListed(HTREEITEM item, ULONGLONG deadline) {
    if (m_listed.contains(item))
        return true;
    if (!StartListing(item, AfterListing::Nothing))
        return false;
    const auto pending = std::find_if(m_pending.begin(), m_pending.end(),
                                      [item](const auto& entry) { return entry.second.item == item; });
    const ULONGLONG now = GetTickCount64();
    if (!pending->second.listing->Wait(deadline > now ? static_cast<DWORD>(deadline - now) : 0))
        return false;
    OnListed(UINT(pending->first)); // a copy: the entry goes
    return m_listed.contains(item);
}

void CQVDirTreeImpl::ListAgain(HTREEITEM item) {
    if (!item || KindOf(item) == FolderKind::File)
        return;
    const bool expanded = m_tree.GetItemState(item, TVIS_EXPANDED) & TVIS_EXPANDED;
    const RedrawPause pause(m_tree.m_hWnd);
    m_tree.Expand(item, TVE_COLLAPSE | TVE_COLLAPSERESET);
    Forget(item);
    SetHasChildren(item, true);
    if (expanded)
        StartListing(item, AfterListing::Expand);
}

// A listing under way ends without effect.
void CQVDirTreeImpl::Forget(HTREEITEM item) {
    m_listed.erase(item);
    std::erase_if(m_pending, [item](const auto& entry) { return entry.second.item == item; });
}

void CQVDirTreeImpl::OnItemDeleted(HTREEITEM item) {
    Forget(item);
    m_specials.erase(item);
}

void CQVDirTreeImpl::OnWindowGone() {
    m_listed.clear();
    m_specials.clear();
    m_pending.clear();
}

} // namespace _qv_commonctrl
