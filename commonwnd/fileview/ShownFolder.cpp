#include "ShownFolder.h"

#include "ShellItems.h"

#include <shellapi.h>
#include <shlobj.h>

#include <utility>

namespace _qv_commonwnd {

namespace {

constexpr DWORD kAllItems = SHCONTF_FOLDERS | SHCONTF_NONFOLDERS | SHCONTF_INCLUDEHIDDEN;

// Whether the shell shows the extension of a type it knows; the file need not exist.
bool ShowsKnownExtensions() {
    constexpr wchar_t known[] = L"a.txt";
    SHFILEINFOW info = {};
    return ::SHGetFileInfoW(known, FILE_ATTRIBUTE_NORMAL, &info, sizeof info,
                            SHGFI_USEFILEATTRIBUTES | SHGFI_DISPLAYNAME) &&
           CString(info.szDisplayName) == known;
}

} // namespace

const CString& CShownFolder::PathFor(const CFileDialog& dialog) {
    Ask(dialog);
    return m_path;
}

bool CShownFolder::ShowsExtensions(const CFileDialog& dialog) {
    Ask(dialog);
    return m_showsExtensions;
}

CString CShownFolder::PathOfItem(const CFileDialog& dialog, const CString& shown) {
    const OwnedItemId folder = FolderInView(::GetParent(dialog.m_hWnd));
    const OwnedItemId item = ChildNamed(folder.get(), shown, kAllItems);
    wchar_t* raw = nullptr;
    if (!item || FAILED(::SHGetNameFromIDList(item.get(), SIGDN_FILESYSPATH, &raw)))
        return CString();
    const TaskText path(raw);
    return CString(path.get());
}

void CShownFolder::Ask(const CFileDialog& dialog) {
    if (std::exchange(m_asked, true))
        return;
    m_path = dialog.GetFolderPath();
    if (!m_path.IsEmpty() && m_path.Right(1) != L"\\")
        m_path += L"\\";
    m_showsExtensions = ShowsKnownExtensions();
}

} // namespace _qv_commonwnd
