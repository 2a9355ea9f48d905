// RowPainter.h: what the rows of a list and of a tree are painted with.
#pragma once

#include "QVPaintMemoDC.h"
#include "QVSkin.h"

namespace _qv_commonctrl {

// What all rows of a control have in common: asked once a painting of the control, not once a row.
struct RowLook {
    HWND control = nullptr;
    DWORD style = 0;
    UINT dpi = 0;
    HFONT font = nullptr;
    HIMAGELIST images = nullptr;
    HIMAGELIST stateImages = nullptr;
    int firstState = 0;       // the state number whose picture is the first of the state images
    bool checkBoxes = false;  // state images are check boxes, which the skin draws
    bool showsAlways = false; // the selection is seen without the focus, too
    int ground = 0;           // colour indexes of a row that is not selected
    int text = 0;

    explicit RowLook(HWND wnd = nullptr);
};

// One row in work. State bits are those of list views, which trees share.
class RowPainter {
  protected:
    RowPainter(const RowLook& look, CDC* dc) : m_rows(look), m_dc(dc) {}

    void SetState(UINT state);
    bool IsSelected() const { return (m_state & (LVIS_SELECTED | LVIS_DROPHILITED)) != 0; }
    COLORREF PlainText() const;

    int Px(int px96) const { return QV_ScaleForDpi(px96, m_rows.dpi); }
    // Fills what the selection covers, with a line round it when the row has the keyboard.
    void PaintGround(const CRect& part, bool hasKeyboard);
    // Size of the row's pictures; empty when there are none.
    CSize IconSize() const;
    void PaintIcon(int image, CPoint place);
    // Draws the state image left of `right` and returns where it begins.
    int PaintStateImage(int right, const CRect& row);
    void PaintText(const CString& text, const CRect& rect, UINT format, COLORREF color);

    const RowLook& m_rows;
    CDC* m_dc;
    UINT m_state = 0;
    COLORREF m_ground = 0;
    COLORREF m_text = 0;

  private:
    void DrawImage(HIMAGELIST images, int index, CPoint place, UINT style);
    void DrawCheckBox(const CRect& box, bool checked);
};

// Answers a custom-draw notification. `look` is kept between the rows of one painting; one thread paints all
// controls.
template <class Painter, class Look> LRESULT PaintRow(const NMCUSTOMDRAW& draw, Look& look) {
    switch (draw.dwDrawStage) {
    case CDDS_PREPAINT:
        look = Look(draw.hdr.hwndFrom);
        return CDRF_NOTIFYITEMDRAW;
    case CDDS_ITEMPREPAINT:
        // The control may offer every item of a column or page; most are outside of what is to be painted.
        if (const CRect place(draw.rc); !place.IsRectEmpty() && !::RectVisible(draw.hdc, place))
            return CDRF_SKIPDEFAULT;
        if (look.control != draw.hdr.hwndFrom)
            look = Look(draw.hdr.hwndFrom);
        Painter(look, CDC::FromHandle(draw.hdc), draw.dwItemSpec).Paint();
        return CDRF_SKIPDEFAULT;
    default:
        return CDRF_DODEFAULT;
    }
}

// WM_CTLCOLOREDIT of a label that is being edited: sets the colours and returns the brush.
LRESULT ColorLabelEdit(HDC dc);

// Answers the messages that a control with skinned rows answers before the system's does: the ground is
// painted with the rows, in one picture. `native(HDC)` paints the rows. FALSE: the message is the system's.
template <class Native>
bool PaintRows(CWnd& control, UINT message, WPARAM wParam, int ground, LRESULT& result, Native&& native) {
    switch (message) {
    case WM_ERASEBKGND:
        result = TRUE;
        return true;
    case WM_PAINT:
        if (wParam == 0) {
            CQVPaintMemoDC dc(&control, ground);
            result = native(dc.GetSafeHdc());
            return true;
        }
        return false;
    case WM_CTLCOLOREDIT:
        result = ColorLabelEdit(reinterpret_cast<HDC>(wParam));
        return true;
    default:
        return false;
    }
}

} // namespace _qv_commonctrl
