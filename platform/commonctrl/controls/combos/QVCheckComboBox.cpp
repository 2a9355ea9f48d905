#include "QVCheckComboBox.h"

#include "CheckMarks.h"
#include "ComboParts.h"
#include "ComboRow.h"
#include "controls/Mark.h"
#include "QVCheckLBox.h"

#include <algorithm>

namespace _qv_commonctrl {

IMPLEMENT_DYNAMIC(CQVCheckComboBox, CQVComboBox)

namespace {

constexpr int kMarkInsetPx = 4; // from the row's edge to its box
constexpr wchar_t kTextSeparator[] = L", ";

} // namespace

CQVCheckComboBox::CQVCheckComboBox() : m_pMarks(new CheckMarks) {
}

CQVCheckComboBox::~CQVCheckComboBox() {
    if (m_hWnd)
        CQVCheckComboBox::DestroyWindow();
    delete m_pMarks;
}

void CQVCheckComboBox::PreSubclassWindow() {
    CQVComboBox::PreSubclassWindow();
    m_pMarks->destroying = false;
    m_pMarks->Reset(GetCount());
}

CQVComboLBox* CQVCheckComboBox::CreateListObject() {
    return new CQVCheckLBox;
}

int CQVCheckComboBox::GetCheck(int item) const {
    return m_pMarks->Get(item);
}

BOOL CQVCheckComboBox::SetCheck(int item, BOOL check) {
    if (!m_pMarks->Set(item, check != FALSE))
        return FALSE;
    RepaintMarks();
    return TRUE;
}

void CQVCheckComboBox::CheckAll(BOOL check) {
    m_pMarks->SetAll(check != FALSE);
    if (m_hWnd)
        RepaintMarks();
}

void CQVCheckComboBox::RepaintMarks() {
    if (const HWND list = ComboInfoOf(m_hWnd).hwndList)
        ::InvalidateRect(list, nullptr, FALSE);
    Invalidate(FALSE);
}

CString CQVCheckComboBox::GetText(int item) const {
    return ComboEntryText(*this, item);
}

// Stops when there is more than can be seen: a field is painted often, and its list may be long.
CString CQVCheckComboBox::GetCheckedTexts(int enoughChars) const {
    CString all;
    const int count = GetCount();
    for (int item = 0; item < count && all.GetLength() <= enoughChars; ++item) {
        if (!GetCheck(item))
            continue;
        if (!all.IsEmpty())
            all += kTextSeparator;
        all += GetText(item);
    }
    return all;
}

void CQVCheckComboBox::Toggle(int item) {
    SetCheck(item, !GetCheck(item));
}

// An open list closes before the system tells of the destruction.
BOOL CQVCheckComboBox::DestroyWindow() {
    m_pMarks->destroying = true;
    return CQVComboBox::DestroyWindow();
}

void CQVCheckComboBox::OnListClosed() {
    const HWND parent = ::GetParent(m_hWnd);
    if (!m_pMarks->destroying && parent)
        ::SendMessageW(parent, WM_QV_CHECKCOMBO_CLOSEUP, static_cast<WPARAM>(GetDlgCtrlID()),
                       reinterpret_cast<LPARAM>(m_hWnd));
}

void CQVCheckComboBox::DrawEntry(CDC* dc, int item, const CRect& rect, UINT itemState) {
    CRect place(rect);
    const bool field = (itemState & ODS_COMBOBOXEDIT) != 0;
    FillComboRow(dc, rect, itemState);
    if (!field) {
        const int side = std::min(QV_ScalePx(m_hWnd, kMarkBoxPx), rect.Height() - 2);
        const int left = rect.left + QV_ScalePx(m_hWnd, kMarkInsetPx);
        const int top = rect.top + (rect.Height() - side) / 2;
        const ControlState state = itemState & ODS_DISABLED ? ControlState::Disabled : ControlState::Normal;
        DrawMark(dc, CRect(left, top, left + side, top + side),
                 {MarkShape::Check, state, GetCheck(item), false}, QV_GetWindowDpi(m_hWnd));
        place.left = left + side;
    }
    DrawComboText(dc, m_hWnd, field ? GetCheckedTexts(place.Width()) : GetText(item), place, itemState);
}

LRESULT CQVCheckComboBox::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_DESTROY:
        m_pMarks->destroying = true;
        break;
    case WM_KEYDOWN:
        if (wParam == VK_SPACE) {
            if (GetDroppedState())
                Toggle(GetCurSel());
            else
                ShowDropDown(TRUE);
            return 0;
        }
        break;
    case WM_CHAR: // would select the next entry that begins with a space
        if (wParam == VK_SPACE)
            return 0;
        break;
    default:
        break;
    }
    const LRESULT result = CQVComboBox::WindowProc(message, wParam, lParam);
    m_pMarks->Follow(message, wParam, result, message == CB_DIR ? GetCount() : 0);
    return result;
}

} // namespace _qv_commonctrl
