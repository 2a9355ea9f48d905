#include "ShellEntries.h"

#include <shellapi.h>
#include <shlwapi.h>

namespace _qv_commonctrl {

namespace {

std::wstring NameOf(IShellFolder* folder, PCUITEMID_CHILD item, SHGDNF form) {
    STRRET text = {};
    LPWSTR name = nullptr;
    if (FAILED(folder->GetDisplayNameOf(item, form, &text)) || FAILED(StrRetToStrW(&text, item, &name)))
        return std::wstring();
    return ShellText(name).get();
}

// Null when the system has no such folder.
Pidl SpecialFolder(int folder) {
    PIDLIST_ABSOLUTE pidl = nullptr;
    return Pidl(SUCCEEDED(SHGetSpecialFolderLocation(nullptr, folder, &pidl)) ? pidl : nullptr);
}

bool IsSpecial(PCIDLIST_ABSOLUTE pidl, int folder) {
    const Pidl special = SpecialFolder(folder);
    return special && ILIsEqual(pidl, special.get());
}

void Classify(FolderEntry& entry, PCIDLIST_ABSOLUTE whole, bool folder) {
    if (IsSpecial(whole, CSIDL_DRIVES)) {
        entry.kind = FolderKind::Computer;
        entry.icon = FolderIcon::Computer;
        entry.path.clear();
        return;
    }
    entry.kind = !folder ? FolderKind::File : entry.path.empty() ? FolderKind::Virtual : FolderKind::Path;
    entry.icon = !folder                            ? FolderIcon::File
                 : IsSpecial(whole, CSIDL_NETWORK)  ? FolderIcon::Network
                 : IsSpecial(whole, CSIDL_PERSONAL) ? FolderIcon::User
                                                    : FolderIcon::Folder;
}

bool ReadEntry(IShellFolder* parent, PCIDLIST_ABSOLUTE parentPidl, PCUITEMID_CHILD item,
               FolderContent content, FolderEntry& entry) {
    SFGAOF attributes = SFGAO_FOLDER | SFGAO_FILESYSTEM | SFGAO_STREAM;
    if (FAILED(parent->GetAttributesOf(1, &item, &attributes)))
        return false;
    const bool folder = (attributes & SFGAO_FOLDER) && !(attributes & SFGAO_STREAM); // archives are files
    if (!folder && content == FolderContent::FoldersOnly)
        return false;
    entry.name = NameOf(parent, item, SHGDN_INFOLDER);
    if (entry.name.empty())
        return false;
    if (attributes & SFGAO_FILESYSTEM)
        entry.path = NameOf(parent, item, SHGDN_FORPARSING);
    if (entry.path.starts_with(L"::"))
        entry.path.clear();
    Pidl whole(ILCombine(parentPidl, item));
    Classify(entry, whole.get(), folder);
    if (entry.kind == FolderKind::Virtual)
        entry.pidl = std::move(whole);
    return true;
}

std::wstring LabelOf(const std::wstring& root) {
    wchar_t label[MAX_PATH + 1] = L"";
    if (GetDriveTypeW(root.c_str()) != DRIVE_FIXED ||
        !GetVolumeInformationW(root.c_str(), label, MAX_PATH, nullptr, nullptr, nullptr, nullptr, 0))
        return std::wstring();
    return label;
}

} // namespace

bool ListShellItems(IShellFolder* folder, PCIDLIST_ABSOLUTE pidl, FolderContent content,
                    std::vector<FolderEntry>& entries) {
    ComPtr<IEnumIDList> items;
    const SHCONTF wanted =
        SHCONTF_FOLDERS | (content == FolderContent::FoldersAndFiles ? SHCONTF_NONFOLDERS : 0);
    const HRESULT found = folder->EnumObjects(nullptr, wanted, &items);
    if (FAILED(found) || found == S_FALSE) // S_FALSE: there is nothing to enumerate
        return found == S_FALSE;
    PITEMID_CHILD next = nullptr;
    while (items->Next(1, &next, nullptr) == S_OK) {
        const ChildPidl item(next);
        FolderEntry entry;
        if (ReadEntry(folder, pidl, item.get(), content, entry))
            entries.push_back(std::move(entry));
    }
    return true;
}

bool ListDesktop(FolderContent content, std::vector<FolderEntry>& entries) {
    const ComScope com;
    ComPtr<IShellFolder> desktop;
    const Pidl pidl = SpecialFolder(CSIDL_DESKTOP);
    if (!pidl || FAILED(SHGetDesktopFolder(&desktop)))
        return false;
    return ListShellItems(desktop.Get(), pidl.get(), content, entries);
}

bool ListDrives(std::vector<FolderEntry>& entries) {
    DWORD drives = GetLogicalDrives();
    for (wchar_t letter = L'A'; drives; ++letter, drives >>= 1) {
        if (!(drives & 1))
            continue;
        FolderEntry entry;
        const std::wstring drive = {letter, L':'};
        entry.path = drive + L"\\";
        const std::wstring label = LabelOf(entry.path);
        entry.name = drive;
        if (!label.empty())
            entry.name.insert(0, L" (").insert(0, label).append(L")");
        entry.icon = FolderIcon::Drive;
        entries.push_back(std::move(entry));
    }
    return true;
}

bool ListShellFolder(PCIDLIST_ABSOLUTE pidl, FolderContent content, std::vector<FolderEntry>& entries) {
    const ComScope com;
    ComPtr<IShellFolder> desktop;
    ComPtr<IShellFolder> folder;
    if (!pidl || FAILED(SHGetDesktopFolder(&desktop)) ||
        FAILED(desktop->BindToObject(pidl, nullptr, IID_IShellFolder, reinterpret_cast<void**>(&folder))))
        return false;
    return ListShellItems(folder.Get(), pidl, content, entries);
}

std::wstring DesktopName() {
    const ComScope com;
    const Pidl pidl = SpecialFolder(CSIDL_DESKTOP);
    if (!pidl)
        return std::wstring();
    SHFILEINFOW info = {};
    SHGetFileInfoW(reinterpret_cast<LPCWSTR>(pidl.get()), 0, &info, sizeof(info),
                   SHGFI_PIDL | SHGFI_DISPLAYNAME);
    return info.szDisplayName;
}

} // namespace _qv_commonctrl
