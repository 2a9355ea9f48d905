#include "QVFolderEntries.h"

#include "QVFolderHook.h"
#include "QVShellEntries.h"

#include <algorithm>

namespace _qv_commonctrl {

namespace {

bool IsDotName(const wchar_t* name) {
    return wcscmp(name, L".") == 0 || wcscmp(name, L"..") == 0;
}

// Paths beyond the classic limit need the prefix that switches the limit off.
std::wstring SearchPattern(const std::wstring& folder) {
    const std::wstring pattern = JoinPath(folder, L"*");
    if (pattern.size() < MAX_PATH || pattern.starts_with(L"\\\\"))
        return pattern;
    return L"\\\\?\\" + pattern;
}

FolderEntry EntryOf(const WIN32_FIND_DATAW& data) {
    FolderEntry entry;
    entry.name = data.cFileName;
    const bool folder = data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY;
    entry.kind = folder ? FolderKind::Path : FolderKind::File;
    entry.icon = folder ? FolderIcon::Folder : FolderIcon::File;
    entry.size = static_cast<uint64_t>(data.nFileSizeHigh) << 32 | data.nFileSizeLow;
    entry.modified = data.ftLastWriteTime;
    return entry;
}

bool ListPath(const std::wstring& folder, FolderContent content, std::vector<FolderEntry>& entries) {
    bool answered = false;
    const bool listed = AskFolderLister(folder, content, entries, answered);
    if (answered)
        return listed;
    WIN32_FIND_DATAW data = {};
    const HANDLE search = FindFirstFileExW(SearchPattern(folder).c_str(), FindExInfoBasic, &data,
                                           FindExSearchNameMatch, nullptr, FIND_FIRST_EX_LARGE_FETCH);
    if (search == INVALID_HANDLE_VALUE)
        return GetLastError() == ERROR_FILE_NOT_FOUND; // the root of an empty drive holds not even dots
    do {
        const bool folderEntry = data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY;
        if (IsDotName(data.cFileName) || (data.dwFileAttributes & FILE_ATTRIBUTE_HIDDEN) ||
            (!folderEntry && content == FolderContent::FoldersOnly))
            continue;
        entries.push_back(EntryOf(data));
    } while (FindNextFileW(search, &data));
    const bool complete = GetLastError() == ERROR_NO_MORE_FILES;
    FindClose(search);
    return complete;
}

// A key that compares as bytes as the names compare for the user: made once a name, it makes sorting cheap.
std::string SortKey(const std::wstring& name) {
    constexpr DWORD kPlain = LCMAP_SORTKEY | NORM_IGNORECASE;
    for (const DWORD flags : {kPlain | SORT_DIGITSASNUMBERS, kPlain}) {
        char key[1024];
        const int length =
            LCMapStringEx(LOCALE_NAME_USER_DEFAULT, flags, name.c_str(), static_cast<int>(name.size()),
                          reinterpret_cast<LPWSTR>(key), sizeof(key), nullptr, nullptr, 0);
        if (length > 0)
            return std::string(key, static_cast<std::size_t>(length));
    }
    return std::string(reinterpret_cast<const char*>(name.data()), name.size() * sizeof(wchar_t));
}

void Sort(std::vector<FolderEntry>& entries) {
    struct Keyed {
        bool file;
        std::string key;
        std::size_t index;
        bool operator<(const Keyed& other) const {
            return file != other.file ? other.file : key != other.key ? key < other.key : index < other.index;
        }
    };
    std::vector<Keyed> order;
    order.reserve(entries.size());
    for (std::size_t i = 0; i < entries.size(); ++i)
        order.push_back({entries[i].kind == FolderKind::File, SortKey(entries[i].name), i});
    std::sort(order.begin(), order.end());
    std::vector<FolderEntry> sorted;
    sorted.reserve(entries.size());
    for (const Keyed& keyed : order)
        sorted.push_back(std::move(entries[keyed.index]));
    entries.swap(sorted);
}

} // namespace

bool ListFolder(const FolderRequest& request, std::vector<FolderEntry>& entries) {
    switch (request.kind) {
    case FolderKind::Desktop:
        return ListDesktop(request.content, entries); // the shell's own order: computer before documents
    case FolderKind::Computer:
        return ListDrives(entries);
    case FolderKind::Virtual:
        if (!ListShellFolder(request.pidl.get(), request.content, entries))
            return false;
        break;
    case FolderKind::Path:
        if (!ListPath(request.path, request.content, entries))
            return false;
        break;
    case FolderKind::File:
        return false;
    }
    Sort(entries);
    return true;
}

std::wstring JoinPath(const std::wstring& folder, const std::wstring& name) {
    return folder.ends_with(L'\\') ? folder + name : folder + L"\\" + name;
}

std::wstring NormalFolderPath(const std::wstring& path) {
    constexpr std::size_t kDriveRootUnits = 3; // C:\ and its like
    std::wstring normal = path;
    std::replace(normal.begin(), normal.end(), L'/', L'\\');
    while (normal.size() > 1 && normal.back() == L'\\')
        normal.pop_back();
    if (normal.size() == kDriveRootUnits - 1 && normal[1] == L':')
        normal += L'\\';
    return normal;
}

} // namespace _qv_commonctrl
