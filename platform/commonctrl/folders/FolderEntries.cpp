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

FolderOutcome OutcomeOf(DWORD error) {
    switch (error) {
    case ERROR_NO_MORE_FILES:
    case ERROR_FILE_NOT_FOUND: // the root of an empty drive holds not even dots
        return FolderOutcome::Listed;
    case ERROR_ACCESS_DENIED:
    case ERROR_NETWORK_ACCESS_DENIED:
    case ERROR_LOGON_FAILURE:
        return FolderOutcome::Denied;
    case ERROR_PATH_NOT_FOUND:
    case ERROR_DIRECTORY:
    case ERROR_BAD_NET_NAME:
        return FolderOutcome::Gone;
    default:
        return FolderOutcome::NoAnswer;
    }
}

FolderOutcome ListPath(const std::wstring& folder, FolderContent content, const FolderSink& sink) {
    WIN32_FIND_DATAW data = {};
    const auto search =
        Valid<FindHandle>(FindFirstFileExW(LongPath(JoinPath(folder, L"*")).c_str(), FindExInfoBasic, &data,
                                           FindExSearchNameMatch, nullptr, FIND_FIRST_EX_LARGE_FETCH));
    if (!search)
        return OutcomeOf(GetLastError());
    do {
        const bool folderEntry = data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY;
        if (IsDotName(data.cFileName) || (data.dwFileAttributes & FILE_ATTRIBUTE_HIDDEN) ||
            (!folderEntry && content == FolderContent::FoldersOnly))
            continue;
        if (!sink(EntryOf(data)))
            return FolderOutcome::NoAnswer;
    } while (FindNextFileW(search.get(), &data));
    return OutcomeOf(GetLastError());
}

// Entries of the upper name space, which come all at once.
FolderResult GiveAll(bool listed, std::vector<FolderEntry>& entries, const FolderSink& sink) {
    for (FolderEntry& entry : entries)
        sink(std::move(entry));
    return {listed ? FolderOutcome::Listed : FolderOutcome::NoAnswer};
}

} // namespace

FolderResult ListFolder(const FolderRequest& request, const FolderSink& sink) {
    const FolderSink byName = [&sink](FolderEntry&& entry) {
        entry.sortKey = FolderSortKey(entry);
        return sink(std::move(entry));
    };
    std::vector<FolderEntry> entries;
    switch (request.kind) {
    case FolderKind::Desktop: // the shell's own order: computer before documents
        return GiveAll(ListDesktop(request.content, entries), entries, sink);
    case FolderKind::Computer:
        return GiveAll(ListDrives(entries), entries, sink);
    case FolderKind::Virtual:
        return GiveAll(ListShellFolder(request.pidl.get(), request.content, entries), entries, byName);
    case FolderKind::Path: {
        const FolderResult host = AskFolderLister(request.path, request.content, byName);
        return host.byHost ? host : FolderResult{ListPath(request.path, request.content, byName)};
    }
    case FolderKind::File:
        break;
    }
    return {};
}

} // namespace _qv_commonctrl
