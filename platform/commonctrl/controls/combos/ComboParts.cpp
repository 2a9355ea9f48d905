#include "ComboParts.h"

#include "ComboRow.h"
#include "module/Guards.h"
#include "skin/SkinPicture.h"

#include <algorithm>

namespace _qv_commonctrl {

namespace {

constexpr int kCornerPx = 3;
constexpr int kFocusLinePx = 2;
constexpr int kEditMarginPx = 3;  // beside the text of the edit field, which itself stands 3 pixels inside
constexpr int kTextToArrowPx = 2; // least room between a text and the arrow
constexpr wchar_t kArrowImage[] = L"CommonCtrl\\Combo\\arrow.png";

} // namespace

COMBOBOXINFO ComboInfoOf(HWND combo) {
    COMBOBOXINFO info = {};
    info.cbSize = sizeof info;
    ::GetComboBoxInfo(combo, &info);
    return info;
}

CString ComboEntryText(const CComboBox& combo, int item) {
    CString text;
    if (item >= 0)
        combo.GetLBText(item, text);
    return text;
}

int ListItemAt(const CListBox& list, CPoint point) {
    CRect client;
    list.GetClientRect(client);
    BOOL outside = TRUE;
    const int item = static_cast<int>(list.ItemFromPoint(point, outside));
    CRect row;
    const bool hit =
        !outside && client.PtInRect(point) && list.GetItemRect(item, row) != LB_ERR && row.PtInRect(point);
    return hit ? item : -1;
}

ComboParts::~ComboParts() {
    // The windows may outlive the objects that wear them when the combo box was unsubclassed.
    TakeOff();
    if (m_edit && m_edit->m_hWnd)
        m_edit->UnsubclassWindow();
}

void ComboParts::AttachParts() {
    const COMBOBOXINFO info = ComboInfoOf(Wnd());
    if (info.hwndList && !CWnd::FromHandlePermanent(info.hwndList)) {
        if (!m_ownList)
            m_ownList.reset(m_combo.CreateListObject());
        WearList(m_ownList.get());
    }
    if (info.hwndItem && info.hwndItem != Wnd() && IsEditable() &&
        !CWnd::FromHandlePermanent(info.hwndItem)) {
        m_edit = std::make_unique<CQVEdit>();
        m_edit->SubclassWindow(info.hwndItem);
        m_edit->SetMargins(static_cast<UINT>(Px(kEditMarginPx)), static_cast<UINT>(Px(kEditMarginPx)));
    }
}

BOOL ComboParts::WearList(CQVComboLBox* list) {
    const HWND wnd = ComboInfoOf(Wnd()).hwndList;
    if (!list || !wnd || !list->SubclassWindow(wnd))
        return FALSE;
    list->m_pCombo = &m_combo;
    m_list = list;
    return TRUE;
}

BOOL ComboParts::SetListObject(CQVComboLBox* list) {
    if (list == m_list && list)
        return TRUE;
    TakeOff();
    if (list)
        return WearList(list);
    if (!m_ownList)
        m_ownList.reset(m_combo.CreateListObject());
    return WearList(m_ownList.get());
}

// The list's window is without an object of ours.
void ComboParts::TakeOff() {
    if (!m_list)
        return;
    m_list->m_pCombo = nullptr;
    if (m_list->m_hWnd)
        m_list->UnsubclassWindow();
    m_list = nullptr;
}

bool ComboParts::HasFocus() const {
    const HWND focus = ::GetFocus();
    return focus && (focus == Wnd() || ::GetParent(focus) == Wnd());
}

ControlState ComboParts::State() const {
    if (!::IsWindowEnabled(Wnd()))
        return ControlState::Disabled;
    if (IsDropped() && Kind() != CBS_SIMPLE)
        return ControlState::Pressed;
    return hot.IsHot() ? ControlState::Hot : ControlState::Normal;
}

void ComboParts::SetListRedraw(bool redraw) const {
    if (const HWND list = ComboInfoOf(Wnd()).hwndList)
        ::SendMessageW(list, WM_SETREDRAW, redraw, 0);
}

void ComboParts::Repaint() const {
    if (Wnd())
        ::RedrawWindow(Wnd(), nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_NOCHILDREN);
}

void ComboParts::Paint(CDC* dc, const CRect& client) {
    const COMBOBOXINFO info = ComboInfoOf(Wnd());
    FillParentGround(dc, Wnd(), WM_CTLCOLORSTATIC, client);
    const ControlState state = State();
    const bool disabled = state == ControlState::Disabled;
    CRect field(client);
    if (Kind() == CBS_SIMPLE) // the list stands below the field as a child
        field.bottom = std::min<LONG>(field.bottom, info.rcItem.bottom + info.rcItem.top);
    const bool likeEdit = m_combo.HasEditField() != FALSE;
    BoxLook look;
    look.fill = likeEdit && !disabled ? QV_GetSysColor(QVCLR_LIST) : ControlFill(state);
    look.border = QV_GetSysColor(disabled                    ? QVCLR_GRID
                                 : HasFocus() || IsDropped() ? QVCLR_ACCENT
                                 : likeEdit && !hot.IsHot()  ? QVCLR_EDIT_FRAME_INNER
                                                             : QVCLR_CTRL_BORDER);
    look.borderPx = Px(HasFocus() && !disabled ? kFocusLinePx : 1);
    look.radiusPx = Px(kCornerPx);
    DrawBox(dc, field, look);
    if (Kind() == CBS_SIMPLE)
        return;
    PaintArrow(dc, info.rcButton, state);
    if (IsEditable())
        return;
    UINT itemState = ODS_COMBOBOXEDIT;
    if (disabled)
        itemState |= ODS_DISABLED;
    if (HasFocus())
        itemState |= ODS_FOCUS;
    const CRect inner(field.left + look.borderPx, field.top + Px(1), info.rcButton.left,
                      field.bottom - Px(1));
    const DcState saved(*dc);
    dc->IntersectClipRect(inner);
    m_combo.DrawEntry(dc, static_cast<int>(::SendMessageW(Wnd(), CB_GETCURSEL, 0, 0)), inner, itemState);
}

void ComboParts::PaintArrow(CDC* dc, const CRect& button, ControlState state) const {
    const SkinPicture arrow(kArrowImage, QVIMAGE_STATES, QV_GetWindowDpi(Wnd()));
    const CSize size = arrow.Size();
    arrow.Draw(dc, static_cast<int>(state), button.left + (button.Width() - size.cx) / 2,
               button.top + (button.Height() - size.cy) / 2);
}

bool ComboParts::HasStrings() const {
    const DWORD style = WindowStyle(Wnd());
    return !(style & (CBS_OWNERDRAWFIXED | CBS_OWNERDRAWVARIABLE)) || (style & CBS_HASSTRINGS);
}

void ComboParts::DrawTextEntry(CDC* dc, int item, const CRect& rect, UINT itemState) const {
    FillComboRow(dc, rect, itemState);
    CRect place(rect);
    place.right -= Px(kTextToArrowPx);
    DrawComboText(dc, Wnd(), ComboEntryText(m_combo, item), place, itemState);
}

void ComboParts::DrawByParent(CDC* dc, int item, const CRect& rect, UINT itemState) const {
    FillComboRow(dc, rect, itemState);
    const HWND parent = ::GetParent(Wnd());
    if (item < 0 || !parent)
        return;
    const DcState saved(*dc);
    ::SelectObject(*dc, WindowFontOf(Wnd()));
    dc->SetTextColor(ComboTextColor(itemState));
    dc->SetBkColor(QV_GetSysColor(itemState & ODS_SELECTED ? QVCLR_SELECTION : QVCLR_COMBO_LIST));
    DRAWITEMSTRUCT draw = {};
    draw.CtlType = ODT_COMBOBOX;
    draw.CtlID = static_cast<UINT>(::GetDlgCtrlID(Wnd()));
    draw.itemID = static_cast<UINT>(item);
    draw.itemAction = ODA_DRAWENTIRE;
    draw.itemState = itemState;
    draw.hwndItem = Wnd();
    draw.hDC = dc->GetSafeHdc();
    draw.rcItem = rect;
    draw.itemData =
        static_cast<ULONG_PTR>(::SendMessageW(Wnd(), CB_GETITEMDATA, static_cast<WPARAM>(item), 0));
    ::SendMessageW(parent, WM_DRAWITEM, draw.CtlID, reinterpret_cast<LPARAM>(&draw));
}

} // namespace _qv_commonctrl
