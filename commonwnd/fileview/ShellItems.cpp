#include "ShellItems.h"

#include <commdlg.h>
#include <shlobj.h>
#include <shlwapi.h>

#include <cstring>
#include <limits>

namespace _qv_commonwnd {

namespace {

constexpr std::size_t kEndBytes = sizeof(USHORT); // a list ends with an empty step

USHORT StepBytes(const BYTE* at) {
    USHORT bytes = 0;
    std::memcpy(&bytes, at, sizeof bytes);
    return bytes;
}

// Bytes of the first `depth` steps, all of them when there are fewer; `seen` is how many there were.
std::size_t BytesOfSteps(const ITEMIDLIST* id, int depth, int& seen) {
    const auto* const begin = reinterpret_cast<const BYTE*>(id);
    std::size_t bytes = 0;
    for (seen = 0; seen < depth && StepBytes(begin + bytes); ++seen)
        bytes += StepBytes(begin + bytes);
    return bytes;
}

bool ShowsName(IShellFolder* folder, PCUITEMID_CHILD child, SHGDNF kind, const CString& name) {
    STRRET text = {};
    wchar_t* allocated = nullptr;
    if (FAILED(folder->GetDisplayNameOf(child, kind, &text)) ||
        FAILED(::StrRetToStrW(&text, child, &allocated)))
        return false;
    const TaskText shown(allocated);
    return name == shown.get();
}

bool ShowsName(IShellFolder* folder, PCUITEMID_CHILD child, const CString& name) {
    return ShowsName(folder, child, SHGDN_INFOLDER, name) || ShowsName(folder, child, SHGDN_NORMAL, name);
}

} // namespace

OwnedItemId DesktopItem() {
    auto* const id = static_cast<BYTE*>(::CoTaskMemAlloc(kEndBytes));
    if (id)
        std::memset(id, 0, kEndBytes);
    return OwnedItemId(reinterpret_cast<PIDLIST_ABSOLUTE>(id));
}

OwnedItemId AncestorAt(const ITEMIDLIST* id, int depth) {
    int seen = 0;
    const std::size_t bytes = id ? BytesOfSteps(id, depth, seen) : 0;
    if (!id || seen < depth)
        return nullptr;
    auto* const copy = static_cast<BYTE*>(::CoTaskMemAlloc(bytes + kEndBytes));
    if (!copy)
        return nullptr;
    std::memcpy(copy, id, bytes);
    std::memset(copy + bytes, 0, kEndBytes);
    return OwnedItemId(reinterpret_cast<PIDLIST_ABSOLUTE>(copy));
}

bool HasName(PCIDLIST_ABSOLUTE id, const CString& name) {
    ComHandle<IShellFolder> parent;
    PCUITEMID_CHILD child = nullptr;
    return id && SUCCEEDED(::SHBindToParent(id, IID_IShellFolder, parent.ReceiveAny(), &child)) &&
           ShowsName(parent.Get(), child, name);
}

OwnedItemId ChildNamed(PCIDLIST_ABSOLUTE parent, const CString& name, DWORD kinds) {
    ComHandle<IShellFolder> desktop;
    ComHandle<IShellFolder> folder;
    if (!parent || FAILED(::SHGetDesktopFolder(desktop.Receive())))
        return nullptr;
    if (!StepBytes(reinterpret_cast<const BYTE*>(parent)))
        folder = std::move(desktop);
    else if (FAILED(desktop->BindToObject(parent, nullptr, IID_IShellFolder, folder.ReceiveAny())))
        return nullptr;
    ComHandle<IEnumIDList> children;
    if (folder->EnumObjects(nullptr, kinds, children.Receive()) != S_OK)
        return nullptr;
    PITEMID_CHILD raw = nullptr;
    while (children->Next(1, &raw, nullptr) == S_OK) {
        const OwnedChildId child(raw);
        if (ShowsName(folder.Get(), child.get(), name))
            return OwnedItemId(::ILCombine(parent, child.get()));
    }
    return nullptr;
}

OwnedItemId FolderInView(HWND frame) {
    const LRESULT bytes = frame ? ::SendMessageW(frame, CDM_GETFOLDERIDLIST, 0, 0) : 0;
    if (bytes <= 0)
        return nullptr;
    OwnedItemId id(static_cast<PIDLIST_ABSOLUTE>(::CoTaskMemAlloc(static_cast<SIZE_T>(bytes))));
    if (id && ::SendMessageW(frame, CDM_GETFOLDERIDLIST, static_cast<WPARAM>(bytes),
                             reinterpret_cast<LPARAM>(id.get())) <= 0)
        id.reset();
    return id;
}

bool SameItem(const ITEMIDLIST* a, const ITEMIDLIST* b) {
    if (!a || !b)
        return a == b;
    int steps = 0;
    const std::size_t bytes = BytesOfSteps(a, std::numeric_limits<int>::max(), steps);
    return BytesOfSteps(b, std::numeric_limits<int>::max(), steps) == bytes && !std::memcmp(a, b, bytes);
}

} // namespace _qv_commonwnd
