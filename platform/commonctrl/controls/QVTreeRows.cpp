#include "QVTreeRows.h"

#include "paint/QVPaintKit.h"
#include "paint/QVRowPaint.h"
#include "skin/QVSkinPicture.h"

#include <cstring>

namespace _qv_commonctrl {

namespace {

constexpr int kMaxTextUnits = 1024;
constexpr int kIconGapPx = 3; // between icon and text, as in the native control
constexpr int kTextMarginPx = 2;
constexpr int kCheckBoxPx = 13;

class TreeItemPainter {
  public:
    TreeItemPainter(HWND tree, CDC* dc, HTREEITEM item);
    void Paint();

  private:
    CRect RectOf(bool textOnly) const;
    int PaintIcon(int right);
    int PaintStateImage(int right);
    void PaintExpander(int right);

    HWND m_tree;
    CDC* m_dc;
    HTREEITEM m_item;
    TVITEMW m_record = {};
    wchar_t m_text[kMaxTextUnits] = L"";
    DWORD m_style;
    UINT m_dpi;
    CRect m_row;
};

TreeItemPainter::TreeItemPainter(HWND tree, CDC* dc, HTREEITEM item)
    : m_tree(tree), m_dc(dc), m_item(item), m_style(static_cast<DWORD>(GetWindowLongPtrW(tree, GWL_STYLE))),
      m_dpi(QV_GetWindowDpi(tree)) {
    m_record.mask = TVIF_TEXT | TVIF_STATE | TVIF_IMAGE | TVIF_SELECTEDIMAGE | TVIF_CHILDREN;
    m_record.hItem = item;
    m_record.stateMask = ~0u;
    m_record.pszText = m_text;
    m_record.cchTextMax = kMaxTextUnits;
    SendMessageW(tree, TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&m_record));
    m_row = RectOf(false);
}

CRect TreeItemPainter::RectOf(bool textOnly) const {
    RECT rect = {};
    memcpy(&rect, &m_item, sizeof(m_item)); // the message takes the item where it puts the rectangle
    const bool known = SendMessageW(m_tree, TVM_GETITEMRECT, textOnly, reinterpret_cast<LPARAM>(&rect)) != 0;
    return known ? CRect(rect) : CRect();
}

// These draw what lies left of `right` and return where it begins.
int TreeItemPainter::PaintIcon(int right) {
    const auto images = reinterpret_cast<HIMAGELIST>(SendMessageW(m_tree, TVM_GETIMAGELIST, TVSIL_NORMAL, 0));
    int width = 0;
    int height = 0;
    if (!images || !ImageList_GetIconSize(images, &width, &height))
        return right;
    const int left = right - width - QV_ScaleForDpi(kIconGapPx, m_dpi);
    const bool selected = m_record.state & TVIS_SELECTED;
    DrawRowIcon(m_dc, images, selected ? m_record.iSelectedImage : m_record.iImage,
                CPoint(left, m_row.top + (m_row.Height() - height) / 2), (m_record.state & TVIS_CUT) != 0,
                m_record.state & TVIS_OVERLAYMASK);
    return left;
}

int TreeItemPainter::PaintStateImage(int right) {
    const auto images = reinterpret_cast<HIMAGELIST>(SendMessageW(m_tree, TVM_GETIMAGELIST, TVSIL_STATE, 0));
    const UINT number = (m_record.state & TVIS_STATEIMAGEMASK) >> 12;
    int width = 0;
    int height = 0;
    if (!images || number == 0 || !ImageList_GetIconSize(images, &width, &height))
        return right;
    const int left = right - width;
    if (m_style & TVS_CHECKBOXES) {
        const int side = QV_ScaleForDpi(kCheckBoxPx, m_dpi);
        const CPoint corner(left + (width - side) / 2, m_row.top + (m_row.Height() - side) / 2);
        DrawRowCheckBox(m_dc, CRect(corner, CSize(side, side)), number > 1, m_dpi);
    } else {
        DrawRowIcon(m_dc, images, static_cast<int>(number),
                    CPoint(left, m_row.top + (m_row.Height() - height) / 2), false, 0);
    }
    return left;
}

void TreeItemPainter::PaintExpander(int right) {
    const auto parent = SendMessageW(m_tree, TVM_GETNEXTITEM, TVGN_PARENT, reinterpret_cast<LPARAM>(m_item));
    if (!(m_style & TVS_HASBUTTONS) || m_record.cChildren == 0 || (!parent && !(m_style & TVS_LINESATROOT)))
        return;
    const bool expanded = m_record.state & TVIS_EXPANDED;
    const SkinPicture picture(expanded ? L"CommonCtrl\\Tree\\expanded.png"
                                       : L"CommonCtrl\\Tree\\collapsed.png",
                              QVIMAGE_STATES, m_dpi);
    const int indent = static_cast<int>(SendMessageW(m_tree, TVM_GETINDENT, 0, 0));
    const CSize size = picture.Size();
    constexpr int kNormal = 0;
    constexpr int kDisabled = 3;
    picture.Draw(m_dc, IsWindowEnabled(m_tree) ? kNormal : kDisabled, right - indent + (indent - size.cx) / 2,
                 m_row.top + (m_row.Height() - size.cy) / 2);
}

void TreeItemPainter::Paint() {
    const bool selected = m_record.state & (TVIS_SELECTED | TVIS_DROPHILITED);
    const RowColors colors = ColorsOfRow(m_tree, SelectionOf(m_tree, selected, m_style & TVS_SHOWSELALWAYS),
                                         QVCLR_TREE, QVCLR_TEXT_TREE);
    const CRect text = RectOf(true);
    m_dc->FillSolidRect(m_row, QV_GetSysColor(QVCLR_TREE));
    const CRect ground = (m_style & TVS_FULLROWSELECT) ? m_row : text;
    m_dc->FillSolidRect(ground, colors.ground);
    if (selected && GetFocus() == m_tree)
        DrawRowFocus(m_dc, ground);
    const int iconLeft = PaintIcon(text.left);
    PaintExpander(PaintStateImage(iconLeft));
    CRect room = text;
    room.left += QV_ScaleForDpi(kTextMarginPx, m_dpi);
    DrawTextIn(m_dc, m_record.pszText, room, DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_NOCLIP,
               WindowFontOf(m_tree), colors.text);
}

} // namespace

LRESULT PaintTreeItem(NMTVCUSTOMDRAW& draw) {
    switch (draw.nmcd.dwDrawStage) {
    case CDDS_PREPAINT:
        return CDRF_NOTIFYITEMDRAW;
    case CDDS_ITEMPREPAINT:
        TreeItemPainter(draw.nmcd.hdr.hwndFrom, CDC::FromHandle(draw.nmcd.hdc),
                        reinterpret_cast<HTREEITEM>(draw.nmcd.dwItemSpec))
            .Paint();
        return CDRF_SKIPDEFAULT;
    default:
        return CDRF_DODEFAULT;
    }
}

} // namespace _qv_commonctrl
