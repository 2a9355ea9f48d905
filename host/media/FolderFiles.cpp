#include "FolderFiles.h"

#include <shlwapi.h>

#include <algorithm>

std::vector<FolderFile> FilesOfFolder(const CString& folder) {
    std::vector<FolderFile> files;
    WIN32_FIND_DATAW found = {};
    const HANDLE search = ::FindFirstFileW(folder + L"\\*", &found);
    if (search == INVALID_HANDLE_VALUE)
        return files;
    do {
        if (!(found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY))
            files.push_back({folder + L"\\" + found.cFileName, found.cFileName,
                             static_cast<LONGLONG>(found.nFileSizeHigh) << 32 | found.nFileSizeLow});
    } while (::FindNextFileW(search, &found));
    ::FindClose(search);
    return files;
}

std::vector<CString> FilesOfType(const CString& folder, const CString& pattern) {
    std::vector<FolderFile> files = FilesOfFolder(folder);
    std::erase_if(files, [&](const FolderFile& file) { return !::PathMatchSpecW(file.name, pattern); });
    std::sort(files.begin(), files.end(),
              [](const FolderFile& a, const FolderFile& b) { return ::StrCmpLogicalW(a.name, b.name) < 0; });
    std::vector<CString> paths;
    for (const FolderFile& file : files)
        paths.push_back(file.path);
    return paths;
}

CString PatternOfType(const CString& filter, const CString& type) {
    CString rest = filter;
    for (;;) {
        const int afterName = rest.Find(L'|');
        const int afterPattern = afterName < 0 ? -1 : rest.Find(L'|', afterName + 1);
        if (afterPattern < 0)
            return L"*.*";
        const CString name = rest.Left(afterName);
        if (!name.IsEmpty() && type.Left(name.GetLength()) == name)
            return rest.Mid(afterName + 1, afterPattern - afterName - 1);
        rest = rest.Mid(afterPattern + 1);
    }
}
