#include "QVDialog.h"

#include "ControlFactory.h"
#include "QVDict.h"
#include "paint/PaintKit.h"

namespace _qv_commonctrl {

IMPLEMENT_DYNAMIC(CQVDialog, CDialog)

BEGIN_MESSAGE_MAP(CQVDialog, CDialog)
    ON_WM_ERASEBKGND()
    ON_WM_PAINT()
    ON_WM_CTLCOLOR()
    ON_WM_DESTROY()
END_MESSAGE_MAP()

namespace {

std::vector<HWND> DirectChildren(HWND parent) {
    std::vector<HWND> children;
    for (HWND child = ::GetWindow(parent, GW_CHILD); child; child = ::GetWindow(child, GW_HWNDNEXT))
        children.push_back(child);
    return children;
}

void TranslateText(HWND wnd, QVDictCallBack callBack) {
    const CString text = WindowTextOf(wnd);
    if (text.IsEmpty())
        return;
    const wchar_t* shown = callBack(text);
    if (shown && text != shown)
        ::SetWindowTextW(wnd, shown);
}

} // namespace

CQVDialog::CQVDialog() = default;

CQVDialog::CQVDialog(UINT templateId, CWnd* parent) : CDialog(templateId, parent) {
}

CQVDialog::CQVDialog(LPCWSTR templateName, CWnd* parent) : CDialog(templateName, parent) {
}

CQVDialog::~CQVDialog() {
    // A window that still exists goes first: its controls are worn by the objects below.
    if (m_hWnd)
        DestroyWindow();
    for (CWnd* control : m_ownedControls)
        delete control;
}

BOOL CQVDialog::OnInitDialog() {
    const BOOL result = CDialog::OnInitDialog();
    AttachFrame(this);
    ModifyStyle(0, WS_CLIPCHILDREN);
    TranslateTemplate();
    SkinTemplateControls();
    SetControlFonts();
    return result;
}

void CQVDialog::TranslateTemplate() {
    const QVDictCallBack callBack = QV_GetDictCallBack();
    if (!callBack)
        return;
    TranslateText(m_hWnd, callBack);
    for (const HWND child : DirectChildren(m_hWnd)) {
        if (HasTemplateText(child))
            TranslateText(child, callBack);
    }
}

void CQVDialog::SkinTemplateControls() {
    for (const HWND child : DirectChildren(m_hWnd)) {
        if (CWnd::FromHandlePermanent(child))
            continue;
        if (CWnd* control = MakeSkinnedControl(child))
            m_ownedControls.push_back(control);
    }
}

void CQVDialog::SetControlFonts() {
    CFont* font = QV_GetSysFont(QVFONT_UI, QV_GetWindowDpi(m_hWnd));
    SetFont(font, FALSE);
    for (const HWND child : DirectChildren(m_hWnd))
        ::SendMessageW(child, WM_SETFONT, reinterpret_cast<WPARAM>(font->GetSafeHandle()), FALSE);
}

BOOL CQVDialog::PreTranslateMessage(MSG* msg) {
    return CDialog::PreTranslateMessage(msg);
}

void CQVDialog::OnSkinChange(UINT reason, HWND wnd) {
    if (!m_hWnd)
        return;
    const CFont* font = QV_GetSysFont(QVFONT_UI, QV_GetWindowDpi(m_hWnd));
    for (const HWND child : DirectChildren(m_hWnd)) {
        // Skinned controls set their font themselves; the others still have the handle that is void now.
        const auto former = reinterpret_cast<HGDIOBJ>(::SendMessageW(child, WM_GETFONT, 0, 0));
        if (former && ::GetObjectType(former) != OBJ_FONT)
            ::SendMessageW(child, WM_SETFONT, reinterpret_cast<WPARAM>(font->GetSafeHandle()), FALSE);
    }
    CQVBaseFrame::OnSkinChange(reason, wnd);
    RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN);
}

void CQVDialog::DoDataExchange(CDataExchange* dx) {
    CDialog::DoDataExchange(dx);
}

LRESULT CQVDialog::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_SETFONT)
        NoteSkinFont(reinterpret_cast<HFONT>(wParam));
    LRESULT result = 0;
    if (HandleFrameMessage(message, wParam, lParam, result))
        return result;
    return CDialog::WindowProc(message, wParam, lParam);
}

BOOL CQVDialog::OnEraseBkgnd(CDC* dc) {
    CRect client;
    GetClientRect(client);
    ::FillRect(*dc, client, QV_GetSysBrush(QVBRUSH_WINDOW));
    return TRUE;
}

void CQVDialog::OnPaint() {
    CPaintDC dc(this); // the ground is all there is; BeginPaint has erased it
}

HBRUSH CQVDialog::OnCtlColor(CDC* dc, CWnd* wnd, UINT ctlColor) {
    LRESULT own = 0;
    if (wnd && wnd->SendChildNotifyLastMsg(&own))
        return reinterpret_cast<HBRUSH>(own);
    return SkinCtlColor(*dc, wnd ? wnd->m_hWnd : nullptr, ctlColor);
}

void CQVDialog::OnDestroy() {
    CDialog::OnDestroy();
    DetachFrame();
}

void CQVDialog::PostNcDestroy() {
    for (CWnd* control : m_ownedControls)
        delete control;
    m_ownedControls.clear();
    CDialog::PostNcDestroy();
}

} // namespace _qv_commonctrl
