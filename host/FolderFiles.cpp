#include "FolderFiles.h"

#include <shlwapi.h>

#include <algorithm>
#include <vector>

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

void ListFolderFiles(const CString& folder, const CString& pattern, CStringArray& files) {
    files.RemoveAll();
    WIN32_FIND_DATAW found = {};
    const HANDLE search = ::FindFirstFileW(folder + L"\\*", &found);
    if (search == INVALID_HANDLE_VALUE)
        return;
    std::vector<CString> names;
    do {
        if (!(found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) &&
            ::PathMatchSpecW(found.cFileName, pattern))
            names.emplace_back(found.cFileName);
    } while (::FindNextFileW(search, &found));
    ::FindClose(search);
    std::sort(names.begin(), names.end(),
              [](const CString& a, const CString& b) { return ::StrCmpLogicalW(a, b) < 0; });
    for (const CString& name : names)
        files.Add(folder + L"\\" + name);
}
