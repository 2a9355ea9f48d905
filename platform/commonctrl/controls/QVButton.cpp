#include "QVButton.h"

#include "ButtonFace.h"
#include "NativePaintPause.h"

namespace _qv_commonctrl {

IMPLEMENT_DYNAMIC(CQVButton, CButton)

namespace {

// Messages at which the system's button draws at once. None of them tells the parent anything.
bool DrawsAtOnce(UINT message) {
    switch (message) {
    case BM_SETSTATE:
    case BM_SETCHECK:
    case BM_SETSTYLE:
    case BM_SETIMAGE:
    case WM_SETTEXT:
    case WM_SETFONT:
    case WM_ENABLE:
    case WM_UPDATEUISTATE:
        return true;
    default:
        return false;
    }
}

} // namespace

CQVButton::CQVButton() : m_pFace(new ButtonFace(*this)) {
}

CQVButton::~CQVButton() {
    if (m_hWnd)
        DestroyWindow();
    delete m_pFace;
}

void CQVButton::PreSubclassWindow() {
    CButton::PreSubclassWindow();
    AttachSkinAndFont(this);
}

BOOL CQVButton::SetImageList(LPCWSTR path, int states) {
    const bool loaded = m_pFace->image.Load(path, states, QV_GetWindowDpi(m_hWnd));
    if (!loaded)
        m_pFace->image.Clear();
    m_pFace->ApplyAutoSize();
    Invalidate(FALSE);
    return loaded;
}

void CQVButton::SetCheck(int check) {
    SendMessage(BM_SETCHECK, static_cast<WPARAM>(check));
}

int CQVButton::GetCheck() const {
    return static_cast<int>(SendMessage(BM_GETCHECK));
}

void CQVButton::SetAutoSize(BOOL enable) {
    m_pFace->autoSize = enable != FALSE;
    m_pFace->ApplyAutoSize();
}

void CQVButton::OnSkinChange(UINT reason, HWND wnd) {
    m_pFace->image.Reload(QV_GetWindowDpi(m_hWnd));
    CQVBaseCtrl::OnSkinChange(reason, wnd);
    m_pFace->ApplyAutoSize();
}

BOOL CQVButton::HandleCheckOfPushButton(UINT message, WPARAM wParam, LRESULT& result) {
    const DWORD type = GetStyle() & BS_TYPEMASK;
    if (type != BS_PUSHBUTTON && type != BS_DEFPUSHBUTTON)
        return FALSE;
    if (message == BM_SETCHECK) {
        const int check = wParam != BST_UNCHECKED;
        if (check != m_pFace->pushCheck) {
            m_pFace->pushCheck = check;
            Invalidate(FALSE);
        }
        result = 0;
        return TRUE;
    }
    result = m_pFace->pushCheck;
    return message == BM_GETCHECK;
}

LRESULT CQVButton::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    using Kind = ButtonFace::Kind;
    LRESULT result = 0;
    if ((message == BM_SETCHECK || message == BM_GETCHECK) &&
        HandleCheckOfPushButton(message, wParam, result))
        return result;
    if (!m_hWnd || m_pFace->GetKind() == Kind::Native)
        return CButton::WindowProc(message, wParam, lParam);
    if (message == BM_SETSTYLE && LOWORD(wParam) == LOWORD(GetStyle())) { // dialogs repeat it time and again
        if (lParam)
            Invalidate(FALSE);
        return 0;
    }
    if (m_pFace->hot.Follow(m_hWnd, message))
        Invalidate(FALSE);
    switch (message) {
    case WM_ERASEBKGND:
        return TRUE;
    case WM_PAINT:
    case WM_PRINTCLIENT:
        OnSkinPaint(wParam);
        return 0;
    default:
        break;
    }
    if (DrawsAtOnce(message)) {
        {
            NativePaintPause pause(m_hWnd);
            result = CButton::WindowProc(message, wParam, lParam);
        }
        AfterChange(message, wParam);
        return result;
    }
    result = CButton::WindowProc(message, wParam, lParam);
    if (m_hWnd && (message == WM_SETFOCUS || message == WM_KILLFOCUS))
        RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    return result;
}

void CQVButton::OnSkinPaint(WPARAM wParam) {
    if (m_pFace->GetKind() != ButtonFace::Kind::Group || wParam) {
        PaintBuffered(m_hWnd, wParam, [this](CDC* dc, const CRect& client) { m_pFace->Paint(dc, client); });
        return;
    }
    CRect client;
    GetClientRect(client);
    CPaintDC target(this);
    m_pFace->ExcludeSiblings(&target);
    CQVMemoDC picture(&target, client);
    m_pFace->Paint(&picture, client);
}

void CQVButton::AfterChange(UINT message, WPARAM wParam) {
    if (message == WM_SETFONT)
        NoteSkinFont(reinterpret_cast<HFONT>(wParam));
    if (message == WM_SETFONT || message == WM_SETTEXT)
        m_pFace->ApplyAutoSize();
    if (message == BM_SETSTATE) // the user's press shows before anything else happens
        UpdateWindow();
}

} // namespace _qv_commonctrl
