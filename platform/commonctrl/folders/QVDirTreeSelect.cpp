// Finding the item of a path: the second half of CQVDirTreeImpl.
#include "QVDirTreeImpl.h"

#include <algorithm>

namespace _qv_commonctrl {

namespace {

constexpr DWORD kSelectPatienceMs = 2000; // for all folders on the way to a path together

bool SameName(const std::wstring& a, const std::wstring& b) {
    return CompareStringOrdinal(a.c_str(), static_cast<int>(a.size()), b.c_str(), static_cast<int>(b.size()),
                                TRUE) == CSTR_EQUAL;
}

// The length of the part that is no folder of its own: C:\ or \\server\share. 0 for a path that is not absolute.
std::size_t RootLength(const std::wstring& path) {
    if (path.size() >= 3 && path[1] == L':' && path[2] == L'\\')
        return 3;
    if (!path.starts_with(L"\\\\") || path.size() < 3)
        return 0;
    const std::size_t server = path.find(L'\\', 2);
    if (server == std::wstring::npos || server + 1 >= path.size())
        return 0;
    return std::min(path.find(L'\\', server + 1), path.size());
}

DWORD TimeLeft(ULONGLONG deadline) {
    const ULONGLONG now = GetTickCount64();
    return deadline > now ? static_cast<DWORD>(deadline - now) : 0;
}

} // namespace

HTREEITEM CQVDirTreeImpl::FindChild(HTREEITEM parent, const std::wstring& text,
                                    const std::wstring& path) const {
    for (HTREEITEM item = Next(TVGN_CHILD, parent); item; item = Next(TVGN_NEXT, item)) {
        const auto special = m_specials.find(item);
        if (special != m_specials.end() ? SameName(special->second.path, path) : SameName(TextOf(item), text))
            return item;
    }
    return nullptr;
}

// A hidden folder, or one that is younger than the listing, is not among the children and is put there.
HTREEITEM CQVDirTreeImpl::ChildOrNew(HTREEITEM parent, const std::wstring& text, const std::wstring& path,
                                     ULONGLONG deadline) {
    if (const HTREEITEM found = FindChild(parent, text, path))
        return found;
    if (!FolderIsThere(path, TimeLeft(deadline)))
        return nullptr;
    FolderEntry entry;
    entry.name = text;
    if (KindOf(parent) != FolderKind::Path) { // a drive or a share
        entry.path = path;
        entry.icon = FolderIcon::Drive;
    }
    const HTREEITEM item = Insert(parent, TVI_SORT, entry, kNoPlace);
    SetHasChildren(parent, true);
    return item;
}

HTREEITEM CQVDirTreeImpl::FindStart(const std::wstring& path, std::size_t& used, ULONGLONG deadline) {
    const HTREEITEM desktop = Next(TVGN_ROOT, nullptr);
    used = RootLength(path);
    if (!desktop || used == 0 || !EnsureListed(desktop, deadline))
        return nullptr;
    const std::wstring root = path.substr(0, used);
    if (root.starts_with(L"\\\\"))
        return ChildOrNew(desktop, root, root, deadline);
    for (HTREEITEM item = Next(TVGN_CHILD, desktop); item; item = Next(TVGN_NEXT, item)) {
        if (KindOf(item) == FolderKind::Computer)
            return EnsureListed(item, deadline) ? ChildOrNew(item, root, root, deadline) : nullptr;
    }
    return ChildOrNew(desktop, root, root, deadline); // a name space without a computer
}

bool CQVDirTreeImpl::Select(const std::wstring& wanted) {
    const std::wstring path = NormalFolderPath(wanted);
    const ULONGLONG deadline = GetTickCount64() + kSelectPatienceMs;
    const HTREEITEM desktop = Next(TVGN_ROOT, nullptr);
    HTREEITEM item = nullptr;
    if (desktop && !path.empty() && SameName(PathOf(desktop), path)) {
        item = desktop;
    } else {
        std::size_t at = 0;
        item = FindStart(path, at, deadline);
        while (item && at < path.size()) {
            at = path.find_first_not_of(L'\\', at);
            const std::size_t end = std::min(path.find(L'\\', at), path.size());
            const std::wstring text = path.substr(at, end - at);
            if (text == L"." || text == L"..") // relative parts name no item
                return false;
            EnsureListed(item, deadline);
            item = ChildOrNew(item, text, path.substr(0, end), deadline);
            at = end;
        }
    }
    if (!item)
        return false;
    m_tree.SendMessage(TVM_SELECTITEM, TVGN_CARET, reinterpret_cast<LPARAM>(item));
    m_tree.SendMessage(TVM_ENSUREVISIBLE, 0, reinterpret_cast<LPARAM>(item));
    m_tree.Expand(item, TVE_EXPAND);
    return true;
}

} // namespace _qv_commonctrl
