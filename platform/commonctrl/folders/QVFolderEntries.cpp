#include "QVFolderEntries.h"

#include "QVFolderHook.h"
#include "QVFolderOrder.h"
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

bool ListPath(const std::wstring& folder, FolderContent content, const FolderSink& sink) {
    bool answered = false;
    const bool listed = AskFolderLister(folder, content, sink, answered);
    if (answered)
        return listed;
    WIN32_FIND_DATAW data = {};
    const HANDLE search = FindFirstFileExW(SearchPattern(folder).c_str(), FindExInfoBasic, &data,
                                           FindExSearchNameMatch, nullptr, FIND_FIRST_EX_LARGE_FETCH);
    if (search == INVALID_HANDLE_VALUE)
        return GetLastError() == ERROR_FILE_NOT_FOUND; // the root of an empty drive holds not even dots
    const std::unique_ptr<void, decltype(&FindClose)> closing(search,
                                                              &FindClose); // also when memory runs out
    do {
        const bool folderEntry = data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY;
        if (IsDotName(data.cFileName) || (data.dwFileAttributes & FILE_ATTRIBUTE_HIDDEN) ||
            (!folderEntry && content == FolderContent::FoldersOnly))
            continue;
        sink(EntryOf(data));
    } while (FindNextFileW(search, &data));
    return GetLastError() == ERROR_NO_MORE_FILES;
}

// Entries of the upper name space, which come all at once.
void GiveAll(std::vector<FolderEntry>& entries, const FolderSink& sink) {
    for (FolderEntry& entry : entries)
        sink(std::move(entry));
}

} // namespace

bool ListFolder(const FolderRequest& request, const FolderSink& sink) {
    const FolderSink byName = [&sink](FolderEntry&& entry) {
        entry.sortKey = FolderSortKey(entry);
        sink(std::move(entry));
    };
    std::vector<FolderEntry> entries;
    bool listed = false;
    switch (request.kind) {
    case FolderKind::Desktop:
        listed = ListDesktop(request.content, entries); // the shell's own order: computer before documents
        GiveAll(entries, sink);
        return listed;
    case FolderKind::Computer:
        listed = ListDrives(entries);
        GiveAll(entries, sink);
        return listed;
    case FolderKind::Virtual:
        listed = ListShellFolder(request.pidl.get(), request.content, entries);
        GiveAll(entries, byName);
        return listed;
    case FolderKind::Path:
        return ListPath(request.path, request.content, byName);
    case FolderKind::File:
        break;
    }
    return false;
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
