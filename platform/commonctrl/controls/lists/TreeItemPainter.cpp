// The rows of a tree view.
#include "QVTreeCtrl.h"
#include "RowPainter.h"
#include "skin/SkinPicture.h"

#include <cstring>

namespace _qv_commonctrl {

namespace {

constexpr int kMaxTextUnits = 1024;
constexpr int kIconGapPx = 3; // between icon and text, as in the native control
constexpr int kTextMarginPx = 2;

struct TreeLook : RowLook {
    explicit TreeLook(HWND tree = nullptr) : RowLook(tree) {
        const auto imagesOf = [tree](WPARAM kind) {
            return reinterpret_cast<HIMAGELIST>(SendMessageW(tree, TVM_GETIMAGELIST, kind, 0));
        };
        images = imagesOf(TVSIL_NORMAL);
        stateImages = imagesOf(TVSIL_STATE);
        checkBoxes = (style & TVS_CHECKBOXES) != 0;
        showsAlways = (style & TVS_SHOWSELALWAYS) != 0;
        ground = QVCLR_TREE;
        text = QVCLR_TEXT_TREE;
    }
};

class TreeItemPainter : private RowPainter {
  public:
    TreeItemPainter(const TreeLook& look, CDC* dc, DWORD_PTR item);
    void Paint();

  private:
    CRect RectOf(bool textOnly) const;
    int PaintItemIcon(int right);
    void PaintExpander(int right);

    HWND m_tree;
    HTREEITEM m_item;
    TVITEMW m_record = {};
    wchar_t m_name[kMaxTextUnits] = L"";
    CRect m_row;
};

TreeItemPainter::TreeItemPainter(const TreeLook& look, CDC* dc, DWORD_PTR item)
    : RowPainter(look, dc), m_tree(look.control), m_item(reinterpret_cast<HTREEITEM>(item)) {
    m_record.mask = TVIF_TEXT | TVIF_STATE | TVIF_IMAGE | TVIF_SELECTEDIMAGE | TVIF_CHILDREN;
    m_record.hItem = m_item;
    m_record.stateMask = ~0u;
    m_record.pszText = m_name;
    m_record.cchTextMax = kMaxTextUnits;
    SendMessageW(m_tree, TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&m_record));
    SetState(m_record.state);
    m_row = RectOf(false);
}

CRect TreeItemPainter::RectOf(bool textOnly) const {
    RECT rect = {};
    memcpy(&rect, &m_item, sizeof(m_item)); // the message takes the item where it puts the rectangle
    const bool known = SendMessageW(m_tree, TVM_GETITEMRECT, textOnly, reinterpret_cast<LPARAM>(&rect)) != 0;
    return known ? CRect(rect) : CRect();
}

// Draws what lies left of `right` and returns where it begins.
int TreeItemPainter::PaintItemIcon(int right) {
    const CSize size = IconSize();
    if (size.cx == 0)
        return right;
    const int left = right - size.cx - Px(kIconGapPx);
    PaintIcon(m_record.state & TVIS_SELECTED ? m_record.iSelectedImage : m_record.iImage,
              CPoint(left, m_row.top + (m_row.Height() - size.cy) / 2));
    return left;
}

void TreeItemPainter::PaintExpander(int right) {
    const auto parent = SendMessageW(m_tree, TVM_GETNEXTITEM, TVGN_PARENT, reinterpret_cast<LPARAM>(m_item));
    if (!(m_rows.style & TVS_HASBUTTONS) || m_record.cChildren == 0 ||
        (!parent && !(m_rows.style & TVS_LINESATROOT)))
        return;
    const bool expanded = m_record.state & TVIS_EXPANDED;
    const SkinPicture picture(expanded ? L"CommonCtrl\\Tree\\expanded.png"
                                       : L"CommonCtrl\\Tree\\collapsed.png",
                              QVIMAGE_STATES, m_rows.dpi);
    const int indent = static_cast<int>(SendMessageW(m_tree, TVM_GETINDENT, 0, 0));
    const CSize size = picture.Size();
    constexpr int kNormal = 0;
    constexpr int kDisabled = 3;
    picture.Draw(m_dc, IsWindowEnabled(m_tree) ? kNormal : kDisabled, right - indent + (indent - size.cx) / 2,
                 m_row.top + (m_row.Height() - size.cy) / 2);
}

void TreeItemPainter::Paint() {
    const CRect text = RectOf(true);
    m_dc->FillSolidRect(m_row, QV_GetSysColor(QVCLR_TREE));
    PaintGround((m_rows.style & TVS_FULLROWSELECT) ? m_row : text, IsSelected());
    PaintExpander(PaintStateImage(PaintItemIcon(text.left), m_row));
    CRect room = text;
    room.left += Px(kTextMarginPx);
    PaintText(m_record.pszText, room, DT_SINGLELINE | DT_VCENTER | DT_NOCLIP, m_text);
}

} // namespace

LRESULT QV_PaintTreeItem(NMTVCUSTOMDRAW& draw) {
    static TreeLook look;
    return PaintRow<TreeItemPainter>(draw.nmcd, look);
}

} // namespace _qv_commonctrl
