#include "QVComboImpl.h"

#include "skin/QVSkinPicture.h"

#include <algorithm>

namespace _qv_commonctrl {

namespace {

constexpr int kCornerPx = 3;
constexpr int kFocusLinePx = 2;
constexpr int kTextInsetPx = 5; // from the edge of a row or field to its text
constexpr int kEditMarginPx =
    3; // beside the text of the edit field, which stands 3 pixels inside the combo box
constexpr wchar_t kArrowImage[] = L"CommonCtrl\\Combo\\arrow.png";

} // namespace

CQVComboImpl::~CQVComboImpl() {
    // The windows may outlive the objects that wear them when the combo box was unsubclassed.
    if (m_list) {
        m_list->m_pCombo = nullptr;
        if (m_list->m_hWnd)
            m_list->UnsubclassWindow();
    }
    if (m_edit && m_edit->m_hWnd)
        m_edit->UnsubclassWindow();
}

void CQVComboImpl::AttachParts() {
    COMBOBOXINFO info = {};
    info.cbSize = sizeof info;
    if (!::GetComboBoxInfo(Wnd(), &info))
        return;
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

BOOL CQVComboImpl::WearList(CQVComboLBox* list) {
    COMBOBOXINFO info = {};
    info.cbSize = sizeof info;
    if (!list || !::GetComboBoxInfo(Wnd(), &info) || !info.hwndList || !list->SubclassWindow(info.hwndList))
        return FALSE;
    list->m_pCombo = &m_combo;
    m_list = list;
    return TRUE;
}

BOOL CQVComboImpl::SetListObject(CQVComboLBox* list) {
    if (list == m_list && list)
        return TRUE;
    if (m_list) {
        m_list->m_pCombo = nullptr;
        if (m_list->m_hWnd)
            m_list->UnsubclassWindow();
        m_list = nullptr;
    }
    if (list)
        return WearList(list);
    if (!m_ownList)
        m_ownList.reset(m_combo.CreateListObject());
    return WearList(m_ownList.get());
}

bool CQVComboImpl::HasFocus() const {
    const HWND focus = ::GetFocus();
    return focus && (focus == Wnd() || ::GetParent(focus) == Wnd());
}

ControlState CQVComboImpl::State() const {
    if (!::IsWindowEnabled(Wnd()))
        return ControlState::Disabled;
    if (IsDropped() && Kind() != CBS_SIMPLE)
        return ControlState::Pressed;
    return hot.IsHot() ? ControlState::Hot : ControlState::Normal;
}

void CQVComboImpl::SetListRedraw(bool redraw) const {
    COMBOBOXINFO info = {};
    info.cbSize = sizeof info;
    if (::GetComboBoxInfo(Wnd(), &info) && info.hwndList)
        ::SendMessageW(info.hwndList, WM_SETREDRAW, redraw, 0);
}

void CQVComboImpl::Repaint() const {
    if (Wnd())
        ::RedrawWindow(Wnd(), nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_NOCHILDREN);
}

void CQVComboImpl::Paint(CDC* dc, const CRect& client) {
    COMBOBOXINFO info = {};
    info.cbSize = sizeof info;
    ::GetComboBoxInfo(Wnd(), &info);
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
    const int saved = dc->SaveDC();
    dc->IntersectClipRect(inner);
    m_combo.DrawEntry(dc, static_cast<int>(::SendMessageW(Wnd(), CB_GETCURSEL, 0, 0)), inner, itemState);
    dc->RestoreDC(saved);
}

void CQVComboImpl::PaintArrow(CDC* dc, const CRect& button, ControlState state) const {
    const SkinPicture arrow(kArrowImage, QVIMAGE_STATES, QV_GetWindowDpi(Wnd()));
    const CSize size = arrow.Size();
    arrow.Draw(dc, static_cast<int>(state), button.left + (button.Width() - size.cx) / 2,
               button.top + (button.Height() - size.cy) / 2);
}

bool CQVComboImpl::HasStrings() const {
    const DWORD style = WindowStyle(Wnd());
    return !(style & (CBS_OWNERDRAWFIXED | CBS_OWNERDRAWVARIABLE)) || (style & CBS_HASSTRINGS);
}

CString CQVComboImpl::EntryText(int item) const {
    CString text;
    if (item < 0 || !HasStrings() || item >= m_combo.GetCount())
        return text;
    const int length = m_combo.GetLBTextLen(item);
    if (length <= 0)
        return text;
    m_combo.GetLBText(item, text.GetBuffer(length + 1));
    text.ReleaseBuffer();
    return text;
}

void CQVComboImpl::DrawRowGround(CDC* dc, const CRect& rect, UINT itemState) const {
    if (itemState & ODS_COMBOBOXEDIT)
        return;
    dc->FillSolidRect(rect, QV_GetSysColor(itemState & ODS_SELECTED ? QVCLR_SELECTION : QVCLR_COMBO_LIST));
}

COLORREF CQVComboImpl::EntryTextColor(UINT itemState) const {
    if (itemState & ODS_DISABLED)
        return QV_GetSysColor(QVCLR_TEXT_DISABLED);
    const bool selectedRow = (itemState & ODS_SELECTED) && !(itemState & ODS_COMBOBOXEDIT);
    return QV_GetSysColor(selectedRow ? QVCLR_TEXT_SELECTED : QVCLR_TEXT_WINDOW);
}

void CQVComboImpl::DrawTextEntry(CDC* dc, const CString& text, const CRect& rect, UINT itemState) const {
    DrawRowGround(dc, rect, itemState);
    CRect place(rect);
    place.DeflateRect(Px(kTextInsetPx), 0, Px(2), 0);
    DrawTextIn(dc, text, place, DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS,
               WindowFontOf(Wnd()), EntryTextColor(itemState));
}

void CQVComboImpl::DrawByParent(CDC* dc, int item, const CRect& rect, UINT itemState) const {
    DrawRowGround(dc, rect, itemState);
    const HWND parent = ::GetParent(Wnd());
    if (item < 0 || !parent)
        return;
    DcSelection font(dc, WindowFontOf(Wnd()));
    dc->SetTextColor(EntryTextColor(itemState));
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
    const int saved = dc->SaveDC();
    ::SendMessageW(parent, WM_DRAWITEM, draw.CtlID, reinterpret_cast<LPARAM>(&draw));
    dc->RestoreDC(saved);
}

} // namespace _qv_commonctrl
