// The items of a list view.
#include "QVListCtrl.h"
#include "RowPainter.h"

namespace _qv_commonctrl {

namespace {

constexpr int kMaxTextUnits = 1024;
constexpr int kCellMarginPx = 6; // as the native control has it: twice its inner margin
constexpr int kLabelMarginPx = 2;
constexpr UINT kLineFormat = DT_SINGLELINE | DT_VCENTER | DT_END_ELLIPSIS;

DWORD ViewOf(HWND list, DWORD style) {
    const auto view = static_cast<DWORD>(SendMessageW(list, LVM_GETVIEW, 0, 0));
    if (view != LV_VIEW_ICON)
        return view;
    switch (style & LVS_TYPEMASK) { // a control without the message answers 0, too
    case LVS_REPORT:
        return LV_VIEW_DETAILS;
    case LVS_LIST:
        return LV_VIEW_LIST;
    case LVS_SMALLICON:
        return LV_VIEW_SMALLICON;
    default:
        return LV_VIEW_ICON;
    }
}

struct ListLook : RowLook {
    DWORD view = LV_VIEW_ICON;
    bool fullRow = false; // the selection covers all columns

    explicit ListLook(HWND list = nullptr) : RowLook(list) {
        const auto imagesOf = [list](WPARAM kind) {
            return reinterpret_cast<HIMAGELIST>(SendMessageW(list, LVM_GETIMAGELIST, kind, 0));
        };
        const auto exStyle = static_cast<DWORD>(SendMessageW(list, LVM_GETEXTENDEDLISTVIEWSTYLE, 0, 0));
        view = ViewOf(list, style);
        fullRow = view == LV_VIEW_DETAILS && (exStyle & LVS_EX_FULLROWSELECT);
        images = imagesOf(view == LV_VIEW_ICON ? LVSIL_NORMAL : LVSIL_SMALL);
        stateImages = imagesOf(LVSIL_STATE);
        firstState = 1;
        checkBoxes = (exStyle & LVS_EX_CHECKBOXES) != 0;
        showsAlways = (style & LVS_SHOWSELALWAYS) != 0;
        ground = QVCLR_LIST;
        text = QVCLR_TEXT_LIST;
    }
};

class ListItemPainter : private RowPainter {
  public:
    ListItemPainter(const ListLook& look, CDC* dc, DWORD_PTR item);
    void Paint();

  private:
    CRect RectOf(int code) const;
    void PaintItemIcon();
    void PaintReportTexts();
    void PaintLabel();
    CString CellText(int column) const;

    const ListLook& m_look;
    HWND m_list;
    int m_item;
    int m_image = -1;
    CString m_name; // text of the first column
    CRect m_label;
};

ListItemPainter::ListItemPainter(const ListLook& look, CDC* dc, DWORD_PTR item)
    : RowPainter(look, dc), m_look(look), m_list(look.control), m_item(static_cast<int>(item)) {
    // One question for all: a list may ask its owner in turn for each answer.
    wchar_t text[kMaxTextUnits] = L"";
    LVITEMW record = {};
    record.mask = LVIF_STATE | LVIF_IMAGE | LVIF_TEXT;
    record.iItem = m_item;
    record.stateMask = ~0u;
    record.pszText = text;
    record.cchTextMax = kMaxTextUnits;
    if (SendMessageW(m_list, LVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&record))) {
        m_image = record.iImage;
        m_name = record.pszText; // an owner-data list may answer with a buffer of its own
    } else {
        record.state = 0;
    }
    SetState(record.state);
    m_label = RectOf(LVIR_LABEL);
}

CRect ListItemPainter::RectOf(int code) const {
    CRect rect;
    rect.left = code;
    if (!SendMessageW(m_list, LVM_GETITEMRECT, static_cast<WPARAM>(m_item), reinterpret_cast<LPARAM>(&rect)))
        rect.SetRectEmpty();
    return rect;
}

CString ListItemPainter::CellText(int column) const {
    wchar_t text[kMaxTextUnits] = L"";
    LVITEMW record = {};
    record.iSubItem = column;
    record.pszText = text;
    record.cchTextMax = kMaxTextUnits;
    SendMessageW(m_list, LVM_GETITEMTEXTW, static_cast<WPARAM>(m_item), reinterpret_cast<LPARAM>(&record));
    return record.pszText; // see the constructor
}

void ListItemPainter::PaintItemIcon() {
    const CSize size = IconSize();
    if (size.cx == 0)
        return;
    const CRect room = RectOf(LVIR_ICON);
    const int across = m_look.view == LV_VIEW_ICON ? (room.Width() - size.cx) / 2 : 0;
    PaintIcon(m_image, CPoint(room.left + across, room.top + (room.Height() - size.cy) / 2));
}

void ListItemPainter::PaintReportTexts() {
    const auto header = reinterpret_cast<HWND>(SendMessageW(m_list, LVM_GETHEADER, 0, 0));
    const int columns = header ? static_cast<int>(SendMessageW(header, HDM_GETITEMCOUNT, 0, 0)) : 1;
    const COLORREF plain = PlainText();
    for (int column = 0; column < columns; ++column) {
        CRect cell = m_label;
        if (column > 0) {
            cell.top = column;
            cell.left = LVIR_BOUNDS;
            if (!SendMessageW(m_list, LVM_GETSUBITEMRECT, static_cast<WPARAM>(m_item),
                              reinterpret_cast<LPARAM>(&cell)))
                continue;
        }
        if (!m_dc->RectVisible(cell))
            continue;
        LVCOLUMNW record = {};
        record.mask = LVCF_FMT;
        SendMessageW(m_list, LVM_GETCOLUMNW, static_cast<WPARAM>(column), reinterpret_cast<LPARAM>(&record));
        // The first column is to the left whatever its format says.
        const int justify = column == 0 ? LVCFMT_LEFT : record.fmt & LVCFMT_JUSTIFYMASK;
        const UINT side = justify == LVCFMT_RIGHT ? DT_RIGHT : justify == LVCFMT_CENTER ? DT_CENTER : DT_LEFT;
        cell.DeflateRect(Px(column == 0 ? kLabelMarginPx : kCellMarginPx), 0);
        PaintText(column == 0 ? m_name : CellText(column), cell, side | kLineFormat,
                  column == 0 || m_look.fullRow ? m_text : plain);
    }
}

void ListItemPainter::PaintLabel() {
    CRect label = m_label;
    label.DeflateRect(Px(kLabelMarginPx), 0);
    const bool wrapped = m_look.view == LV_VIEW_ICON && !(m_look.style & LVS_NOLABELWRAP);
    const UINT format =
        m_look.view == LV_VIEW_ICON
            ? DT_CENTER | DT_END_ELLIPSIS | (wrapped ? DT_WORDBREAK | DT_EDITCONTROL : DT_SINGLELINE)
            : DT_LEFT | kLineFormat;
    PaintText(m_name, label, format, m_text);
}

void ListItemPainter::Paint() {
    CRect ground = m_look.fullRow ? RectOf(LVIR_BOUNDS) : m_label;
    const CRect icon = RectOf(LVIR_ICON);
    if (m_look.fullRow)
        ground.left = icon.left;
    PaintGround(ground, (m_state & LVIS_FOCUSED) != 0);
    PaintStateImage(icon.left, RectOf(LVIR_BOUNDS));
    PaintItemIcon();
    if (m_look.view == LV_VIEW_DETAILS)
        PaintReportTexts();
    else
        PaintLabel();
}

} // namespace

LRESULT QV_PaintListItem(NMLVCUSTOMDRAW& draw) {
    static ListLook look;
    return PaintRow<ListItemPainter>(draw.nmcd, look);
}

} // namespace _qv_commonctrl
