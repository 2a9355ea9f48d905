// CQVFileDialog: how it takes the system's dialog over and lets it go.
#include "QVFileDialog.h"

#include "FileDialogIds.h"
#include "FileDialogLayout.h"
#include "FileDialogParts.h"
#include "fileview/QVComboBoxSt.h"
#include "fileview/QVListView.h"
#include "QVWndEx.h"
#include "fileview/ToolBarEx.h"

#include <QVReplaceWnd.h>
#include <QVSkin.h>

namespace _qv_commonwnd {

using namespace _qv_commonctrl;

namespace {

constexpr DWORD kClipping = WS_CLIPCHILDREN | WS_CLIPSIBLINGS;
constexpr DWORD kFrameStyles = WS_CAPTION | WS_SYSMENU | kClipping | DS_3DLOOK | DS_MODALFRAME;
constexpr DWORD kFrameExStyles = WS_EX_DLGMODALFRAME | WS_EX_WINDOWEDGE;
constexpr DWORD kPanelStyle = WS_CHILD | WS_VISIBLE;
constexpr int kPlaceWidthPx = 80; // of a button of the places bar
constexpr int kPlaceHeightPx = 50;
constexpr UINT kSizeOnly = SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE;

// The combo box shows its selection in its new look only when it changes.
void ReselectEntry(CComboBox& combo) {
    const int current = combo.GetCurSel();
    combo.SetCurSel(combo.GetCount() - 1);
    combo.SetCurSel(current);
}

} // namespace

HWND CQVFileDialog::Frame() const {
    return m_hWnd ? ::GetParent(m_hWnd) : nullptr;
}

UINT CQVFileDialog::Dpi() const {
    return QV_GetWindowDpi(Frame());
}

CRect CQVFileDialog::FrameClient() const {
    CRect client;
    ::GetClientRect(Frame(), &client);
    return client;
}

BOOL CQVFileDialog::OnInitDialog() {
    CFileDialog::OnInitDialog();
    ModifyStyle(0, kClipping);
    if (!Frame())
        return FALSE;
    TakeFrame();
    if (m_pParts->listHolder.Attach(::GetDlgItem(Frame(), kListHolderId)))
        m_pShellViewHolder = &m_pParts->listHolder;
    TakeControls();
    CreatePanels();
    if (HasAdvanceWnd())
        DockAdvanceWnd();
    else
        MoveItems();
    InitCtrlAttribute();
    return TRUE;
}

void CQVFileDialog::InitCtrlAttribute() {
}

// The frame paints a caption of its own; what it had of the system goes.
void CQVFileDialog::TakeFrame() {
    if (!m_pWndEx->SubclassWindow(Frame()))
        return;
    m_pWndEx->SetEndAction([this] { ReleaseWindows(); });
    m_pWndEx->SetNewViewAction([this](HWND view) { TakeNewView(view); });
    m_pWndEx->ModifyStyleEx(kFrameExStyles, 0);
    m_pWndEx->ModifyStyle(kFrameStyles, 0, SWP_FRAMECHANGED | SWP_NOZORDER | SWP_NOACTIVATE);
}

void CQVFileDialog::TakeControls() {
    const HWND frame = Frame();
    CFont* const font = QV_GetSysFont(QVFONT_UI, Dpi());
    auto take = [&](CWnd& object, int id, CFont* withFont) {
        if (object.SubclassWindow(::GetDlgItem(frame, id)) && withFont)
            object.SetFont(withFont);
    };
    take(m_btnOK, kOpenButtonId, font);
    take(m_btnCancel, kCancelButtonId, font);
    take(m_stcFileName, kFileNameLabelId, font);
    m_stcFileName.SetBkColorIndex(QVCLR_WINDOW);
    take(m_stcFileType, kFileTypeLabelId, font);
    take(m_stcLookIn, kLookInLabelId, font);
    take(m_cmbFileType, kFileTypeComboId, font);
    if (m_cmbFileType.m_hWnd) {
        m_cmbFileType.ModifyStyle(0, kClipping);
        ReselectEntry(m_cmbFileType);
        SetComboHeights(m_cmbFileType);
    }
    take(*m_pLookInCombo, kLookInComboId, nullptr);
    take(m_cmbFileName, kFileNameComboId, nullptr);
    if (m_cmbFileName.m_hWnd)
        m_cmbFileName.ModifyStyle(0, kClipping);
    take(*m_pToolBar, kPlacesBarId, nullptr);
    const CSize place(QV_ScaleForDpi(kPlaceWidthPx, Dpi()), QV_ScaleForDpi(kPlaceHeightPx, Dpi()));
    m_pToolBar->PostMessage(TB_SETBUTTONSIZE, 0, MAKELPARAM(place.cx, place.cy));
    take(m_pParts->helpButton, kHelpButtonId, font);
    m_pParts->viewBar.SubclassWindow(ViewToolBarOf(frame));
}

void CQVFileDialog::CreatePanels() {
    CWnd* const frame = m_pWndEx;
    if (!(m_dwPsdState & PSDSTATE_ALLOWED))
        m_wndPsdOption.DelayControls();
    if (m_wndPsdOption.Create(nullptr, nullptr, kPanelStyle, CRect(), frame, kPsdPanelId))
        m_wndPsdOption.ShowWindow(SW_HIDE);
    if (!(m_dwOption & FDO_IMPORTFOLDER) ||
        !m_wndForderImport.Create(nullptr, nullptr, kPanelStyle, CRect(), frame, kImportPanelId))
        return;
    m_wndForderImport.ShowWindow(SW_SHOW);
    m_wndForderImport.SetOwnerDlg(this);
}

bool CQVFileDialog::HasAdvanceWnd() const {
    return m_pAdvanceWnd && ::IsWindow(m_pAdvanceWnd->m_hWnd);
}

void CQVFileDialog::TellAdvanceWnd(WPARAM what, LPARAM detail) const {
    if (HasAdvanceWnd())
        m_pAdvanceWnd->SendMessage(WM_QV_FILESELCHANGE, what, detail);
}

void CQVFileDialog::DockAdvanceWnd() {
    CRect window;
    m_pAdvanceWnd->GetWindowRect(&window);
    CRect frame;
    ::GetWindowRect(Frame(), &frame);
    ::SetWindowPos(Frame(), nullptr, 0, 0, frame.Width(), frame.Height() + window.Height(), kSizeOnly);
    m_pParts->advance.Dock(m_pAdvanceWnd->m_hWnd, Frame());
    MoveItems();
    m_szAdvance = window.Size();
    PlaceDockedWnd();
    TellAdvanceWnd(FILESEL_ATTACHED, reinterpret_cast<LPARAM>(this));
    m_pAdvanceWnd->ShowWindow(SW_SHOW);
}

void CQVFileDialog::PlaceDockedWnd() {
    std::optional<int> panelBottom;
    if (m_wndForderImport.m_hWnd)
        panelBottom = ImportPanelBottom();
    m_pAdvanceWnd->MoveWindow(
        PlaceAdvanceWindow(FrameClient().Size(), m_szAdvance, m_dwOption, panelBottom, Dpi()));
}

int CQVFileDialog::ImportPanelBottom() const {
    CRect panel;
    m_wndForderImport.GetWindowRect(&panel);
    m_pWndEx->ScreenToClient(&panel);
    return panel.bottom;
}

// The system has lowered its dialog meanwhile when it hides what stood at the bottom.
void CQVFileDialog::FitFrame() {
    CRect frame;
    ::GetWindowRect(Frame(), &frame);
    const bool isBelowCancel = PlanOpenButton(m_dwOption) == OpenButtonPlace::Widened;
    if (m_wndForderImport.m_hWnd && isBelowCancel) {
        const int missing = MissingHeight(FrameClient().Height(), ImportPanelBottom(), Dpi());
        ::SetWindowPos(Frame(), nullptr, 0, 0, frame.Width(), frame.Height() + missing, kSizeOnly);
    }
    if (HasAdvanceWnd())
        PlaceDockedWnd();
}

// The system destroys its dialog: the host's window must not go with it, and no object may keep a window that is
// not its own.
void CQVFileDialog::ReleaseWindows() {
    m_pParts->advance.Undock();
    m_szAdvance = CSize(0, 0);
    m_dwPsdState &= ~static_cast<DWORD>(PSDSTATE_SHOWN);
    ReleaseShellList();
    m_pParts->listHolder.Detach();
    m_pShellViewHolder = nullptr;
}

void CQVFileDialog::ReleaseShellList() {
    m_pSkinnedList = nullptr;
    if (m_header.m_hWnd)
        m_header.UnsubclassWindow();
    if (const HWND list = m_pListView->UnsubclassWindow())
        QV_UnReplaceWnd(list); // it came before the object, so it goes after it
    if (m_pParts->shellView.m_hWnd)
        m_pParts->shellView.UnsubclassWindow();
}

void CQVFileDialog::OnGetMinMaxInfo(MINMAXINFO* lpMMI) {
    CFileDialog::OnGetMinMaxInfo(lpMMI);
    const TrackLimits limits = LimitsOfSize(m_szAdvance, Dpi());
    lpMMI->ptMinTrackSize = CPoint(limits.least);
    if (limits.most)
        lpMMI->ptMaxTrackSize = CPoint(*limits.most);
}

// The panel hangs below the frame's former bottom; nothing else moves.
void CQVFileDialog::ShowPsdOptionWnd(BOOL bShow) {
    const bool shown = (m_dwPsdState & PSDSTATE_SHOWN) != 0;
    const bool allowed = (m_dwPsdState & PSDSTATE_ALLOWED) != 0;
    if (!Frame() || !m_wndPsdOption.m_hWnd || (bShow ? shown || !allowed : !shown))
        return;
    ModifyStyle(WS_THICKFRAME, 0);
    const int height = QV_ScaleForDpi(static_cast<int>(m_wndPsdOption.GetMinHeight()), Dpi());
    CRect frame;
    ::GetWindowRect(Frame(), &frame);
    if (bShow)
        m_wndPsdOption.MoveWindow(PsdPanelBelow(FrameClient(), height, Dpi()));
    m_wndPsdOption.ShowWindow(bShow ? SW_SHOW : SW_HIDE);
    ::SetWindowPos(Frame(), nullptr, 0, 0, frame.Width(), frame.Height() + (bShow ? height : -height),
                   kSizeOnly);
    m_dwPsdState ^= PSDSTATE_SHOWN;
}

} // namespace _qv_commonwnd
