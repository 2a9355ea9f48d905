#include "QVComboBox.h"

#include "QVComboImpl.h"
#include "QVMark.h"

#include <algorithm>
#include <vector>

namespace _qv_commonctrl {

IMPLEMENT_DYNAMIC(CQVCheckComboBox, CQVComboBox)

namespace {

constexpr int kMarkInsetPx = 4; // from the row's edge to its box
constexpr wchar_t kTextSeparator[] = L", ";

} // namespace

// The list: a click toggles and does not close.
class CQVCheckLBox : public CQVComboLBox {
  protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

  private:
    int ItemAt(CPoint point);
    CQVCheckComboBox* CheckCombo() const { return static_cast<CQVCheckComboBox*>(GetCombo()); }
};

int CQVCheckLBox::ItemAt(CPoint point) {
    CRect client;
    GetClientRect(client);
    BOOL outside = TRUE;
    const int item = static_cast<int>(ItemFromPoint(point, outside));
    CRect row;
    const bool hit =
        !outside && client.PtInRect(point) && GetItemRect(item, row) != LB_ERR && row.PtInRect(point);
    return hit ? item : -1;
}

LRESULT CQVCheckLBox::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK: // the second press of a quick pair toggles again
        if (const int item = ItemAt(CPoint(lParam)); item >= 0 && CheckCombo()) {
            SetCurSel(item);
            CheckCombo()->Toggle(item);
            return 0;
        }
        break;
    case WM_LBUTTONUP:
        if (ItemAt(CPoint(lParam)) >= 0)
            return 0;
        break;
    default:
        break;
    }
    const LRESULT result = CQVComboLBox::WindowProc(message, wParam, lParam);
    if (message == WM_WINDOWPOSCHANGED && CheckCombo() &&
        (reinterpret_cast<const WINDOWPOS*>(lParam)->flags & SWP_HIDEWINDOW))
        CheckCombo()->OnListClosed();
    return result;
}

class CQVCheckComboImpl {
  public:
    std::vector<unsigned char> checks; // one per entry: 0 or 1
    bool destroying = false;

    bool Has(int item) const { return item >= 0 && static_cast<std::size_t>(item) < checks.size(); }
};

CQVCheckComboBox::CQVCheckComboBox() : m_pCheckImpl(new CQVCheckComboImpl) {
}

CQVCheckComboBox::~CQVCheckComboBox() {
    if (m_hWnd)
        CQVCheckComboBox::DestroyWindow();
    delete m_pCheckImpl;
}

void CQVCheckComboBox::PreSubclassWindow() {
    CQVComboBox::PreSubclassWindow();
    m_pCheckImpl->destroying = false;
    m_pCheckImpl->checks.assign(static_cast<std::size_t>(std::max(0, GetCount())), 0);
}

CQVComboLBox* CQVCheckComboBox::CreateListObject() {
    return new CQVCheckLBox;
}

int CQVCheckComboBox::GetCheck(int item) const {
    return m_pCheckImpl->Has(item) ? m_pCheckImpl->checks[static_cast<std::size_t>(item)] : 0;
}

BOOL CQVCheckComboBox::SetCheck(int item, BOOL check) {
    if (!m_pCheckImpl->Has(item))
        return FALSE;
    m_pCheckImpl->checks[static_cast<std::size_t>(item)] = check != FALSE;
    RepaintMarks();
    return TRUE;
}

void CQVCheckComboBox::CheckAll(BOOL check) {
    std::fill(m_pCheckImpl->checks.begin(), m_pCheckImpl->checks.end(), check != FALSE);
    if (m_hWnd)
        RepaintMarks();
}

void CQVCheckComboBox::RepaintMarks() {
    COMBOBOXINFO info = {};
    info.cbSize = sizeof info;
    if (GetComboBoxInfo(&info) && info.hwndList)
        ::InvalidateRect(info.hwndList, nullptr, FALSE);
    Invalidate(FALSE);
}

CString CQVCheckComboBox::GetText(int item) const {
    CString text;
    const int length = item >= 0 && item < GetCount() ? GetLBTextLen(item) : 0;
    if (length > 0) {
        GetLBText(item, text.GetBuffer(length + 1));
        text.ReleaseBuffer();
    }
    return text;
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
    m_pCheckImpl->destroying = true;
    return CQVComboBox::DestroyWindow();
}

void CQVCheckComboBox::OnListClosed() {
    const HWND parent = ::GetParent(m_hWnd);
    if (!m_pCheckImpl->destroying && parent)
        ::SendMessageW(parent, WM_QV_CHECKCOMBO_CLOSEUP, static_cast<WPARAM>(GetDlgCtrlID()),
                       reinterpret_cast<LPARAM>(m_hWnd));
}

void CQVCheckComboBox::DrawEntry(CDC* dc, int item, const CRect& rect, UINT itemState) {
    CRect place(rect);
    const bool field = (itemState & ODS_COMBOBOXEDIT) != 0;
    const bool selected = (itemState & ODS_SELECTED) && !field;
    if (!field) {
        dc->FillSolidRect(rect, QV_GetSysColor(selected ? QVCLR_SELECTION : QVCLR_COMBO_LIST));
        const int side = std::min(QV_ScalePx(m_hWnd, kMarkBoxPx), rect.Height() - 2);
        const int left = rect.left + QV_ScalePx(m_hWnd, kMarkInsetPx);
        const int top = rect.top + (rect.Height() - side) / 2;
        const ControlState state = itemState & ODS_DISABLED ? ControlState::Disabled : ControlState::Normal;
        DrawMark(dc, CRect(left, top, left + side, top + side),
                 {MarkShape::Check, state, GetCheck(item), false}, QV_GetWindowDpi(m_hWnd));
        place.left = left + side;
    }
    constexpr int textInsetPx = 5;
    place.left += QV_ScalePx(m_hWnd, textInsetPx);
    const int color = itemState & ODS_DISABLED ? QVCLR_TEXT_DISABLED
                      : selected               ? QVCLR_TEXT_SELECTED
                                               : QVCLR_TEXT_WINDOW;
    DrawTextIn(dc, field ? GetCheckedTexts(place.Width()) : GetText(item), place,
               DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS, WindowFontOf(m_hWnd),
               QV_GetSysColor(color));
}

// Keeps the check marks beside their entries whoever changes the list.
void CQVCheckComboBox::FollowEntries(UINT message, WPARAM wParam, LRESULT result) {
    auto& checks = m_pCheckImpl->checks;
    const auto index = static_cast<std::size_t>(message == CB_DELETESTRING ? wParam : result);
    switch (message) {
    case CB_ADDSTRING:
    case CB_INSERTSTRING:
        if (result >= 0 && index <= checks.size())
            checks.insert(checks.begin() + static_cast<std::ptrdiff_t>(index), 0);
        break;
    case CB_DELETESTRING:
        if (result >= 0 && index < checks.size())
            checks.erase(checks.begin() + static_cast<std::ptrdiff_t>(index));
        break;
    case CB_RESETCONTENT:
        checks.clear();
        break;
    case CB_DIR:
        checks.assign(static_cast<std::size_t>(std::max(0, GetCount())), 0);
        break;
    default:
        break;
    }
}

LRESULT CQVCheckComboBox::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_DESTROY:
        m_pCheckImpl->destroying = true;
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
    FollowEntries(message, wParam, result);
    return result;
}

} // namespace _qv_commonctrl
