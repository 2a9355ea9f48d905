#include "QVPathBrowseWnd.h"

#include "PathBrowseLayout.h"
#include "support/WindowText.h"

#include <LWSupportAPI.h>

#include <shlobj.h>

using namespace _qv_commonctrl;

namespace _qv_commonwnd {

namespace {

// Controls of the system's dialog.
constexpr int kTreeHostId = 0;
constexpr int kTreeInHostId = 100;
constexpr int kTreeAloneId = 14145; // of systems on which the tree stands in the dialog itself
constexpr int kTitleId = 14146;
constexpr int kNewFolderId = 14150;
constexpr int kStatusId = 14151;

constexpr int kTreeFramePx = 1; // at 96 DPI

struct SystemTree {
    HWND host;
    HWND tree;
};

SystemTree FindTree(HWND dialog) {
    const HWND host = ::GetDlgItem(dialog, kTreeHostId);
    const HWND inHost = host ? ::GetDlgItem(host, kTreeInHostId) : nullptr;
    if (inHost)
        return {host, inHost};
    const HWND alone = ::GetDlgItem(dialog, kTreeAloneId);
    return {alone, alone};
}

void TakeButton(HWND dialog, int id, const wchar_t* textKey, CQVButton& button) {
    const HWND control = ::GetDlgItem(dialog, id);
    if (!control)
        return;
    ::SetWindowTextW(control, LWLoadString(textKey));
    button.SubclassWindow(control);
}

void GiveBack(CWnd& control) {
    if (control.m_hWnd)
        control.UnsubclassWindow();
}

} // namespace

BEGIN_MESSAGE_MAP(CQVPathBrowseWnd, CSystemDialogFrame)
    ON_WM_SIZE()
    ON_WM_CTLCOLOR()
    ON_WM_DESTROY()
END_MESSAGE_MAP()

CQVPathBrowseWnd::CQVPathBrowseWnd()
    : CSystemDialogFrame(PathBrowseCaption()), m_pTreeView(std::make_unique<CQVTreeView>()) {
}

CQVPathBrowseWnd::~CQVPathBrowseWnd() {
    GiveControlsBack();
    if (m_hWnd)
        UnsubclassWindow();
}

void CQVPathBrowseWnd::Drop() {
    if (--m_nOwners == 0)
        delete this;
}

void CQVPathBrowseWnd::TakeOver(HWND dialog) {
    if (!SubclassWindow(dialog))
        return;
    StripFrame(WS_THICKFRAME);
    ModifyStyle(0, WS_CLIPCHILDREN); // what is painted here must not show through the controls
    SetWindowText(LWLoadString(L"IDS_COMMON_BROWSE_FOLDERS"));
    TakeControls();
    TakeTree();
    ApplyFonts();
    const CSize size = PathBrowseSize(Dpi());
    SetWindowPos(nullptr, 0, 0, size.cx, size.cy,
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
    LayOut(); // the dialog may have had this size before
}

void CQVPathBrowseWnd::TakeControls() {
    TakeButton(m_hWnd, IDOK, L"IDS_COMMON_OK", m_btnOk);
    TakeButton(m_hWnd, IDCANCEL, L"IDS_COMMON_CANCEL", m_btnCancel);
    TakeButton(m_hWnd, kNewFolderId, L"IDS_COMMON_NEW_FOLDER", m_btnNewFolder);
    if (m_btnNewFolder.m_hWnd) {
        m_btnNewFolder.ShowWindow(m_bShowNewFolder ? SW_SHOW : SW_HIDE);
        if (const HWND status = ::GetDlgItem(m_hWnd, kStatusId))
            ::ShowWindow(status, SW_HIDE);
    }
    if (const HWND title = ::GetDlgItem(m_hWnd, kTitleId)) {
        m_stcTitle.SubclassWindow(title);
        m_stcTitle.ModifyStyle(0, SS_CENTERIMAGE | SS_NOPREFIX); // the text is the host's
    }
}

void CQVPathBrowseWnd::TakeTree() {
    const SystemTree found = FindTree(m_hWnd);
    // Kept: once the scroll bars are replaced, the dialog has further children without an id.
    m_hTreeHost = found.host;
    if (!found.host)
        return;
    CWnd::ModifyStyle(found.host, WS_BORDER, 0, 0);
    CWnd* const host = CWnd::FromHandle(found.host);
    host->ModifyStyleEx(WS_EX_CLIENTEDGE | WS_EX_STATICEDGE, 0, SWP_FRAMECHANGED);
    m_pTreeView->TakeOver(found.tree);
}

void CQVPathBrowseWnd::ApplyFonts() {
    CFont* const font = QV_GetSysFont(QVFONT_UI, Dpi());
    for (CWnd* control :
         {static_cast<CWnd*>(&m_btnOk), static_cast<CWnd*>(&m_btnCancel), static_cast<CWnd*>(&m_btnNewFolder),
          static_cast<CWnd*>(&m_stcTitle), static_cast<CWnd*>(m_pTreeView.get())}) {
        if (control->m_hWnd)
            control->SetFont(font);
    }
}

void CQVPathBrowseWnd::LayOut() {
    const PathBrowseLayout layout = LayOutPathBrowse(Client(), Dpi());
    const struct {
        HWND control;
        const CRect& place;
    } moves[] = {{m_stcTitle.m_hWnd, layout.title},
                 {m_hTreeHost, layout.tree},
                 {m_btnOk.m_hWnd, layout.ok},
                 {m_btnCancel.m_hWnd, layout.cancel},
                 {m_btnNewFolder.m_hWnd, layout.newFolder}};
    for (const auto& move : moves) {
        if (move.control)
            ::SetWindowPos(move.control, nullptr, move.place.left, move.place.top, move.place.Width(),
                           move.place.Height(), SWP_NOZORDER | SWP_NOACTIVATE);
    }
    Invalidate(FALSE);
}

// The system's own arrangement comes first, ours has the last word.
void CQVPathBrowseWnd::OnSize(UINT type, int cx, int cy) {
    CSystemDialogFrame::OnSize(type, cx, cy);
    if (type == SIZE_MINIMIZED)
        return;
    CRect window;
    GetWindowRect(&window);
    const CSize size = PathBrowseSize(Dpi());
    if (window.Size() != size)
        ResizeInPlace(*this, size);
    LayOut();
}

void CQVPathBrowseWnd::PaintMore(CDC& dc) {
    if (!m_hTreeHost)
        return;
    CRect tree;
    ::GetWindowRect(m_hTreeHost, &tree);
    ScreenToClient(&tree);
    CBrush frame(QV_GetSysColor(QVCLR_TREE_FRAME));
    for (int i = 0; i < QV_ScaleForDpi(kTreeFramePx, Dpi()); ++i) {
        tree.InflateRect(1, 1);
        dc.FrameRect(tree, &frame);
    }
}

HBRUSH CQVPathBrowseWnd::OnCtlColor(CDC* dc, CWnd*, UINT) {
    if (dc) {
        dc->SetTextColor(QV_GetSysColor(QVCLR_TEXT_WINDOW));
        dc->SetBkColor(QV_GetSysColor(QVCLR_WINDOW));
    }
    return QV_GetSysBrush(QVBRUSH_WINDOW);
}

void CQVPathBrowseWnd::OnSkinChange(UINT reason, HWND wnd) {
    ApplyFonts();
    m_pTreeView->ApplySkin();
    CSystemDialogFrame::OnSkinChange(reason, wnd);
}

// The system destroys its dialog: no object may keep a window that is not its own.
void CQVPathBrowseWnd::OnDestroy() {
    GiveControlsBack();
    DetachSkin();
    CSystemDialogFrame::OnDestroy();
}

void CQVPathBrowseWnd::GiveControlsBack() {
    m_pTreeView->GiveBack();
    GiveBack(m_btnOk);
    GiveBack(m_btnCancel);
    GiveBack(m_btnNewFolder);
    GiveBack(m_stcTitle);
    m_hTreeHost = nullptr;
}

} // namespace _qv_commonwnd
