#include "BrowseCallback.h"

#include "IUXFolderFilter.h"
#include "QVPathBrowseWnd.h"
#include "ShellShortcut.h"
#include "support/Handles.h"
#include "QVPathDialog.h"

#include <io.h>

#include <string>
#include <string_view>

namespace _qv_commonwnd {

CWnd* g_pBrowseOkWnd = nullptr;

namespace {

constexpr wchar_t kShortcutPattern[] = L"*.lnk";
constexpr int kExists = 0; // _waccess: whether it is there at all

// One filter serves all choosers; it is never released, since the shell may keep it as long as it likes.
IUXFolderFilter* g_pFolderFilter = nullptr;

void OnInitialized(HWND dialog, CQVPathDialog* owner) {
    if (!owner)
        return;
    if (::_waccess(owner->m_strPath, kExists) == 0)
        ::SendMessageW(dialog, BFFM_SETSELECTIONW, TRUE,
                       reinterpret_cast<LPARAM>(owner->m_strPath.GetString()));
    if (owner->m_pBrowseWnd && !owner->m_pBrowseWnd->m_hWnd)
        owner->m_pBrowseWnd->TakeOver(dialog);
}

bool IsDriveRoot(const CString& path) {
    constexpr int kDrives = 26;
    constexpr int kRootUnits = 4; // C:\ and its end
    wchar_t roots[kDrives * kRootUnits + 1] = L"";
    if (::GetLogicalDriveStringsW(static_cast<DWORD>(std::size(roots) - 1), roots) >= std::size(roots))
        return false;
    for (const wchar_t* root = roots; *root; root += std::wstring_view(root).size() + 1) {
        if (path == root)
            return true;
    }
    return false;
}

void OnSelectionChanged(PCIDLIST_ABSOLUTE item) {
    if (!g_pBrowseOkWnd) // what is found out below would change nothing, and a dead drive would take its time
        return;
    g_pBrowseOkWnd->EnableWindow(FALSE);
    wchar_t path[MAX_PATH] = L"";
    if (!item || !::SHGetPathFromIDListW(item, path))
        return;
    const CString chosen = ShortcutTargetOrSelf(path);
    if (IsFoundFolder(chosen) || IsDriveRoot(chosen))
        g_pBrowseOkWnd->EnableWindow(TRUE);
}

void OnSite(IUnknown* unknown) {
    ComHandle<IFolderFilterSite> site;
    if (!unknown || FAILED(unknown->QueryInterface(IID_IFolderFilterSite, site.ReceiveAny())))
        return;
    if (!g_pFolderFilter) {
        g_pFolderFilter = new IUXFolderFilter;
        g_pFolderFilter->AddRef();
    }
    g_pFolderFilter->m_pszPattern = kShortcutPattern;
    site->SetFilter(g_pFolderFilter);
}

} // namespace

int CALLBACK BrowseCallback(HWND dialog, UINT message, LPARAM lParam, LPARAM data) {
    try {
        switch (message) {
        case BFFM_INITIALIZED:
            OnInitialized(dialog, reinterpret_cast<CQVPathDialog*>(data));
            break;
        case BFFM_SELCHANGED:
            OnSelectionChanged(reinterpret_cast<PCIDLIST_ABSOLUTE>(lParam));
            break;
        case BFFM_IUNKNOWN:
            OnSite(reinterpret_cast<IUnknown*>(lParam));
            break;
        }
    } catch (const std::exception&) { // memory ran out: the system's dialog goes on as it is
        return 0;
    }
    return 0;
}

} // namespace _qv_commonwnd
