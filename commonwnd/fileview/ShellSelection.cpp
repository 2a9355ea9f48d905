#include "ShellSelection.h"

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

int ExtensionDot(const CString& name) {
    const int dot = name.ReverseFind(L'.');
    return dot + 1 < name.GetLength() ? dot : -1;
}

CString NameOf(const CString& path) {
    return path.Mid(path.ReverseFind(L'\\') + 1);
}

} // namespace

CString FirstSelectedText(HWND list) {
    const LRESULT item = ::SendMessageW(list, LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED);
    if (item < 0)
        return CString();
    wchar_t text[kMostTextUnits] = L"";
    LVITEMW record = {};
    record.pszText = text;
    record.cchTextMax = kMostTextUnits;
    ::SendMessageW(list, LVM_GETITEMTEXTW, static_cast<WPARAM>(item), reinterpret_cast<LPARAM>(&record));
    return CString(record.pszText);
}

bool IsPathOf(const CString& path, const CString& shown) {
    const CString name = NameOf(path);
    return name.CompareNoCase(shown) == 0 ||
           name.Left(shown.GetLength() + 1).CompareNoCase(shown + L".") == 0;
}

SelectedItem FindSelectedItem(const CFileDialog& dialog, CShownFolder& folder, HWND list,
                              SelectionCount count) {
    SelectedItem item;
    const CString shown = FirstSelectedText(list);
    const CString& folderPath = folder.PathFor(dialog);
    // A file that the list names in full is the selected one, and the dialog would say the same.
    if (!folderPath.IsEmpty() && ExtensionDot(shown) >= 0 && folder.ShowsExtensions(dialog)) {
        item.path = folderPath + shown;
        item.name = shown.Left(ExtensionDot(shown));
        Take(item, AttributesOf(item.path));
        if (item.kind == SelectedKind::File && !item.isFolder)
            return item;
        item = SelectedItem();
    }
    if (count == SelectionCount::One)
        item.path = dialog.GetPathName();
    item.name = NameOf(item.path);
    // The name field keeps the last file's name while a folder is selected, and all names of several.
    if (ExtensionDot(item.name) >= 0 && IsPathOf(item.path, shown)) {
        item.name = item.name.Left(ExtensionDot(item.name));
    } else {
        item.name = shown;
        item.path = folderPath + item.name;
    }
    Take(item, AttributesOf(item.path));
    return item;
}

} // namespace _qv_commonwnd
