#include "QVComboBox.h"

#include "ComboParts.h"
#include "controls/NativePaintPause.h"
#include "skin/SkinBrushPool.h"

namespace _qv_commonctrl {

IMPLEMENT_DYNAMIC(CQVComboBox, CComboBox)

namespace {

// What the system's combo box does after a message: it draws at once without telling the parent anything, or
// it may draw in between its notifications.
enum class Drawing { None, Silent, WithNotice };

Drawing DrawingOf(UINT message, WPARAM wParam) {
    switch (message) {
    case WM_COMMAND: // of the edit field, whose text is its own
        return HIWORD(wParam) == EN_UPDATE || HIWORD(wParam) == EN_CHANGE ? Drawing::None
                                                                          : Drawing::WithNotice;
    case CB_SETCURSEL:
    case CB_SELECTSTRING:
    case CB_RESETCONTENT:
    case CB_DELETESTRING:
    case CB_SETITEMHEIGHT:
    case WM_SETTEXT:
    case WM_SETFONT:
    case WM_ENABLE:
        return Drawing::Silent;
    case CB_SHOWDROPDOWN:
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
    case WM_LBUTTONDOWN:
    case WM_LBUTTONUP:
    case WM_LBUTTONDBLCLK:
    case WM_KEYDOWN:
    case WM_SYSKEYDOWN:
    case WM_CHAR:
    case WM_MOUSEWHEEL:
    case WM_CAPTURECHANGED:
    case WM_SIZE:
    case WM_UPDATEUISTATE:
        return Drawing::WithNotice;
    default:
        return Drawing::None;
    }
}

HBRUSH PartColors(HDC dc, HWND combo, UINT message) {
    const bool enabled = ::IsWindowEnabled(combo) != FALSE;
    const int ground = !enabled                        ? QVCLR_CTRL_DISABLED
                       : message == WM_CTLCOLORLISTBOX ? QVCLR_COMBO_LIST
                                                       : QVCLR_LIST;
    ::SetTextColor(dc, QV_GetSysColor(enabled ? QVCLR_TEXT_WINDOW : QVCLR_TEXT_DISABLED));
    ::SetBkColor(dc, QV_GetSysColor(ground));
    return SkinColorBrush(ground);
}

} // namespace

CQVComboBox::CQVComboBox() : m_pParts(new ComboParts(*this)) {
}

CQVComboBox::~CQVComboBox() {
    if (m_hWnd)
        DestroyWindow();
    delete m_pParts;
}

void CQVComboBox::PreSubclassWindow() {
    CComboBox::PreSubclassWindow();
    AttachSkinAndFont(this);
    m_pParts->AttachParts();
}

BOOL CQVComboBox::SetListObject(CQVComboLBox* list) {
    return m_hWnd ? m_pParts->SetListObject(list) : FALSE;
}

CQVComboLBox* CQVComboBox::CreateListObject() {
    return new CQVComboLBox;
}

BOOL CQVComboBox::HasEditField() const {
    return m_pParts->IsEditable();
}

void CQVComboBox::DrawEntry(CDC* dc, int item, const CRect& rect, UINT itemState) {
    if (m_pParts->HasStrings())
        m_pParts->DrawTextEntry(dc, item, rect, itemState);
    else
        m_pParts->DrawByParent(dc, item, rect, itemState);
}

LRESULT CQVComboBox::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    if (m_pParts->hot.Follow(m_hWnd, message))
        Invalidate(FALSE);
    switch (message) {
    case WM_ERASEBKGND:
        return TRUE;
    case WM_PAINT:
    case WM_PRINTCLIENT:
        PaintBuffered(m_hWnd, wParam, [this](CDC* dc, const CRect& client) { m_pParts->Paint(dc, client); });
        return 0;
    case WM_CTLCOLOREDIT:
    case WM_CTLCOLORLISTBOX:
    case WM_CTLCOLORSTATIC:
        return reinterpret_cast<LRESULT>(PartColors(reinterpret_cast<HDC>(wParam), m_hWnd, message));
    case WM_SETFONT:
        NoteSkinFont(reinterpret_cast<HFONT>(wParam));
        break;
    default:
        break;
    }
    const Drawing drawing = DrawingOf(message, wParam);
    if (drawing == Drawing::Silent) {
        NativePaintPause pause(m_hWnd);
        return CComboBox::WindowProc(message, wParam, lParam);
    }
    const LRESULT result = CComboBox::WindowProc(message, wParam, lParam);
    if (message == WM_SETREDRAW)
        m_pParts->SetListRedraw(wParam != FALSE);
    else if (message == WM_CREATE && result == 0)
        m_pParts->AttachParts();
    else if (drawing == Drawing::WithNotice)
        m_pParts->Repaint();
    return result;
}

} // namespace _qv_commonctrl
