#include "QVPathBrowseWnd.h"

#include "PathBrowseLayout.h"

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

constexpr wchar_t kCloseImage[] = L"\\CommonCtrl\\Frame\\new\\close.png";

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

CQVPathBrowseWnd::CQVPathBrowseWnd()
    : m_band(PathBrowseCaption()), m_pTreeView(std::make_unique<CQVTreeView>()) {
    LoadCloseImage();
}

CQVPathBrowseWnd::~CQVPathBrowseWnd() {
    GiveControlsBack();
    if (m_hWnd)
        UnsubclassWindow();
    QV_ReleaseCommonRes(m_pCloseImage);
}

void CQVPathBrowseWnd::Drop() {
    if (--m_nOwners == 0)
        delete this;
}

void CQVPathBrowseWnd::LoadCloseImage() {
    QV_ReleaseCommonRes(m_pCloseImage);
    m_pCloseImage = QV_LoadImageEx(QV_GetSkinPath() + kCloseImage, QVIMAGE_STATES, 0, 0);
}

UINT CQVPathBrowseWnd::Dpi() const {
    return QV_GetWindowDpi(m_hWnd);
}

CRect CQVPathBrowseWnd::Client() const {
    CRect client;
    GetClientRect(&client);
    return client;
}

void CQVPathBrowseWnd::TakeOver(HWND dialog) {
    if (!SubclassWindow(dialog))
        return;
    AttachSkin(this);
    m_bCloseHot = 0;
    StripFrame();
    SetWindowText(LWLoadString(L"IDS_COMMON_BROWSE_FOLDERS"));
    TakeControls();
    TakeTree();
    ApplyFonts();
    const CSize size = PathBrowseSize(Dpi());
    SetWindowPos(nullptr, 0, 0, size.cx, size.cy,
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
    LayOut(); // the dialog may have had this size before
}

void CQVPathBrowseWnd::StripFrame() {
    constexpr DWORD kStyles[] = {WS_CAPTION,      WS_THICKFRAME, WS_SYSMENU,
                                 WS_CLIPSIBLINGS, DS_3DLOOK,     DS_MODALFRAME};
    for (const DWORD style : kStyles)
        ModifyStyle(style, 0);
    for (const DWORD style : {DWORD(WS_EX_DLGMODALFRAME), DWORD(WS_EX_WINDOWEDGE)})
        ModifyStyleEx(style, 0);
    ModifyStyle(0, WS_CLIPCHILDREN); // what is painted here must not show through the controls
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
        m_stcTitle.ModifyStyle(0, SS_CENTERIMAGE);
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

void CQVPathBrowseWnd::GiveControlsBack() {
    m_pTreeView->GiveBack();
    GiveBack(m_btnOk);
    GiveBack(m_btnCancel);
    GiveBack(m_btnNewFolder);
    GiveBack(m_stcTitle);
    m_hTreeHost = nullptr;
}

void CQVPathBrowseWnd::OnSkinChange(UINT reason, HWND wnd) {
    LoadCloseImage();
    ApplyFonts();
    m_pTreeView->ApplySkin();
    CQVBaseCtrl::OnSkinChange(reason, wnd);
}

void CQVPathBrowseWnd::OnDestroy() {
    GiveControlsBack();
    DetachSkin();
    CWnd::OnDestroy();
}

} // namespace _qv_commonwnd
