#include "QVComboBoxSt.h"

#include "support/Handles.h"

#include <QVSkin.h>

namespace _qv_commonwnd {

using namespace _qv_commonctrl;

namespace {

// Pixels at 96 DPI.
constexpr int kIconLeftPx = 4; // in the closed field
constexpr int kIconSizePx = 16;
constexpr int kIconToTextPx = 5;

constexpr DWORD kStyleKind = 3;

// Messages that change the rows.
bool ChangesRows(UINT message) {
    switch (message) {
    case CB_ADDSTRING:
    case CB_INSERTSTRING:
    case CB_DELETESTRING:
    case CB_RESETCONTENT:
    case CB_SETITEMDATA:
        return true;
    default:
        return false;
    }
}

} // namespace

void DrawFolderText(CDC* dc, const CString& text, const CRect& rect, COLORREF color, UINT dpi) {
    CRect place(rect);
    const int font = QV_GetFontIndex(text);
    const Selection selected(dc->GetSafeHdc(), QV_GetSysFont(font, dpi)->GetSafeHandle());
    dc->SetBkMode(TRANSPARENT);
    dc->SetTextColor(color);
    dc->DrawText(text, place, DT_SINGLELINE | DT_VCENTER | DT_WORD_ELLIPSIS | DT_NOPREFIX);
}

IMPLEMENT_DYNAMIC(CQVComboBoxSt, CQVComboBox)

CQVComboBoxSt::CQVComboBoxSt() : m_bHooked(FALSE), m_dwStyle(0), m_pToolTip(nullptr) {
}

CQVComboBoxSt::~CQVComboBoxSt() {
    DisableListHook();
}

void CQVComboBoxSt::PreSubclassWindow() {
    DisableListHook(); // of a window that is gone
    CQVComboBox::PreSubclassWindow();
    EnableListHook();
}

void CQVComboBoxSt::EnableListHook() {
    if (m_bHooked || !m_hWnd)
        return;
    m_bHooked = TRUE;
    ModifyStyle(0, CBS_OWNERDRAWFIXED | CBS_HASSTRINGS);
    m_dwStyle = GetStyle();
    m_folders.SetWindows(m_hWnd, ::GetParent(m_hWnd));
    COMBOBOXINFO info = {};
    info.cbSize = sizeof info;
    if (!::GetComboBoxInfo(m_hWnd, &info))
        return;
    CFont* const font = QV_GetSysFont(QVFONT_UI, QV_GetWindowDpi(m_hWnd));
    m_pList = std::make_unique<CQVComboLBoxEx>();
    m_pList->SetSimple((m_dwStyle & kStyleKind) == CBS_SIMPLE);
    m_pList->SetOwnerCombo(this);
    if (SetListObject(m_pList.get()))
        m_pList->SetFont(font);
    if (info.hwndItem && info.hwndItem != m_hWnd && !FromHandlePermanent(info.hwndItem)) {
        m_pEdit = std::make_unique<CQVEdit>();
        if (m_pEdit->SubclassWindow(info.hwndItem))
            m_pEdit->SetFont(font);
    }
}

void CQVComboBoxSt::DisableListHook() {
    if (!m_bHooked)
        return;
    m_bHooked = FALSE;
    m_pList.reset();
    if (m_pEdit && m_pEdit->m_hWnd)
        m_pEdit->UnsubclassWindow();
    m_pEdit.reset();
    delete std::exchange(m_pToolTip, nullptr);
    m_folders.SetWindows(nullptr, nullptr);
}

LRESULT CQVComboBoxSt::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    const LRESULT result = CQVComboBox::WindowProc(message, wParam, lParam);
    if (ChangesRows(message))
        m_folders.Forget();
    return result;
}

// The closed field; the rows are the list's.
void CQVComboBoxSt::DrawEntry(CDC* dc, int item, const CRect& rect, UINT itemState) {
    if (!(itemState & ODS_COMBOBOXEDIT)) {
        CQVComboBox::DrawEntry(dc, item, rect, itemState);
        return;
    }
    auto px = [this](int px96) { return QV_ScalePx(m_hWnd, px96); };
    if (item < 0)
        return;
    const int size = px(kIconSizePx);
    CRect text(rect);
    text.left += px(kIconLeftPx) + size + px(kIconToTextPx);
    const HICON icon = GetDroppedState() ? m_folders.Icon(item) : m_folders.IconOfFolderInView();
    if (icon)
        ::DrawIconEx(dc->GetSafeHdc(), rect.left + px(kIconLeftPx), rect.top + (rect.Height() - size) / 2,
                     icon, size, size, 0, nullptr, DI_NORMAL);
    DrawFolderText(dc, m_folders.Text(item), text,
                   QV_GetSysColor(itemState & ODS_DISABLED ? QVCLR_TEXT_DISABLED : QVCLR_TEXT_WINDOW),
                   QV_GetWindowDpi(m_hWnd));
}

} // namespace _qv_commonwnd
