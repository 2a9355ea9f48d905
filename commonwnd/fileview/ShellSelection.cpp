#include "ShellSelection.h"

#include "support/Handles.h"

#include <shellapi.h>

#include <cstdint>
#include <utility>

namespace _qv_commonwnd {

namespace {

constexpr int kMostTextUnits = 1024;
constexpr std::uint32_t kOpaque = 0xFF000000;

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

std::uint32_t PixelOf(COLORREF color) {
    return kOpaque | static_cast<std::uint32_t>(GetRValue(color)) << 16 |
           static_cast<std::uint32_t>(GetGValue(color)) << 8 | GetBValue(color);
}

// Whether the shell shows the extension of a type it knows; the file need not exist.
bool ShowsKnownExtensions() {
    constexpr wchar_t known[] = L"a.txt";
    SHFILEINFOW info = {};
    return ::SHGetFileInfoW(known, FILE_ATTRIBUTE_NORMAL, &info, sizeof info,
                            SHGFI_USEFILEATTRIBUTES | SHGFI_DISPLAYNAME) &&
           CString(info.szDisplayName) == known;
}

int ExtensionDot(const CString& name) {
    const int dot = name.ReverseFind(L'.');
    return dot + 1 < name.GetLength() ? dot : -1;
}

CString NameOf(const CString& path) {
    return path.Mid(path.ReverseFind(L'\\') + 1);
}

OwnedBitmap OnePixel(COLORREF color) {
    BITMAPINFO info = {};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = 1;
    info.bmiHeader.biHeight = -1; // top row first
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    const std::uint32_t pixel = PixelOf(color);
    const WindowDC screen(nullptr);
    return OwnedBitmap(
        ::CreateDIBitmap(screen.Get(), &info.bmiHeader, CBM_INIT, &pixel, &info, DIB_RGB_COLORS));
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

const CString& CShownFolder::PathFor(const CFileDialog& dialog) {
    Ask(dialog);
    return m_path;
}

bool CShownFolder::ShowsExtensions(const CFileDialog& dialog) {
    Ask(dialog);
    return m_showsExtensions;
}

void CShownFolder::Ask(const CFileDialog& dialog) {
    if (std::exchange(m_asked, true))
        return;
    m_path = dialog.GetFolderPath();
    if (!m_path.IsEmpty() && m_path.Right(1) != L"\\")
        m_path += L"\\";
    m_showsExtensions = ShowsKnownExtensions();
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

void DropEdge(HWND list) {
    const LONG_PTR style = ::GetWindowLongPtrW(list, GWL_EXSTYLE);
    if (!(style & WS_EX_CLIENTEDGE))
        return;
    ::SetWindowLongPtrW(list, GWL_EXSTYLE, style & ~static_cast<LONG_PTR>(WS_EX_CLIENTEDGE));
    ::SetWindowPos(list, nullptr, 0, 0, 0, 0,
                   SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
}

void SetPlainGround(HWND list, COLORREF color) {
    OwnedBitmap pixel = OnePixel(color);
    if (!pixel)
        return;
    LVBKIMAGEW image = {};
    image.ulFlags = LVBKIF_SOURCE_HBITMAP;
    image.hbm = pixel.get();
    if (::SendMessageW(list, LVM_SETBKIMAGEW, 0, reinterpret_cast<LPARAM>(&image)))
        pixel.release(); // the list's
}

} // namespace _qv_commonwnd
