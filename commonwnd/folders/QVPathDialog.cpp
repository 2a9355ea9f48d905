#include "QVPathDialog.h"

#include "BrowseCallback.h"
#include "QVPathBrowseWnd.h"
#include "ShellShortcut.h"
#include "support/Handles.h"
#include "support/QuietErrors.h"

#include <LWSupportAPI.h>

#include <shlobj.h>

namespace _qv_commonwnd {

namespace {

constexpr UINT kBrowseFlags = BIF_RETURNONLYFSDIRS | BIF_STATUSTEXT | BIF_NEWDIALOGSTYLE;

// The new style of the system's dialog needs OLE on its thread; a host that has it already keeps its own.
class OleScope {
  public:
    OleScope() : m_result(::OleInitialize(nullptr)) {}
    ~OleScope() {
        if (SUCCEEDED(m_result))
            ::OleUninitialize();
    }
    OleScope(const OleScope&) = delete;
    OleScope& operator=(const OleScope&) = delete;

  private:
    HRESULT m_result;
};

} // namespace

CQVPathDialog::CQVPathDialog(CWnd* pParent)
    : m_strTitle(LWLoadString(L"IDS_COMMON_CHOOSE_PATH")), m_bShowNewFolder(1), m_pParent(pParent),
      m_pBrowseWnd(new CQVPathBrowseWnd) {
}

CQVPathDialog::CQVPathDialog(const CQVPathDialog& other)
    : m_strTitle(other.m_strTitle), m_strPath(other.m_strPath), m_bShowNewFolder(other.m_bShowNewFolder),
      m_pParent(other.m_pParent), m_pBrowseWnd(other.m_pBrowseWnd) {
    if (m_pBrowseWnd)
        m_pBrowseWnd->Share();
}

CQVPathDialog& CQVPathDialog::operator=(const CQVPathDialog& other) {
    if (this == &other)
        return *this;
    if (other.m_pBrowseWnd) // first: both may share one already
        other.m_pBrowseWnd->Share();
    if (m_pBrowseWnd)
        m_pBrowseWnd->Drop();
    m_strTitle = other.m_strTitle;
    m_strPath = other.m_strPath;
    m_bShowNewFolder = other.m_bShowNewFolder;
    m_pParent = other.m_pParent;
    m_pBrowseWnd = other.m_pBrowseWnd;
    return *this;
}

CQVPathDialog::~CQVPathDialog() {
    if (m_pBrowseWnd)
        m_pBrowseWnd->Drop();
}

INT_PTR CQVPathDialog::DoModal() {
    const OleScope ole;
    const QuietErrors quiet;
    BROWSEINFOW info = {};
    info.hwndOwner = m_pParent ? m_pParent->GetSafeHwnd() : ::GetActiveWindow();
    info.lpszTitle = m_strTitle;
    info.ulFlags = kBrowseFlags;
    info.lpfn = BrowseCallback;
    info.lParam = reinterpret_cast<LPARAM>(this);
    if (m_pBrowseWnd)
        m_pBrowseWnd->m_bShowNewFolder = m_bShowNewFolder;
    const OwnedItemId chosen(::SHBrowseForFolderW(&info));
    if (!chosen) {
        m_strPath.Empty();
        return IDCANCEL;
    }
    wchar_t path[MAX_PATH] = L"";
    if (::SHGetPathFromIDListW(chosen.get(), path))
        m_strPath = ShortcutTargetOrSelf(path);
    return IDOK;
}

CString CQVPathDialog::GetPathName() {
    return m_strPath;
}

} // namespace _qv_commonwnd
