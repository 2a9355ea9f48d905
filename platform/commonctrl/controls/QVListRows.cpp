#include "QVListRows.h"

#include "paint/QVPaintKit.h"
#include "paint/QVRowPaint.h"

#include <vector>

namespace _qv_commonctrl {

namespace {

constexpr int kMaxTextUnits = 1024;
constexpr int kCellMarginPx = 6; // as the native control has it: twice its inner margin
constexpr int kLabelMarginPx = 2;
constexpr int kCheckBoxPx = 13;
constexpr UINT kLineFormat = DT_SINGLELINE | DT_VCENTER | DT_END_ELLIPSIS | DT_NOPREFIX;

// What all items of a list have in common: asked once a painting of the list, not once an item.
struct ListLook {
    HWND list = nullptr;
    DWORD style = 0;
    DWORD exStyle = 0;
    DWORD view = LV_VIEW_ICON;
    UINT dpi = 0;
    HFONT font = nullptr;
    HIMAGELIST images = nullptr;
    HIMAGELIST stateImages = nullptr;

    bool FullRow() const { return view == LV_VIEW_DETAILS && (exStyle & LVS_EX_FULLROWSELECT); }
};

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

HIMAGELIST ImagesOf(HWND list, WPARAM kind) {
    return reinterpret_cast<HIMAGELIST>(SendMessageW(list, LVM_GETIMAGELIST, kind, 0));
}

ListLook LookOf(HWND list) {
    ListLook look;
    look.list = list;
    look.style = static_cast<DWORD>(GetWindowLongPtrW(list, GWL_STYLE));
    look.exStyle = static_cast<DWORD>(SendMessageW(list, LVM_GETEXTENDEDLISTVIEWSTYLE, 0, 0));
    look.view = ViewOf(list, look.style);
    look.dpi = QV_GetWindowDpi(list);
    look.font = WindowFontOf(list);
    look.images = ImagesOf(list, look.view == LV_VIEW_ICON ? LVSIL_NORMAL : LVSIL_SMALL);
    look.stateImages = ImagesOf(list, LVSIL_STATE);
    return look;
}

// One item in work.
class ItemPainter {
  public:
    ItemPainter(const ListLook& look, CDC* dc, int item);
    void Paint();

  private:
    CRect RectOf(int code) const;
    void PaintGround(const CRect& selectedPart);
    void PaintIcon();
    void PaintCheckBox();
    void PaintReportTexts();
    void PaintLabel();
    CString TextOf(int column) const;

    const ListLook& m_look;
    HWND m_list;
    CDC* m_dc;
    int m_item;
    UINT m_state = 0;
    int m_image = -1;
    CString m_text; // of the first column
    CRect m_label;
    RowSelection m_selection;
    RowColors m_colors;
};

ItemPainter::ItemPainter(const ListLook& look, CDC* dc, int item)
    : m_look(look), m_list(look.list), m_dc(dc), m_item(item) {
    // One question for all: a list may ask its owner in turn for each answer.
    wchar_t text[kMaxTextUnits] = L"";
    LVITEMW record = {};
    record.mask = LVIF_STATE | LVIF_IMAGE | LVIF_TEXT;
    record.iItem = item;
    record.stateMask = ~0u;
    record.pszText = text;
    record.cchTextMax = kMaxTextUnits;
    if (SendMessageW(m_list, LVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&record))) {
        m_state = record.state;
        m_image = record.iImage;
        m_text = record.pszText; // an owner-data list may answer with a buffer of its own
    }
    m_label = RectOf(LVIR_LABEL);
    const bool selected = m_state & (LVIS_SELECTED | LVIS_DROPHILITED);
    m_selection = SelectionOf(m_list, selected, m_look.style & LVS_SHOWSELALWAYS);
    m_colors = ColorsOfRow(m_list, m_selection, QVCLR_LIST, QVCLR_TEXT_LIST);
}

CRect ItemPainter::RectOf(int code) const {
    CRect rect;
    rect.left = code;
    if (!SendMessageW(m_list, LVM_GETITEMRECT, static_cast<WPARAM>(m_item), reinterpret_cast<LPARAM>(&rect)))
        rect.SetRectEmpty();
    return rect;
}

CString ItemPainter::TextOf(int column) const {
    wchar_t text[kMaxTextUnits] = L"";
    LVITEMW record = {};
    record.iSubItem = column;
    record.pszText = text;
    record.cchTextMax = kMaxTextUnits;
    SendMessageW(m_list, LVM_GETITEMTEXTW, static_cast<WPARAM>(m_item), reinterpret_cast<LPARAM>(&record));
    return record.pszText; // an owner-data list may answer with a buffer of its own
}

void ItemPainter::PaintGround(const CRect& selectedPart) {
    m_dc->FillSolidRect(selectedPart, m_colors.ground);
    if ((m_state & LVIS_FOCUSED) && GetFocus() == m_list)
        DrawRowFocus(m_dc, selectedPart);
}

void ItemPainter::PaintIcon() {
    const bool large = m_look.view == LV_VIEW_ICON;
    int width = 0;
    int height = 0;
    if (!m_look.images || !ImageList_GetIconSize(m_look.images, &width, &height))
        return;
    const CRect room = RectOf(LVIR_ICON);
    const CPoint place(large ? room.left + (room.Width() - width) / 2 : room.left,
                       room.top + (room.Height() - height) / 2);
    DrawRowIcon(m_dc, m_look.images, m_image, place, (m_state & LVIS_CUT) != 0, m_state & LVIS_OVERLAYMASK);
}

void ItemPainter::PaintCheckBox() {
    const HIMAGELIST images = m_look.stateImages;
    const UINT number = (m_state & LVIS_STATEIMAGEMASK) >> 12;
    int width = 0;
    int height = 0;
    if (!images || number == 0 || !ImageList_GetIconSize(images, &width, &height))
        return;
    const CRect icon = RectOf(LVIR_ICON);
    const CRect bounds = RectOf(LVIR_BOUNDS);
    const CPoint place(icon.left - width, bounds.top + (bounds.Height() - height) / 2);
    if (!(m_look.exStyle & LVS_EX_CHECKBOXES)) {
        DrawRowIcon(m_dc, images, static_cast<int>(number) - 1, place, false, 0);
        return;
    }
    const int side = QV_ScaleForDpi(kCheckBoxPx, m_look.dpi);
    const CPoint corner(place.x + (width - side) / 2, bounds.top + (bounds.Height() - side) / 2);
    DrawRowCheckBox(m_dc, CRect(corner, CSize(side, side)), number > 1, m_look.dpi);
}

void ItemPainter::PaintReportTexts() {
    const auto header = reinterpret_cast<HWND>(SendMessageW(m_list, LVM_GETHEADER, 0, 0));
    const int columns = header ? static_cast<int>(SendMessageW(header, HDM_GETITEMCOUNT, 0, 0)) : 1;
    const COLORREF plain = ColorsOfRow(m_list, RowSelection::None, QVCLR_LIST, QVCLR_TEXT_LIST).text;
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
        cell.DeflateRect(QV_ScaleForDpi(column == 0 ? kLabelMarginPx : kCellMarginPx, m_look.dpi), 0);
        DrawTextIn(m_dc, column == 0 ? m_text : TextOf(column), cell, side | kLineFormat, m_look.font,
                   column == 0 || m_look.FullRow() ? m_colors.text : plain);
    }
}

void ItemPainter::PaintLabel() {
    CRect label = m_label;
    label.DeflateRect(QV_ScaleForDpi(kLabelMarginPx, m_look.dpi), 0);
    const bool wrapped = m_look.view == LV_VIEW_ICON && !(m_look.style & LVS_NOLABELWRAP);
    const UINT format = m_look.view == LV_VIEW_ICON
                            ? DT_CENTER | DT_NOPREFIX | DT_END_ELLIPSIS |
                                  (wrapped ? DT_WORDBREAK | DT_EDITCONTROL : DT_SINGLELINE)
                            : DT_LEFT | kLineFormat;
    DrawTextIn(m_dc, m_text, label, format, m_look.font, m_colors.text);
}

void ItemPainter::Paint() {
    const bool report = m_look.view == LV_VIEW_DETAILS;
    CRect ground = m_look.FullRow() ? RectOf(LVIR_BOUNDS) : m_label;
    if (m_look.FullRow())
        ground.left = RectOf(LVIR_ICON).left;
    PaintGround(ground);
    PaintCheckBox();
    PaintIcon();
    if (report)
        PaintReportTexts();
    else
        PaintLabel();
}

} // namespace

LRESULT PaintListItem(NMLVCUSTOMDRAW& draw) {
    static ListLook look; // of the list in painting; one thread paints all of them
    switch (draw.nmcd.dwDrawStage) {
    case CDDS_PREPAINT:
        look = LookOf(draw.nmcd.hdr.hwndFrom);
        return CDRF_NOTIFYITEMDRAW;
    case CDDS_ITEMPREPAINT:
        // The control may offer every item of a column or page; most are outside of what is to be painted.
        if (const CRect place(draw.nmcd.rc); !place.IsRectEmpty() && !::RectVisible(draw.nmcd.hdc, place))
            return CDRF_SKIPDEFAULT;
        if (look.list != draw.nmcd.hdr.hwndFrom)
            look = LookOf(draw.nmcd.hdr.hwndFrom);
        ItemPainter(look, CDC::FromHandle(draw.nmcd.hdc), static_cast<int>(draw.nmcd.dwItemSpec)).Paint();
        return CDRF_SKIPDEFAULT;
    default:
        return CDRF_DODEFAULT;
    }
}

} // namespace _qv_commonctrl
