// CQVFileDialog: what the system's dialog tells while it runs.
#include "QVFileDialog.h"

#include "FileDialogIds.h"
#include "FileDialogLayout.h"
#include "FileDialogParts.h"
#include "fileview/QVListView.h"
#include "QVWndEx.h"
#include "fileview/ShellSelection.h"

#include <QVReplaceWnd.h>
#include <QVSkin.h>

namespace _qv_commonwnd {

using namespace _qv_commonctrl;

namespace {

DWORD SystemMajorVersion() {
    OSVERSIONINFOW version = {};
    version.dwOSVersionInfoSize = sizeof version;
    return ::GetVersionExW(&version) ? version.dwMajorVersion : 0;
}

int SelectedCount(HWND list) {
    return list ? static_cast<int>(::SendMessageW(list, LVM_GETSELECTEDCOUNT, 0, 0)) : 0;
}

} // namespace

BOOL CQVFileDialog::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    switch (static_cast<int>(reinterpret_cast<const NMHDR*>(lParam)->code)) {
    case static_cast<int>(CDN_INITDONE):
        OnDialogInitDone();
        break;
    case static_cast<int>(CDN_SELCHANGE):
        OnSelectionChange();
        break;
    case static_cast<int>(CDN_FOLDERCHANGE):
        TakeNewFolder();
        break;
    case static_cast<int>(CDN_TYPECHANGE):
        TellTypeChange();
        break;
    default:
        break;
    }
    return CFileDialog::OnNotify(wParam, lParam, pResult);
}

// A folder may be imported only while it is selected.
void CQVFileDialog::ForgetSelection() {
    m_strSelPath.Empty();
    m_wndForderImport.EnableImport(FALSE);
}

void CQVFileDialog::OnDialogInitDone() {
    m_pParts->folder.Forget();
    ForgetSelection();
    if (!m_pWndEx->m_hWnd)
        return;
    m_pWndEx->ModifyStyle(0, WS_CLIPCHILDREN);
    FitFrame();
    const CSize screen(::GetSystemMetrics(SM_CXSCREEN), ::GetSystemMetrics(SM_CYSCREEN));
    const CPoint place = CentredOnScreen(screen, FrameClient().Size());
    m_pWndEx->SetWindowPos(nullptr, place.x, place.y, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void CQVFileDialog::TellTypeChange() {
    ForgetSelection();
    if (const HWND view = ShellViewOf(Frame()))
        ::InvalidateRect(view, nullptr, TRUE);
    TellAdvanceWnd(FILESEL_ATTACHED, reinterpret_cast<LPARAM>(this));
}

// The list that is skinned needs no search.
HWND CQVFileDialog::ShownList() const {
    const HWND skinned = m_pSkinnedList ? m_pSkinnedList->m_hWnd : nullptr;
    return skinned ? skinned : ShellListOf(Frame());
}

void CQVFileDialog::OnSelectionChange() {
    m_btnOK.Invalidate();
    const HWND list = ShownList();
    const int count = SelectedCount(list);
    m_pParts->toldCount = count;
    if (count <= 0)
        OnNothingSelected();
    else if (count == 1)
        OnOneSelected(list);
    else
        OnSeveralSelected(list, count);
}

// Not every system tells when an item is unselected.
void CQVFileDialog::OnListSelection() {
    if (SelectedCount(ShownList()) != m_pParts->toldCount)
        OnSelectionChange();
}

void CQVFileDialog::OnNothingSelected() {
    ForgetSelection();
    ShowPsdOptionWnd(FALSE);
    TellAdvanceWnd(FILESEL_ONE, 0);
}

void CQVFileDialog::OnOneSelected(HWND list) {
    const SelectedItem item = FindSelectedItem(*this, m_pParts->folder, list, SelectionCount::One);
    m_strSelPath.Empty();
    switch (item.kind) {
    case SelectedKind::Missing:
        ShowPsdOptionWnd(FALSE);
        TellAdvanceWnd(FILESEL_MISSING, 0);
        break;
    case SelectedKind::File:
        OnFileSelected(item.path);
        break;
    case SelectedKind::Folder:
        OnFolderSelected(item.path, item.name, list);
        break;
    }
    m_wndForderImport.EnableImport(item.isFolder);
}

void CQVFileDialog::OnFileSelected(const CString& path) {
    if (IsShowPsdOption(path)) {
        m_wndPsdOption.ReadPsdFile(path);
        ShowPsdOptionWnd(TRUE);
        m_wndPsdOption.EnableLayerInfo(TRUE);
    } else {
        ShowPsdOptionWnd(FALSE);
    }
    TellAdvanceWnd(FILESEL_ONE, reinterpret_cast<LPARAM>(path.GetString()));
}

void CQVFileDialog::OnFolderSelected(const CString& path, CString name, HWND list) {
    if (!IsShowPsdOption(path))
        ShowPsdOptionWnd(FALSE);
    if (name.IsEmpty())
        name = FirstSelectedText(list);
    if (m_dwOption & FDO_IMPORTFOLDER)
        SetControlText(kFileNameComboId, name);
    m_strSelPath = path;
    TellAdvanceWnd(FILESEL_ONE, reinterpret_cast<LPARAM>(m_strSelPath.GetString()));
}

// The system tells of every single item while many are being selected: without a window to be told nothing is
// looked up.
void CQVFileDialog::OnSeveralSelected(HWND list, int count) {
    ForgetSelection();
    if (!HasAdvanceWnd())
        return;
    const SelectedItem item = FindSelectedItem(*this, m_pParts->folder, list, SelectionCount::Several);
    if (item.kind == SelectedKind::File && !item.isFolder)
        TellAdvanceWnd(FILESEL_ONE, reinterpret_cast<LPARAM>(item.path.GetString()));
    TellAdvanceWnd(FILESEL_SEVERAL, reinterpret_cast<LPARAM>(&count));
}

void CQVFileDialog::TakeNewFolder() {
    m_btnOK.Invalidate();
    m_pParts->folder.Forget();
    ForgetSelection();
    if (const HWND view = ShellViewOf(Frame()))
        TakeNewView(view);
}

// Also when the frame gets a view, which is before the system tells of the folder: a list that was shown before it is
// skinned would flash up white, and be painted twice.
void CQVFileDialog::TakeNewView(HWND view) {
    if (!SkinsShellList(SystemMajorVersion()))
        return;
    CWnd::ModifyStyle(view, 0, WS_CLIPCHILDREN, 0);
    const HWND list = ShellListIn(view);
    if (!list || (m_pSkinnedList && m_pSkinnedList->m_hWnd == list))
        return;
    CWnd::ModifyStyle(list, 0, WS_CLIPCHILDREN, 0);
    ReleaseShellList();
    SkinShellView(view, list);
    ::RedrawWindow(view, nullptr, nullptr, RDW_INVALIDATE | RDW_NOERASE);
}

// The system's dialog makes a new view with a new list for every folder.
void CQVFileDialog::SkinShellView(HWND view, HWND list) {
    CWnd::ModifyStyle(list, 0, WS_CLIPSIBLINGS, 0);
    CWnd::ModifyStyle(view, 0, WS_CLIPSIBLINGS, 0);
    DropEdge(list);
    m_pListView->SetListProcedure(reinterpret_cast<WNDPROC>(::GetWindowLongPtrW(list, GWLP_WNDPROC)));
    QV_ReplaceWnd(list);
    m_pListView->SetAnswers(&m_pParts->shellView.Answers());
    m_pListView->SetHeaderObject(&m_header);
    m_pListView->SetSelectionAction([this] { OnListSelection(); });
    m_pParts->toldCount = 0;
    if (const auto header = reinterpret_cast<HWND>(::SendMessageW(list, LVM_GETHEADER, 0, 0)))
        m_header.SubclassWindow(header);
    SetPlainGround(list, QV_GetSysColor(QVCLR_GROUND));
    m_pParts->shellView.SubclassWindow(view);
    if (m_pListView->SubclassWindow(list))
        m_pSkinnedList = m_pListView;
    const auto ground = static_cast<LPARAM>(QV_GetSysColor(QVCLR_GROUND));
    ::SendMessageW(list, LVM_SETBKCOLOR, 0, ground);
    ::SendMessageW(list, LVM_SETTEXTBKCOLOR, 0, ground);
    ::SendMessageW(list, LVM_SETTEXTCOLOR, 0, static_cast<LPARAM>(QV_GetSysColor(QVCLR_TEXT_WINDOW)));
    ::PostMessageW(list, WM_QV_LISTSKIN, 0, 0);
}

} // namespace _qv_commonwnd
