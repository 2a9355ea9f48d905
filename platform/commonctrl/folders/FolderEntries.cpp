#include "FolderEntries.h"

#include "FolderLister.h"
#include "FolderOrder.h"
#include "FolderPath.h"
#include "ShellEntries.h"

#include <cwchar>

namespace _qv_commonctrl {

namespace {

bool IsDotName(const wchar_t* name) {
    return wcscmp(name, L".") == 0 || wcscmp(name, L"..") == 0;
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
    const auto search =
        Valid<FindHandle>(FindFirstFileExW(SearchPattern(folder).c_str(), FindExInfoBasic, &data,
                                           FindExSearchNameMatch, nullptr, FIND_FIRST_EX_LARGE_FETCH));
    if (!search)
        return GetLastError() == ERROR_FILE_NOT_FOUND; // the root of an empty drive holds not even dots
    do {
        const bool folderEntry = data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY;
        if (IsDotName(data.cFileName) || (data.dwFileAttributes & FILE_ATTRIBUTE_HIDDEN) ||
            (!folderEntry && content == FolderContent::FoldersOnly))
            continue;
        sink(EntryOf(data));
    } while (FindNextFileW(search.get(), &data));
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

} // namespace _qv_commonctrl
