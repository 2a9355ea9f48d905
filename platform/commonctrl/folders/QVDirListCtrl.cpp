#include "QVDirListCtrl.h"

#include "QVDict.h"
#include "DirIcons.h"
#include "FolderListing.h"
#include "FolderOrder.h"
#include "FolderPath.h"
#include "module/RedrawPause.h"

#include <shlwapi.h>

namespace _qv_commonctrl {

IMPLEMENT_DYNAMIC(CQVDirListCtrl, CQVListCtrl)

namespace {

constexpr DWORD kPatienceMs = 2000; // a folder that does not answer in this time is answered with FALSE

enum Column { kName, kSize, kModified, kColumns };

struct ColumnLook {
    const wchar_t* key;
    int widthPx;
    int format;
};
constexpr ColumnLook kColumnLooks[kColumns] = {
    {L"IDS_DIRLIST_NAME", 240, LVCFMT_LEFT},
    {L"IDS_DIRLIST_SIZE", 90, LVCFMT_RIGHT},
    {L"IDS_DIRLIST_MODIFIED", 130, LVCFMT_LEFT},
};

std::wstring SizeText(const FolderEntry& entry) {
    wchar_t text[64] = L"";
    if (entry.kind == FolderKind::File)
        StrFormatByteSizeW(static_cast<LONGLONG>(entry.size), text, 64);
    return text;
}

std::wstring TimeText(const FILETIME& time) {
    SYSTEMTIME world = {};
    SYSTEMTIME local = {};
    wchar_t date[64] = L"";
    wchar_t clock[64] = L"";
    if ((time.dwLowDateTime | time.dwHighDateTime) == 0 || !FileTimeToSystemTime(&time, &world) ||
        !SystemTimeToTzSpecificLocalTime(nullptr, &world, &local))
        return std::wstring();
    GetDateFormatEx(LOCALE_NAME_USER_DEFAULT, DATE_SHORTDATE, &local, nullptr, date, 64, nullptr);
    GetTimeFormatEx(LOCALE_NAME_USER_DEFAULT, TIME_NOSECONDS, &local, nullptr, clock, 64);
    return std::wstring(date) + L" " + clock;
}

} // namespace

CQVDirListCtrl::CQVDirListCtrl() = default;

CQVDirListCtrl::~CQVDirListCtrl() {
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
        const auto listing = FolderListing::Start(std::move(request), {});
        if (!listing || !listing->Wait(kPatienceMs) || !listing->Succeeded())
            return FALSE;
        SetUpColumns();
        const RedrawPause pause(m_hWnd);
        DeleteAllItems();
        auto entries = listing->Take();
        SortEntries(entries);
        SendMessage(LVM_SETITEMCOUNT, entries.size()); // room at once, not bit by bit
        for (std::size_t i = 0; i < entries.size(); ++i)
            InsertEntry(static_cast<int>(i), entries[i]);
        m_strFolder = path;
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
    for (int i = 0; i < kColumns; ++i) {
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

void CQVDirListCtrl::InsertEntry(int index, const FolderEntry& entry) {
    LVITEMW item = {};
    item.mask = LVIF_TEXT | LVIF_IMAGE | LVIF_PARAM;
    item.iItem = index;
    item.pszText = const_cast<LPWSTR>(entry.name.c_str());
    item.iImage = static_cast<int>(entry.icon);
    item.lParam = entry.kind != FolderKind::File;
    SendMessage(LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item));
    SetItemText(index, kSize, SizeText(entry).c_str());
    SetItemText(index, kModified, TimeText(entry.modified).c_str());
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

// Opens the folder that has the keyboard, and the folder above with the backspace key.
BOOL CQVDirListCtrl::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) {
    const auto* notification = reinterpret_cast<NMHDR*>(lParam);
    if (message == WM_NOTIFY && notification->code == static_cast<UINT>(LVN_ITEMACTIVATE)) {
        const int item = GetNextItem(-1, LVNI_FOCUSED);
        CString path;
        if (item >= 0 && GetItemData(item) && GetPathName(path, item))
            SetPathName(path);
    }
    return CQVListCtrl::OnChildNotify(message, wParam, lParam, result);
}

LRESULT CQVDirListCtrl::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_KEYDOWN && wParam == VK_BACK && !m_strFolder.IsEmpty()) {
        const int slash = m_strFolder.ReverseFind(L'\\');
        if (slash > 0 && slash + 1 < m_strFolder.GetLength())
            SetPathName(m_strFolder.Left(slash));
        return 0;
    }
    return CQVListCtrl::WindowProc(message, wParam, lParam);
}

} // namespace _qv_commonctrl
