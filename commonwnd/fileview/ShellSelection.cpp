#include "ShellSelection.h"

#include <shellapi.h>

namespace _qv_commonwnd {

namespace {

constexpr int kMostTextUnits = 1024;
constexpr wchar_t kWildcards[] = L"*?";

// A plain question first: a search takes ten times as long.
DWORD AttributesOf(const CString& path) {
    if (path.IsEmpty())
        return INVALID_FILE_ATTRIBUTES;
    const bool isPlain = path.FindOneOf(kWildcards) < 0 && path.Right(1) != L"\\";
    const DWORD attributes = isPlain ? ::GetFileAttributesW(path) : INVALID_FILE_ATTRIBUTES;
    if (attributes != INVALID_FILE_ATTRIBUTES)
        return attributes;
    WIN32_FIND_DATAW found = {}; // finds files in exclusive use, too
    const HANDLE search = ::FindFirstFileW(path, &found);
    if (search == INVALID_HANDLE_VALUE)
        return INVALID_FILE_ATTRIBUTES;
    ::FindClose(search);
    return found.dwFileAttributes;
}

void Take(SelectedItem& item, DWORD attributes) {
    if (attributes == INVALID_FILE_ATTRIBUTES)
        return;
    item.kind = attributes == FILE_ATTRIBUTE_DIRECTORY ? SelectedKind::Folder : SelectedKind::File;
    item.isFolder = (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

bool HasExtension(const CString& name) {
    const int dot = name.ReverseFind(L'.');
    return dot >= 0 && dot + 1 < name.GetLength();
}

bool IsFile(DWORD attributes) {
    return attributes != INVALID_FILE_ATTRIBUTES && !(attributes & FILE_ATTRIBUTE_DIRECTORY);
}

bool Shows(const CString& path, const CString& name) {
    SHFILEINFOW info = {};
    return ::SHGetFileInfoW(path, 0, &info, sizeof info, SHGFI_DISPLAYNAME) && name == info.szDisplayName;
}

CString TextOfRow(HWND list, int row) {
    wchar_t text[kMostTextUnits] = L"";
    LVITEMW record = {};
    record.pszText = text;
    record.cchTextMax = kMostTextUnits;
    ::SendMessageW(list, LVM_GETITEMTEXTW, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&record));
    return CString(record.pszText);
}

// Both of the system's list of small pictures; -1: unknown.
int PictureOfRow(HWND list, int row) {
    LVITEMW record = {};
    record.mask = LVIF_IMAGE;
    record.iItem = row;
    return ::SendMessageW(list, LVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&record)) ? record.iImage : -1;
}
int PictureOf(const CString& path) {
    SHFILEINFOW info = {};
    return ::SHGetFileInfoW(path, 0, &info, sizeof info, SHGFI_SYSICONINDEX | SHGFI_SMALLICON) ? info.iIcon
                                                                                               : -1;
}

// Several items of one name: a folder and a file without its extension differ in their picture.
CString WithPictureOf(HWND list, int row, const std::vector<CString>& paths) {
    const int picture = PictureOfRow(list, row);
    for (const CString& path : paths)
        if (PictureOf(path) == picture)
            return path;
    return paths.front();
}

CString PathOfRow(const CFileDialog& dialog, CShownFolder& folder, HWND list, int row, const CString& name) {
    const CString& folderPath = folder.PathFor(dialog);
    const CString inFolder = folderPath + name;
    if (!folderPath.IsEmpty()) {
        // A file that the list names in full needs no further question.
        if (HasExtension(name) && folder.ShowsExtensions(dialog) && IsFile(AttributesOf(inFolder)))
            return inFolder;
        const std::vector<CString> paths = PathsShownAs(folderPath, name);
        if (!paths.empty())
            return paths.size() == 1 ? paths.front() : WithPictureOf(list, row, paths);
    }
    const CString found = folder.PathOfItem(dialog, name);
    return found.IsEmpty() ? inFolder : found;
}

} // namespace

std::vector<CString> PathsShownAs(const CString& folder, const CString& shown) {
    std::vector<CString> paths;
    const CString plain = folder + shown;
    if (AttributesOf(plain) != INVALID_FILE_ATTRIBUTES)
        paths.push_back(plain);
    WIN32_FIND_DATAW found = {};
    const HANDLE search = ::FindFirstFileW(plain + L".*", &found);
    if (search == INVALID_HANDLE_VALUE)
        return paths;
    do {
        const CString path = folder + found.cFileName;
        if (path.CompareNoCase(plain) != 0 && Shows(path, shown))
            paths.push_back(path);
    } while (::FindNextFileW(search, &found));
    ::FindClose(search);
    return paths;
}

SelectedItem FindSelectedItem(const CFileDialog& dialog, CShownFolder& folder, HWND list) {
    SelectedItem item;
    const LRESULT row = ::SendMessageW(list, LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED);
    if (row < 0)
        return item;
    item.name = TextOfRow(list, static_cast<int>(row));
    item.path = PathOfRow(dialog, folder, list, static_cast<int>(row), item.name);
    Take(item, AttributesOf(item.path));
    return item;
}

} // namespace _qv_commonwnd
