#include "DirTreeModel.h"

#include "module/RedrawPause.h"
#include "PathFinder.h"
#include "ShellEntries.h"

#include <algorithm>
#include <utility>

namespace _qv_commonctrl {

namespace {

constexpr DWORD kOpenPatienceMs = 500; // how long the desktop may take before the tree is shown without it

} // namespace

UINT DirTreeModel::ListedMessage() {
    static const UINT message = RegisterWindowMessageW(L"QVCommonCtrlU.FolderListed");
    return message;
}

bool DirTreeModel::SetDesktop() {
    FolderEntry root;
    root.name = DesktopName();
    if (root.name.empty() || !m_items.Window())
        return false;
    m_items.RefreshIcons();
    SendMessageW(m_items.Window(), TVM_DELETEITEM, 0, reinterpret_cast<LPARAM>(TVI_ROOT));
    OnWindowGone(); // below a parent that reflects nothing the deletions went unheard
    wchar_t path[MAX_PATH] = L"";
    if (SHGetSpecialFolderPathW(nullptr, path, CSIDL_DESKTOPDIRECTORY, FALSE))
        root.path = path;
    root.kind = FolderKind::Desktop;
    root.icon = FolderIcon::Desktop;
    const HTREEITEM item = m_items.Insert(TVI_ROOT, TVI_LAST, root, DirTreeItems::kNoPlace);
    if (!item || !StartListing(item, AfterListing::Expand))
        return false;
    EnsureListed(item, GetTickCount64() + kOpenPatienceMs);
    return true;
}

bool DirTreeModel::Select(const std::wstring& path) {
    const HTREEITEM item = PathFinder(*this, path).Find();
    if (item)
        m_items.Select(item);
    return item != nullptr;
}

void DirTreeModel::ListAgain(HTREEITEM item) {
    if (!item || m_items.KindOf(item) == FolderKind::File)
        return;
    const auto running = ListingOf(item);
    const bool opening = running != m_listings.end() && running->second.expand;
    const bool expanded = opening || m_items.IsExpanded(item);
    const RedrawPause pause(m_items.Window());
    m_items.Expand(item, TVE_COLLAPSE | TVE_COLLAPSERESET);
    Forget(item);
    m_items.SetHasChildren(item, true);
    if (expanded)
        StartListing(item, AfterListing::Expand);
}

DirTreeModel::Listings::iterator DirTreeModel::ListingOf(HTREEITEM item) {
    return std::find_if(m_listings.begin(), m_listings.end(),
                        [item](const auto& entry) { return entry.second.Item() == item; });
}

bool DirTreeModel::StartListing(HTREEITEM item, AfterListing after) {
    const bool expand = after == AfterListing::Expand;
    if (const auto running = ListingOf(item); running != m_listings.end()) {
        running->second.expand = running->second.expand || expand;
        return true;
    }
    FolderRequest request;
    request.kind = m_items.KindOf(item);
    request.content = m_content;
    request.path = m_items.PathOf(item);
    if (request.kind == FolderKind::Virtual)
        request.pidl = m_items.PidlOf(item);
    const UINT id = ++m_lastId;
    auto listing = FolderListing::Start(std::move(request), {m_items.Window(), ListedMessage(), id});
    if (!listing)
        return false;
    m_listings.emplace(id, ItemListing(item, std::move(listing), expand));
    return true;
}

bool DirTreeModel::OnExpanding(HTREEITEM item) {
    if (m_listed.contains(item) || m_items.KindOf(item) == FolderKind::File)
        return false;
    // What there is can be shown: the first rows of a large folder, rows of a listing that broke off, or a folder that a
    // call has put there although its parent cannot be listed.
    const bool some = m_items.FirstChild(item) != nullptr;
    const bool started = StartListing(item, some ? AfterListing::Nothing : AfterListing::Expand);
    return started && !some;
}

void DirTreeModel::OnListed(UINT id) {
    const auto found = m_listings.find(id);
    if (found == m_listings.end()) // the item is gone, or a call has waited for the listing
        return;
    ItemListing& listing = found->second;
    const HTREEITEM item = listing.Item();
    const RedrawPause pause(m_items.Window());
    const bool ended = listing.Wait(0); // asked before the entries are taken: then these are all
    listing.InsertTaken(m_items);
    const bool some = m_items.FirstChild(item) != nullptr;
    // A listing that failed leaves the expander as it is: the folder may answer the next time.
    const FolderResult result = ended ? listing.Result() : FolderResult();
    const bool failed = ended && !result.Succeeded();
    const bool expand =
        some && !failed && std::exchange(listing.expand, false); // from then on it is the user's
    if (ended)
        m_listings.erase(found);
    if (ended && !failed) {
        m_listed[item] = result;
        m_items.SetHasChildren(item, some);
    }
    if (expand)
        m_items.Expand(item, TVE_EXPAND); // last: a host that hears of it may do anything
}

bool DirTreeModel::EnsureListed(HTREEITEM item, ULONGLONG deadline) {
    if (m_listed.contains(item))
        return true;
    if (!StartListing(item, AfterListing::Nothing))
        return false;
    const auto running = ListingOf(item);
    const ULONGLONG now = GetTickCount64();
    if (!running->second.Wait(deadline > now ? static_cast<DWORD>(deadline - now) : 0))
        return false;
    OnListed(UINT(running->first)); // a copy: the entry goes
    return m_listed.contains(item);
}

void DirTreeModel::OnChildAdded(HTREEITEM parent, HTREEITEM child) {
    m_items.SetHasChildren(parent, true);
    if (const auto running = ListingOf(parent); running != m_listings.end())
        running->second.OnChildAdded(m_items, child);
}

bool DirTreeModel::IsListedByHost(HTREEITEM item) const {
    const auto listed = m_listed.find(item);
    return listed != m_listed.end() && listed->second.byHost;
}

void DirTreeModel::Forget(HTREEITEM item) {
    m_listed.erase(item);
    if (const auto running = ListingOf(item); running != m_listings.end())
        m_listings.erase(running);
}

void DirTreeModel::OnItemDeleted(HTREEITEM item) {
    Forget(item);
    m_items.Forget(item);
}

void DirTreeModel::OnWindowGone() {
    m_listed.clear();
    m_items.ForgetAll();
    m_listings.clear();
}

} // namespace _qv_commonctrl
