#include "QVFileDialog.h"

#include "ControlArrangement.h"
#include "DockedWindow.h"
#include "FileDialogLayout.h"
#include "QVWndEx.h"
#include "RememberedFolder.h"
#include "SystemControls.h"
#include "fileview/QVComboBoxSt.h"
#include "fileview/QVListView.h"
#include "fileview/ShellListSkin.h"
#include "fileview/ShellSelection.h"
#include "fileview/ToolBarEx.h"
#include "fileview/ViewBar.h"
#include "support/FileNameRules.h"
#include "support/TextView.h"

#include <QVSkin.h>

#include <shlwapi.h>

#include <algorithm>

namespace _qv_commonwnd {

using namespace _qv_commonctrl;

namespace {

constexpr DWORD kMultiSelectChars = 260000;

constexpr DWORD kClipping = WS_CLIPCHILDREN | WS_CLIPSIBLINGS;
constexpr DWORD kPanelStyle = WS_CHILD | WS_VISIBLE;
constexpr int kPsdPanelId = 10001;
constexpr int kImportPanelId = 1000;
constexpr int kPlaceWidthPx = 80; // of a button of the places bar, at 96 DPI
constexpr int kPlaceHeightPx = 50;

static_assert(sizeof(OPENFILENAMEW) == 152, "the full record of a 64-bit system");

// The combo box shows its selection in its new look only when it changes.
void ReselectEntry(CComboBox& combo) {
    const int current = combo.GetCurSel();
    combo.SetCurSel(combo.GetCount() - 1);
    combo.SetCurSel(current);
}

void Unsubclass(CWnd& worn) {
    if (worn.m_hWnd)
        worn.UnsubclassWindow();
}

} // namespace

// What the dialog keeps beside its published members, and what it does while the system's dialog runs.
class CQVFileDialog::CRun {
  public:
    explicit CRun(CQVFileDialog& dialog)
        : m_dialog(dialog), m_listSkin(*dialog.m_pListView, dialog.m_header) {}

    void UseMultiSelectBuffer();
    INT_PTR RunSystemDialog();

    HWND Frame() const { return m_dialog.m_hWnd ? ::GetParent(m_dialog.m_hWnd) : nullptr; }

    void TakeOver();
    void ShowPsdPanel(bool show);

    void OnInitDone();
    void OnSelectionChange();
    bool OnFolderChange();
    void OnTypeChange();
    void OnNameAccepted();

    bool ChangesNames() const { return !m_dialog.m_bOpenFileDialog && !m_dialog.m_bRawNames; }
    std::vector<std::wstring> FilterPatternList() const;

    void Release();
    void ReleaseList();

  private:
    UINT Dpi() const { return QV_GetWindowDpi(Frame()); }
    CRect FrameClient() const;

    void TakeFrame();
    void TakeControls();
    void CreatePanels();

    bool HasDockedWnd() const;
    void DockAdvanceWnd();
    void PlaceDockedWnd() const;
    int ImportPanelBottom() const;
    void FitFrame();
    void TellDockedWnd(QVFileSelChange what, LPARAM detail) const;

    void NoteSkinnedList();
    HWND ShownList() const;

    void ForgetSelection();
    void OnNothingSelected();
    void OnOneSelected(HWND list);
    void OnFileSelected(const CString& path);
    void OnFolderSelected(const SelectedItem& item);
    void OnSeveralSelected(HWND list, int count);
    void WriteFolderName(const CString& name);
    void TakeFolderNameBack();

    CString FilterExtension(DWORD filterIndex) const;
    void DropCompletion();

    CQVFileDialog& m_dialog;
    std::unique_ptr<wchar_t[]> m_multiSelectBuffer;
    bool m_givesExtension = false; // the host has given none
    CString m_firstExtension;      // the system keeps the address of its text as long as the dialog runs
    CString m_defaultExtension;    // of the current type: what the system completes a name with
    std::size_t m_completion = 0;  // units that it has put behind the accepted name
    CString m_folderName;   // what was written into the name field for a selected folder; empty: nothing
    CWnd m_listHolder;      // the shell list's placeholder
    CViewBar m_viewBar;     // folder up, new folder, kinds of view
    CQVButton m_helpButton; // shown to hosts that ask for it only
    CShellListSkin m_listSkin;
    CShownFolder m_folder;
    CDockedWindow m_docked;
};

IMPLEMENT_DYNAMIC(CQVFileDialog, CFileDialog)

BEGIN_MESSAGE_MAP(CQVFileDialog, CFileDialog)
    ON_WM_GETMINMAXINFO()
    ON_MESSAGE(WM_QV_IMPORTFORDER, &CQVFileDialog::OnMsgImportForder)
END_MESSAGE_MAP()

// ---- Construction.

// The base is always built in the hook style: the whole dialog stands on the hook's child window.
CQVFileDialog::CQVFileDialog(int bOpenFileDialog, const wchar_t* lpszDefExt, const wchar_t* lpszFileName,
                             unsigned long dwFlags, const wchar_t* lpszFilter, CWnd* pParentWnd,
                             unsigned long dwSize, int /*bVistaStyle*/, int bRawNames, unsigned long dwOption)
    : CFileDialog(bOpenFileDialog, lpszDefExt, lpszFileName, dwFlags, lpszFilter, pParentWnd, dwSize, FALSE),
      m_pWndEx(new CQVWndEx), m_pToolBar(new CToolBarEx), m_pLookInCombo(new CQVComboBoxSt),
      m_pListView(new CQVListView), m_pShellViewHolder(nullptr), m_pSkinnedList(nullptr), m_dwPsdState(0),
      m_pAdvanceWnd(nullptr), m_pReserved(nullptr), m_szAdvance(0, 0), m_bPreviewMode(0),
      m_bRawNames(bRawNames), m_strFilter(lpszFilter), m_bNameOK(1),
      m_dwOption(bOpenFileDialog ? dwOption : static_cast<DWORD>(FDO_KEEPOK)), m_eSelType(eSelFile),
      m_pRun(std::make_unique<CRun>(*this)) {
    m_ofn.Flags &= ~static_cast<DWORD>(OFN_ENABLESIZING);
    if (m_ofn.Flags & OFN_ALLOWMULTISELECT)
        m_pRun->UseMultiSelectBuffer();
    m_ofn.Flags |= OFN_HIDEREADONLY;
    const FilterPatterns parsed = ParseFilter(ViewOf(m_strFilter));
    for (const std::wstring& pattern : parsed.patterns)
        m_arrFilterExt.Add(TextOf(pattern));
    m_strFilter = TextOf(parsed.rest);
}

void CQVFileDialog::CRun::UseMultiSelectBuffer() {
    OPENFILENAMEW& ofn = m_dialog.m_ofn;
    if (!m_multiSelectBuffer)
        m_multiSelectBuffer = std::make_unique<wchar_t[]>(kMultiSelectChars);
    ofn.lpstrFile = m_multiSelectBuffer.get();
    ofn.nMaxFile = kMultiSelectChars;
    ofn.lStructSize = sizeof(OPENFILENAMEW);
}

void CQVFileDialog::SetPreviewMode(int nMode) {
    m_bPreviewMode = nMode;
}

void CQVFileDialog::SetAdvanceWnd(CWnd* pWnd) {
    m_pAdvanceWnd = pWnd;
}

void CQVFileDialog::EnableCompileImportType(BOOL bEnable) {
    m_wndPsdOption.EnableCompileImportType(bEnable);
}

void CQVFileDialog::EnableLayerInfo(int n) {
    if (n == LAYERINFO_ALLOWPANEL)
        m_dwPsdState |= PSDSTATE_ALLOWED;
    else
        m_wndPsdOption.EnableLayerInfo(n);
}

// ---- Run.

INT_PTR CQVFileDialog::DoModal() {
    // An object may run again: what the last run ended with must not be taken for this one's end.
    m_eSelType = eSelFile;
    m_strSelPath.Empty();
    m_strSelFormat.Empty();
    TestTempFilePath();
    return m_pRun->RunSystemDialog();
}

// What the run gives the system beside the host's own wishes is taken out again: the host may run the object once more.
INT_PTR CQVFileDialog::CRun::RunSystemDialog() {
    OPENFILENAMEW& ofn = m_dialog.m_ofn;
    if (ofn.Flags & OFN_ALLOWMULTISELECT) {
        const LPWSTR hostBuffer = ofn.lpstrFile;
        const DWORD hostChars = std::min(ofn.nMaxFile, kMultiSelectChars);
        UseMultiSelectBuffer();
        if (hostBuffer && hostBuffer != ofn.lpstrFile) // the name to start with
            ::lstrcpynW(ofn.lpstrFile, hostBuffer, static_cast<int>(hostChars));
    }
    const LPCWSTR hostFolder = ofn.lpstrInitialDir;
    const LPCWSTR hostExtension = ofn.lpstrDefExt;
    const CString folder = RememberedFolder();
    if (!hostFolder && !folder.IsEmpty() &&
        !(ofn.lpstrFile && ::PathFindFileNameW(ofn.lpstrFile) != ofn.lpstrFile))
        ofn.lpstrInitialDir = folder;
    m_givesExtension = ChangesNames() && !hostExtension;
    if (m_givesExtension) {
        m_firstExtension = m_defaultExtension = FilterExtension(std::max<DWORD>(ofn.nFilterIndex, 1));
        ofn.lpstrDefExt = m_firstExtension.IsEmpty() ? nullptr : m_firstExtension.GetString();
    }
    m_completion = 0;
    const INT_PTR answer = m_dialog.CFileDialog::DoModal();
    if (answer == IDOK)
        DropCompletion();
    ofn.lpstrInitialDir = hostFolder;
    ofn.lpstrDefExt = hostExtension;
    return answer;
}

// Without dot; empty when the filter's first pattern has none that could be one of a file.
CString CQVFileDialog::CRun::FilterExtension(DWORD filterIndex) const {
    const std::vector<std::wstring> patterns = FilterPatternList();
    const FilterChoice choice{patterns, filterIndex};
    const std::wstring* const pattern = choice.Pattern();
    const auto first = pattern ? FirstAlternative(*pattern) : std::nullopt;
    if (!first)
        return CString();
    const std::size_t dot = first->find(L'.');
    if (dot == std::wstring_view::npos)
        return CString();
    const std::wstring_view extension = first->substr(dot + 1);
    return extension.find_first_of(L"*?") == std::wstring_view::npos ? TextOf(extension) : CString();
}

// The accessors complete the name themselves: they are given the one that was typed.
void CQVFileDialog::CRun::DropCompletion() {
    OPENFILENAMEW& ofn = m_dialog.m_ofn;
    if (m_completion == 0)
        return;
    for (const LPWSTR name : {ofn.lpstrFile, ofn.lpstrFileTitle}) {
        const std::size_t length = name ? ::wcslen(name) : 0;
        if (length > m_completion)
            name[length - m_completion] = L'\0';
    }
    ofn.nFileExtension = 0;
}

void CQVFileDialog::TestTempFilePath() {
    RepairRememberedFolder();
}

// ---- Take-over of the system's dialog.

BOOL CQVFileDialog::OnInitDialog() {
    CFileDialog::OnInitDialog();
    ModifyStyle(0, kClipping);
    if (!m_pRun->Frame())
        return FALSE;
    m_pRun->TakeOver();
    InitCtrlAttribute();
    return TRUE;
}

void CQVFileDialog::InitCtrlAttribute() {
}

CRect CQVFileDialog::CRun::FrameClient() const {
    CRect client;
    ::GetClientRect(Frame(), &client);
    return client;
}

void CQVFileDialog::CRun::TakeOver() {
    TakeFrame();
    if (m_listHolder.Attach(::GetDlgItem(Frame(), kListHolderId)))
        m_dialog.m_pShellViewHolder = &m_listHolder;
    TakeControls();
    CreatePanels();
    if (HasDockedWnd())
        DockAdvanceWnd();
    else
        m_dialog.MoveItems();
}

// The frame paints a caption of its own; what it had of the system goes.
void CQVFileDialog::CRun::TakeFrame() {
    CQVWndEx& frame = *m_dialog.m_pWndEx;
    if (!frame.TakeOver(Frame()))
        return;
    frame.SetEndAction([this] { Release(); });
    // Before the system tells of the folder: a list that was shown before it is skinned would flash up white, and be
    // painted twice.
    frame.SetNewViewAction([this](HWND view) {
        m_listSkin.TakeOver(view);
        NoteSkinnedList();
    });
    m_listSkin.SetSelectionAction([this] { OnSelectionChange(); });
}

void CQVFileDialog::CRun::TakeControls() {
    CQVFileDialog& d = m_dialog;
    CFont* const font = QV_GetSysFont(QVFONT_UI, Dpi());
    auto take = [&](CWnd& object, int id, CFont* withFont) {
        if (object.SubclassWindow(::GetDlgItem(Frame(), id)) && withFont)
            object.SetFont(withFont);
    };
    take(d.m_btnOK, kOpenButtonId, font);
    take(d.m_btnCancel, kCancelButtonId, font);
    take(d.m_stcFileName, kFileNameLabelId, font);
    take(d.m_stcFileType, kFileTypeLabelId, font);
    take(d.m_stcLookIn, kLookInLabelId, font);
    for (CQVStatic* const label : {&d.m_stcFileName, &d.m_stcFileType, &d.m_stcLookIn})
        label->SetBkColorIndex(QVCLR_WINDOW); // the frame's ground, on which they stand
    take(d.m_cmbFileType, kFileTypeComboId, font);
    if (d.m_cmbFileType.m_hWnd) {
        d.m_cmbFileType.ModifyStyle(0, kClipping);
        ReselectEntry(d.m_cmbFileType);
        SetComboHeights(d.m_cmbFileType);
    }
    take(*d.m_pLookInCombo, kLookInComboId, nullptr);
    take(d.m_cmbFileName, kFileNameComboId, nullptr);
    if (d.m_cmbFileName.m_hWnd)
        d.m_cmbFileName.ModifyStyle(0, kClipping);
    take(*d.m_pToolBar, kPlacesBarId, nullptr);
    const CSize place(QV_ScaleForDpi(kPlaceWidthPx, Dpi()), QV_ScaleForDpi(kPlaceHeightPx, Dpi()));
    d.m_pToolBar->PostMessage(TB_SETBUTTONSIZE, 0, MAKELPARAM(place.cx, place.cy));
    take(m_helpButton, kHelpButtonId, font);
    m_viewBar.SubclassWindow(ViewToolBarOf(Frame()));
}

void CQVFileDialog::CRun::CreatePanels() {
    CWnd* const frame = m_dialog.m_pWndEx;
    CQVPsdOptionWnd& psdPanel = m_dialog.m_wndPsdOption;
    CQVForderImportWnd& importPanel = m_dialog.m_wndForderImport;
    if (!(m_dialog.m_dwPsdState & PSDSTATE_ALLOWED))
        psdPanel.DelayControls();
    if (psdPanel.Create(nullptr, nullptr, kPanelStyle, CRect(), frame, kPsdPanelId))
        psdPanel.ShowWindow(SW_HIDE);
    if (!(m_dialog.m_dwOption & FDO_IMPORTFOLDER) ||
        !importPanel.Create(nullptr, nullptr, kPanelStyle, CRect(), frame, kImportPanelId))
        return;
    importPanel.ShowWindow(SW_SHOW);
    importPanel.SetOwnerDlg(&m_dialog);
}

void CQVFileDialog::MoveItems() {
    ArrangeControls(m_pRun->Frame(), m_dwOption, m_wndForderImport.m_hWnd);
}

bool CQVFileDialog::CRun::HasDockedWnd() const {
    return m_dialog.m_pAdvanceWnd && ::IsWindow(m_dialog.m_pAdvanceWnd->m_hWnd);
}

void CQVFileDialog::CRun::DockAdvanceWnd() {
    CWnd& window = *m_dialog.m_pAdvanceWnd;
    CRect place;
    window.GetWindowRect(&place);
    GrowFrame(Frame(), place.Height());
    m_docked.Dock(window.m_hWnd, Frame());
    m_dialog.MoveItems();
    m_dialog.m_szAdvance = place.Size();
    PlaceDockedWnd();
    TellDockedWnd(FILESEL_ATTACHED, reinterpret_cast<LPARAM>(&m_dialog));
    window.ShowWindow(SW_SHOW);
}

void CQVFileDialog::CRun::PlaceDockedWnd() const {
    std::optional<int> panelBottom;
    if (m_dialog.m_wndForderImport.m_hWnd)
        panelBottom = ImportPanelBottom();
    m_dialog.m_pAdvanceWnd->MoveWindow(PlaceAdvanceWindow(FrameClient().Size(), m_dialog.m_szAdvance,
                                                          m_dialog.m_dwOption, panelBottom, Dpi()));
}

int CQVFileDialog::CRun::ImportPanelBottom() const {
    CRect panel;
    m_dialog.m_wndForderImport.GetWindowRect(&panel);
    m_dialog.m_pWndEx->ScreenToClient(&panel);
    return panel.bottom;
}

void CQVFileDialog::CRun::TellDockedWnd(QVFileSelChange what, LPARAM detail) const {
    if (HasDockedWnd())
        m_dialog.m_pAdvanceWnd->SendMessage(WM_QV_FILESELCHANGE, what, detail);
}

void CQVFileDialog::OnGetMinMaxInfo(MINMAXINFO* lpMMI) {
    CFileDialog::OnGetMinMaxInfo(lpMMI);
    const TrackLimits limits = LimitsOfSize(m_szAdvance, QV_GetWindowDpi(m_pRun->Frame()));
    lpMMI->ptMinTrackSize = CPoint(limits.least);
    if (limits.most)
        lpMMI->ptMaxTrackSize = CPoint(*limits.most);
}

void CQVFileDialog::ShowPsdOptionWnd(BOOL bShow) {
    m_pRun->ShowPsdPanel(bShow != FALSE);
}

// The panel hangs below the frame's former bottom; nothing else moves.
void CQVFileDialog::CRun::ShowPsdPanel(bool show) {
    CQVPsdOptionWnd& panel = m_dialog.m_wndPsdOption;
    const bool shown = (m_dialog.m_dwPsdState & PSDSTATE_SHOWN) != 0;
    const bool allowed = (m_dialog.m_dwPsdState & PSDSTATE_ALLOWED) != 0;
    if (!Frame() || !panel.m_hWnd || (show ? shown || !allowed : !shown))
        return;
    m_dialog.ModifyStyle(WS_THICKFRAME, 0);
    const int height = QV_ScaleForDpi(static_cast<int>(panel.GetMinHeight()), Dpi());
    if (show)
        panel.MoveWindow(PsdPanelBelow(FrameClient(), height, Dpi()));
    panel.ShowWindow(show ? SW_SHOW : SW_HIDE);
    GrowFrame(Frame(), show ? height : -height);
    m_dialog.m_dwPsdState ^= PSDSTATE_SHOWN;
}

// ---- Notifications.

// The base's own answers would undo ours: the framework's first one centres the dialog over its owner.
BOOL CQVFileDialog::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    switch (reinterpret_cast<const NMHDR*>(lParam)->code) {
    case CDN_INITDONE:
        m_pRun->OnInitDone();
        return TRUE;
    case CDN_SELCHANGE:
        m_pRun->OnSelectionChange();
        return TRUE;
    case CDN_FOLDERCHANGE:
        return m_pRun->OnFolderChange() || CFileDialog::OnNotify(wParam, lParam, pResult);
    case CDN_TYPECHANGE:
        m_pRun->OnTypeChange();
        return TRUE;
    case CDN_FILEOK:
        m_pRun->OnNameAccepted();
        return CFileDialog::OnNotify(wParam, lParam, pResult);
    default:
        return CFileDialog::OnNotify(wParam, lParam, pResult);
    }
}

void CQVFileDialog::CRun::OnInitDone() {
    CQVWndEx& frame = *m_dialog.m_pWndEx;
    m_folder.Forget();
    ForgetSelection();
    if (!frame.m_hWnd)
        return;
    frame.ModifyStyle(0, WS_CLIPCHILDREN);
    FitFrame();
    const CSize screen(::GetSystemMetrics(SM_CXSCREEN), ::GetSystemMetrics(SM_CYSCREEN));
    const CPoint place = CentredOnScreen(screen, FrameClient().Size());
    frame.SetWindowPos(nullptr, place.x, place.y, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

// The system has lowered its dialog meanwhile when it hides what stood at the bottom.
void CQVFileDialog::CRun::FitFrame() {
    const bool isBelowCancel = PlanOpenButton(m_dialog.m_dwOption) == OpenButtonPlace::Widened;
    if (m_dialog.m_wndForderImport.m_hWnd && isBelowCancel)
        GrowFrame(Frame(),
                  MissingHeight(FrameClient().Size(), ImportPanelBottom(), m_dialog.m_szAdvance, Dpi()));
    if (HasDockedWnd())
        PlaceDockedWnd();
}

// A folder may be imported only while it is selected.
void CQVFileDialog::CRun::ForgetSelection() {
    m_dialog.m_strSelPath.Empty();
    m_dialog.m_wndForderImport.EnableImport(FALSE);
}

// False: the base is to answer, too.
bool CQVFileDialog::CRun::OnFolderChange() {
    m_dialog.m_btnOK.Invalidate();
    m_folder.Forget();
    ForgetSelection();
    TakeFolderNameBack();
    const bool isAnswered = m_listSkin.OnFolderShown(ShellViewOf(Frame()));
    NoteSkinnedList();
    return isAnswered;
}

void CQVFileDialog::CRun::NoteSkinnedList() {
    m_dialog.m_pSkinnedList = m_listSkin.List() ? m_dialog.m_pListView : nullptr;
}

void CQVFileDialog::CRun::OnTypeChange() {
    ForgetSelection();
    if (const HWND view = ShellViewOf(Frame()))
        ::InvalidateRect(view, nullptr, TRUE);
    TellDockedWnd(FILESEL_ATTACHED, reinterpret_cast<LPARAM>(&m_dialog));
    // What the system was given at the start is changed like the host's own would be; ours alone. The system then asks
    // about the file that will be written, and not about the name as it was typed.
    if (m_givesExtension) {
        m_defaultExtension = FilterExtension(m_dialog.m_ofn.nFilterIndex);
        m_dialog.SetDefExt(m_defaultExtension);
    }
}

// The list that is skinned needs no search.
HWND CQVFileDialog::CRun::ShownList() const {
    const HWND skinned = m_listSkin.List();
    return skinned ? skinned : ShellListIn(ShellViewOf(Frame()));
}

void CQVFileDialog::CRun::OnSelectionChange() {
    m_dialog.m_btnOK.Invalidate();
    const HWND list = ShownList();
    const int count = m_listSkin.TellSelected(list);
    if (count <= 0)
        OnNothingSelected();
    else if (count == 1)
        OnOneSelected(list);
    else
        OnSeveralSelected(list, count);
}

void CQVFileDialog::CRun::OnNothingSelected() {
    ForgetSelection();
    TakeFolderNameBack();
    ShowPsdPanel(false);
    TellDockedWnd(FILESEL_ONE, 0);
}

void CQVFileDialog::CRun::OnOneSelected(HWND list) {
    const SelectedItem item = FindSelectedItem(m_dialog, m_folder, list);
    m_dialog.m_strSelPath.Empty();
    switch (item.kind) {
    case SelectedKind::Missing:
        ShowPsdPanel(false);
        TellDockedWnd(FILESEL_MISSING, 0);
        break;
    case SelectedKind::File:
        OnFileSelected(item.path);
        break;
    case SelectedKind::Folder:
        OnFolderSelected(item);
        break;
    }
    m_dialog.m_wndForderImport.EnableImport(item.isFolder);
}

void CQVFileDialog::CRun::OnFileSelected(const CString& path) {
    m_folderName.Empty(); // the system has written the file's
    const BOOL isPsd = m_dialog.IsShowPsdOption(path);
    if (isPsd)
        m_dialog.m_wndPsdOption.ReadPsdFile(path);
    ShowPsdPanel(isPsd != FALSE);
    if (isPsd)
        m_dialog.m_wndPsdOption.EnableLayerInfo(TRUE);
    TellDockedWnd(FILESEL_ONE, reinterpret_cast<LPARAM>(path.GetString()));
}

void CQVFileDialog::CRun::OnFolderSelected(const SelectedItem& item) {
    if (!m_dialog.IsShowPsdOption(item.path))
        ShowPsdPanel(false);
    if (m_dialog.m_dwOption & FDO_IMPORTFOLDER)
        WriteFolderName(item.name);
    m_dialog.m_strSelPath = item.path;
    TellDockedWnd(FILESEL_ONE, reinterpret_cast<LPARAM>(item.path.GetString()));
}

void CQVFileDialog::CRun::WriteFolderName(const CString& name) {
    m_dialog.SetControlText(kFileNameComboId, name);
    m_folderName = name;
}

// In another folder the name would be that of a file which is not there. What the user has typed meanwhile stays.
void CQVFileDialog::CRun::TakeFolderNameBack() {
    CString written;
    if (m_dialog.m_cmbFileName.m_hWnd)
        m_dialog.m_cmbFileName.GetWindowText(written);
    if (!m_folderName.IsEmpty() && written == m_folderName)
        m_dialog.SetControlText(kFileNameComboId, L"");
    m_folderName.Empty();
}

// The system tells of every single item while many are being selected: without a window to be told nothing is
// looked up.
void CQVFileDialog::CRun::OnSeveralSelected(HWND list, int count) {
    ForgetSelection();
    TakeFolderNameBack();
    if (!HasDockedWnd())
        return;
    const SelectedItem item = FindSelectedItem(m_dialog, m_folder, list);
    if (item.kind == SelectedKind::File && !item.isFolder)
        TellDockedWnd(FILESEL_ONE, reinterpret_cast<LPARAM>(item.path.GetString()));
    TellDockedWnd(FILESEL_SEVERAL, reinterpret_cast<LPARAM>(&count));
}

// Compares what was typed with what the system has made of it. A system that takes no change of the extension completes
// with the first one where the type has none.
void CQVFileDialog::CRun::OnNameAccepted() {
    CString typed;
    m_completion = 0;
    if (!m_givesExtension || !m_dialog.m_cmbFileName.m_hWnd)
        return;
    m_dialog.m_cmbFileName.GetWindowText(typed);
    typed.Trim(L"\" ");
    const CString name = ::PathFindFileNameW(typed);
    const CString accepted = ::PathFindFileNameW(m_dialog.m_ofn.lpstrFile);
    for (const CString* const extension : {&m_defaultExtension, &m_firstExtension})
        if (!extension->IsEmpty() && accepted.CompareNoCase(name + L"." + *extension) == 0)
            m_completion = static_cast<std::size_t>(extension->GetLength()) + 1; // the dot's
}

BOOL CQVFileDialog::OnFileNameOK() {
    if (m_bNameOK)
        return FALSE;
    m_bNameOK = 1;
    return TRUE;
}

LRESULT CQVFileDialog::OnMsgImportForder(WPARAM, LPARAM) {
    constexpr LRESULT kImported = 0;
    constexpr LRESULT kNothingSelected = 1;
    if (m_strSelPath.IsEmpty())
        return kNothingSelected;
    m_eSelType = eSelForder;
    if (m_cmbFileType.m_hWnd && m_cmbFileType.GetCurSel() != CB_ERR)
        m_cmbFileType.GetLBText(m_cmbFileType.GetCurSel(), m_strSelFormat);
    ::EndDialog(m_pRun->Frame(), IDOK);
    return kImported;
}

// ---- Results.

eFileSelType CQVFileDialog::GetSelTpye() {
    return m_eSelType;
}

CString CQVFileDialog::GetSelForderPath() {
    return m_strSelPath;
}

CString CQVFileDialog::GetSelFileFormat() {
    return m_strSelFormat;
}

std::vector<std::wstring> CQVFileDialog::CRun::FilterPatternList() const {
    std::vector<std::wstring> patterns;
    for (INT_PTR i = 0; i < m_dialog.m_arrFilterExt.GetSize(); ++i)
        patterns.emplace_back(ViewOf(m_dialog.m_arrFilterExt.GetAt(i)));
    return patterns;
}

CString CQVFileDialog::GetPathName() {
    const CString path = CFileDialog::GetPathName();
    return m_pRun->ChangesNames() ? CheckPathName(path) : path;
}

CString CQVFileDialog::GetSaveFilePath() {
    return GetPathName();
}

CString CQVFileDialog::GetNextPathName(POSITION& pos) {
    const CString path = CFileDialog::GetNextPathName(pos);
    return m_pRun->ChangesNames() ? CheckPathName(path) : path;
}

CString CQVFileDialog::CheckPathName(CString strPath) {
    const std::vector<std::wstring> patterns = m_pRun->FilterPatternList();
    return TextOf(CheckedPathName(ViewOf(strPath), FilterChoice{patterns, m_ofn.nFilterIndex}));
}

CString CQVFileDialog::GetFileExt() {
    if (m_pRun->ChangesNames()) {
        const std::vector<std::wstring> patterns = m_pRun->FilterPatternList();
        if (const auto extension = PatternExtension(FilterChoice{patterns, m_ofn.nFilterIndex}))
            return TextOf(*extension);
    }
    return CFileDialog::GetFileExt();
}

CString CQVFileDialog::GetFileName() {
    const CString name = CFileDialog::GetFileName();
    if (!m_pRun->ChangesNames())
        return name;
    const CString extension = GetFileExt();
    return TextOf(NameWithExtension(ViewOf(name), ViewOf(extension)));
}

CString CQVFileDialog::GetFileTitle() {
    if (!m_pRun->ChangesNames())
        return CFileDialog::GetFileTitle();
    const CString name = GetFileName();
    return TextOf(TitleOfName(ViewOf(name)));
}

void CQVFileDialog::SpliteFiles(CString str, CArray<CString, const CString&>& arr) {
    const CString folder = GetFolderPath();
    for (const std::wstring& file : SplitSelection(ViewOf(str), ViewOf(folder)))
        arr.Add(TextOf(file));
}

BOOL CQVFileDialog::IsPreviewFile(const CString& strPath) const {
    return HasPreviewExtension(ViewOf(strPath));
}

BOOL CQVFileDialog::IsShowPsdOption(const CString& strPath) {
    return IsPsdPath(ViewOf(strPath));
}

BOOL CQVFileDialog::IsCompileImportType() {
    return m_wndPsdOption.IsCompileImportType();
}

void CQVFileDialog::GetImportLayerName(CStringArray& arr) {
    m_wndPsdOption.GetImportLayerName(arr);
}

void CQVFileDialog::GetImportLayerInfo(std::vector<int>& v) {
    m_wndPsdOption.GetImportLayerInfo(v);
}

// ---- Release.

// The system destroys its dialog: the host's window must not go with it, and no object may keep a window that is
// not its own.
void CQVFileDialog::CRun::Release() {
    m_docked.Undock();
    m_dialog.m_szAdvance = CSize(0, 0);
    m_dialog.m_dwPsdState &= ~static_cast<DWORD>(PSDSTATE_SHOWN);
    ReleaseList();
    m_listHolder.Detach();
    m_dialog.m_pShellViewHolder = nullptr;
}

void CQVFileDialog::CRun::ReleaseList() {
    m_listSkin.GiveBack();
    m_dialog.m_pSkinnedList = nullptr;
}

CQVFileDialog::~CQVFileDialog() {
    m_pRun->ReleaseList();
    // The windows are the system's; an object that still wears one must not take it along.
    for (CWnd* const worn : std::initializer_list<CWnd*>{m_pWndEx, &m_btnOK, &m_btnCancel, &m_stcFileName,
                                                         &m_stcFileType, &m_stcLookIn, &m_cmbFileType,
                                                         m_pLookInCombo, &m_cmbFileName, m_pToolBar})
        Unsubclass(*worn);
    if (m_ofn.Flags & OFN_ALLOWMULTISELECT)
        m_ofn.lpstrFile = nullptr;
    m_pRun.reset();
    delete std::exchange(m_pWndEx, nullptr);
    delete std::exchange(m_pToolBar, nullptr);
    delete std::exchange(m_pListView, nullptr);
    delete std::exchange(m_pLookInCombo, nullptr);
    if (m_wndForderImport.GetSafeHwnd())
        m_wndForderImport.DestroyWindow();
}

} // namespace _qv_commonwnd
