#include "ShellSelection.h"

#include <cstdint>

namespace _qv_commonwnd {

namespace {

constexpr int kMostTextUnits = 1024;
constexpr std::uint32_t kOpaque = 0xFF000000;

void LookUp(SelectedItem& item) {
    WIN32_FIND_DATAW found = {};
    const HANDLE search = item.path.IsEmpty() ? INVALID_HANDLE_VALUE : ::FindFirstFileW(item.path, &found);
    if (search == INVALID_HANDLE_VALUE)
        return;
    ::FindClose(search);
    item.kind =
        found.dwFileAttributes == FILE_ATTRIBUTE_DIRECTORY ? SelectedKind::Folder : SelectedKind::File;
    item.isFolder = (found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

std::uint32_t PixelOf(COLORREF color) {
    return kOpaque | static_cast<std::uint32_t>(GetRValue(color)) << 16 |
           static_cast<std::uint32_t>(GetGValue(color)) << 8 | GetBValue(color);
}

HBITMAP OnePixel(COLORREF color) {
    BITMAPINFO info = {};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = 1;
    info.bmiHeader.biHeight = -1; // top row first
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    const std::uint32_t pixel = PixelOf(color);
    const HDC screen = ::GetDC(nullptr);
    const HBITMAP bitmap = ::CreateDIBitmap(screen, &info.bmiHeader, CBM_INIT, &pixel, &info, DIB_RGB_COLORS);
    ::ReleaseDC(nullptr, screen);
    return bitmap;
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
    const CString name = path.Mid(path.ReverseFind(L'\\') + 1);
    return name.CompareNoCase(shown) == 0 ||
           name.Left(shown.GetLength() + 1).CompareNoCase(shown + L".") == 0;
}

SelectedItem FindSelectedItem(const CFileDialog& dialog, HWND list, SelectionCount count) {
    SelectedItem item;
    const CString shown = FirstSelectedText(list);
    if (count == SelectionCount::One) {
        item.path = dialog.GetPathName();
        item.name = dialog.GetFileTitle();
    }
    // The name field keeps the last file's name while a folder is selected, and all names of several.
    if (item.path.IsEmpty() || dialog.GetFileExt().IsEmpty() || !IsPathOf(item.path, shown)) {
        CString folder = dialog.GetFolderPath();
        if (!folder.IsEmpty() && folder.Right(1) != L"\\")
            folder += L"\\";
        item.name = shown;
        item.path = folder + item.name;
    }
    LookUp(item);
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
    const HBITMAP pixel = OnePixel(color);
    if (!pixel)
        return;
    LVBKIMAGEW image = {};
    image.ulFlags = LVBKIF_SOURCE_HBITMAP;
    image.hbm = pixel;
    if (!::SendMessageW(list, LVM_SETBKIMAGEW, 0, reinterpret_cast<LPARAM>(&image)))
        ::DeleteObject(pixel);
}

} // namespace _qv_commonwnd
