#include "QVDirListCtrl.h"

#include "QVDict.h"
#include "DirIcons.h"
#include "DirListRows.h"
#include "FolderPath.h"

#include <iterator>

namespace _qv_commonctrl {

IMPLEMENT_DYNAMIC(CQVDirListCtrl, CQVListCtrl)

namespace {

struct ColumnLook {
    const wchar_t* key;
    int widthPx;
    int format;
};
constexpr ColumnLook kColumnLooks[] = {
    {L"IDS_DIRLIST_NAME", 240, LVCFMT_LEFT},
    {L"IDS_DIRLIST_SIZE", 90, LVCFMT_RIGHT},
    {L"IDS_DIRLIST_MODIFIED", 130, LVCFMT_LEFT},
};

} // namespace

CQVDirListCtrl::CQVDirListCtrl() : m_pRows(new DirListRows(*this)) {
}

CQVDirListCtrl::~CQVDirListCtrl() {
    delete m_pRows;
    if (m_hIcons)
        ImageList_Destroy(m_hIcons);
}

BOOL CQVDirListCtrl::SetPathName(LPCWSTR folder) {
    if (!m_hWnd || !folder || !*folder)
        return FALSE;
    try {
        FolderRequest request;
        request.kind = FolderKind::Path;
        request.path = NormalFolderPath(folder);
        request.content = FolderContent::FoldersAndFiles;
        const CString path = request.path.c_str();
        if (!m_pRows->Read(std::move(request)))
            return FALSE;
        m_strFolder = path;
        SetUpColumns();
        m_pRows->Show();
        return TRUE;
    } catch (const std::exception&) { // memory ran out
        return FALSE;
    }
}

void CQVDirListCtrl::SetUpColumns() {
    const UINT dpi = QV_GetWindowDpi(m_hWnd);
    if (!m_hIcons)
        RefreshIcons();
    LVCOLUMNW present = {};
    present.mask = LVCF_FMT;
    if (SendMessage(LVM_GETCOLUMNW, 0, reinterpret_cast<LPARAM>(&present)))
        return; // the host's own columns stay
    for (int i = 0; i < static_cast<int>(std::size(kColumnLooks)); ++i) {
        const CString title = QV_LoadSysString(kColumnLooks[i].key);
        LVCOLUMNW column = {};
        column.mask = LVCF_TEXT | LVCF_WIDTH | LVCF_FMT | LVCF_SUBITEM;
        column.pszText = const_cast<LPWSTR>(title.GetString());
        column.cx = QV_ScaleForDpi(kColumnLooks[i].widthPx, dpi);
        column.fmt = kColumnLooks[i].format;
        column.iSubItem = i;
        SendMessage(LVM_INSERTCOLUMNW, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(&column));
    }
}

BOOL CQVDirListCtrl::GetPathName(CString& path, int item) const {
    path.Empty();
    constexpr int kShownFolder = -1;
    if (m_strFolder.IsEmpty() || !m_hWnd || item < kShownFolder || item >= GetItemCount())
        return FALSE;
    path = item == kShownFolder
               ? m_strFolder
               : CString(JoinPath(m_strFolder.GetString(), GetItemText(item, 0).GetString()).c_str());
    return TRUE;
}

void CQVDirListCtrl::RefreshIcons() {
    const HIMAGELIST icons = MakeDirIcons(QVCLR_LIST, QV_GetWindowDpi(m_hWnd));
    if (!icons)
        return;
    // The control would destroy a list that it does not share.
    ModifyStyle(0, LVS_SHAREIMAGELISTS);
    SendMessage(LVM_SETIMAGELIST, LVSIL_SMALL, reinterpret_cast<LPARAM>(icons));
    SendMessage(LVM_SETIMAGELIST, LVSIL_NORMAL, reinterpret_cast<LPARAM>(icons));
    if (m_hIcons)
        ImageList_Destroy(m_hIcons);
    m_hIcons = icons;
}

void CQVDirListCtrl::OnSkinChange(UINT reason, HWND wnd) {
    if (m_hIcons)
        RefreshIcons();
    CQVListCtrl::OnSkinChange(reason, wnd);
}

// A folder that the user activates is opened when everybody has heard of it: the host may read the row.
BOOL CQVDirListCtrl::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) {
    const auto* notification = reinterpret_cast<NMHDR*>(lParam);
    if (message == WM_NOTIFY && notification->code == static_cast<UINT>(LVN_ITEMACTIVATE)) {
        const int item = GetNextItem(-1, LVNI_FOCUSED);
        CString path;
        if (item >= 0 && GetItemData(item) && GetPathName(path, item)) {
            m_pRows->toOpen = path;
            PostMessage(DirListRows::OpenMessage());
        }
    }
    return CQVListCtrl::OnChildNotify(message, wParam, lParam, result);
}

LRESULT CQVDirListCtrl::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == DirListRows::ListedMessage()) {
        m_pRows->OnListed(static_cast<UINT>(wParam));
        return 0;
    }
    if (message == DirListRows::OpenMessage()) {
        SetPathName(m_pRows->toOpen.c_str());
        return 0;
    }
    if (message == WM_NCDESTROY) // before the base: PostNcDestroy may delete this object
        m_pRows->OnWindowGone();
    if (message == WM_KEYDOWN && wParam == VK_BACK && !m_strFolder.IsEmpty()) {
        const int slash = m_strFolder.ReverseFind(L'\\');
        if (slash > 0 && slash + 1 < m_strFolder.GetLength())
            SetPathName(m_strFolder.Left(slash));
        return 0;
    }
    return CQVListCtrl::WindowProc(message, wParam, lParam);
}

} // namespace _qv_commonctrl
