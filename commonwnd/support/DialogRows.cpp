#include "DialogRows.h"

#include "WindowText.h"

#include <QVButton.h>
#include <QVSkin.h>
#include <QVStatic.h>

#include <algorithm>
#include <vector>

using namespace _qv_commonctrl;

namespace _qv_commonwnd {

namespace {

struct Item {
    CWnd* wnd;
    CRect rect; // client pixels of the dialog
};

CRect RectIn(const CWnd& dialog, const CWnd& child) {
    CRect rect;
    child.GetWindowRect(&rect);
    dialog.ScreenToClient(&rect);
    return rect;
}

bool IsLabel(const CWnd* wnd) {
    return dynamic_cast<const CQVStatic*>(wnd) != nullptr;
}

// The visible children that objects stand for.
std::vector<Item> VisibleChildren(const CWnd& dialog) {
    std::vector<Item> items;
    for (CWnd* child = dialog.GetWindow(GW_CHILD); child; child = child->GetWindow(GW_HWNDNEXT)) {
        CWnd* const wnd = CWnd::FromHandlePermanent(child->m_hWnd);
        if (wnd && (wnd->GetStyle() & WS_VISIBLE))
            items.push_back({wnd, RectIn(dialog, *wnd)});
    }
    return items;
}

void MoveTo(CWnd& wnd, CPoint corner) {
    wnd.SetWindowPos(nullptr, corner.x, corner.y, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void AlignMiddle(const CWnd& dialog, const CRect& reference, CWnd& wnd) {
    if (IsLabel(&wnd))
        wnd.ModifyStyle(0, SS_CENTERIMAGE);
    const CRect rect = RectIn(dialog, wnd);
    MoveTo(wnd, CPoint(rect.left, reference.top + (reference.Height() - rect.Height()) / 2));
}

constexpr int kMostRoomPx = 400; // that a window grows for one label, at 96 DPI

// How much wider than its label a text is, pixels, up to what a window grows by; 0 and less: it fits.
int MissingWidth(const Item& label) {
    const CString text = WindowTextOf(label.wnd).Left(kMostRoomPx);
    const UINT prefix = label.wnd->GetStyle() & SS_NOPREFIX ? DT_NOPREFIX : 0;
    const int width = MeasureTextIn(label.wnd->m_hWnd, text, DT_SINGLELINE | prefix).cx;
    return std::min(width - label.rect.Width(), QV_ScalePx(label.wnd->m_hWnd, kMostRoomPx));
}

bool ShareColumn(const CRect& one, const CRect& other) {
    return one.left < other.right && other.left < one.right;
}

// Widens one column of labels; `column` is the rectangle of one of them.
void WidenColumn(CWnd& dialog, const CRect& column, int by) {
    for (const Item& item : VisibleChildren(dialog)) {
        const bool inColumn = IsLabel(item.wnd) && ShareColumn(item.rect, column);
        CRect rect = item.rect;
        if (inColumn)
            rect.right += by;
        else if (item.rect.left >= column.right || dynamic_cast<CQVButton*>(item.wnd))
            rect.OffsetRect(by, 0);
        item.wnd->MoveWindow(rect);
    }
    CRect window;
    dialog.GetWindowRect(&window);
    ResizeInPlace(dialog, CSize(window.Width() + by, window.Height()));
}

} // namespace

void AlignRow(CWnd& dialog, int reference, std::initializer_list<int> ids) {
    const CRect row = ChildRect(dialog, reference);
    if (row.IsRectEmpty())
        return;
    for (const int id : ids) {
        if (CWnd* wnd = dialog.GetDlgItem(id))
            AlignMiddle(dialog, row, *wnd);
    }
}

void AlignLabelsWithFields(CWnd& dialog) {
    const std::vector<Item> items = VisibleChildren(dialog);
    for (const Item& label : items) {
        if (!IsLabel(label.wnd))
            continue;
        const Item* field = nullptr; // the nearest one
        for (const Item& item : items) {
            const bool sameRow = item.rect.top < label.rect.bottom && label.rect.top < item.rect.bottom;
            if (!IsLabel(item.wnd) && sameRow && item.rect.left >= label.rect.right &&
                (!field || item.rect.left < field->rect.left))
                field = &item;
        }
        if (field)
            AlignMiddle(dialog, field->rect, *label.wnd);
    }
}

void MakeRoomForLabels(CWnd& dialog) {
    const std::vector<Item> items = VisibleChildren(dialog);
    for (size_t i = 0; i < items.size(); ++i) { // each time from the places that the last one left
        const std::vector<Item> now = VisibleChildren(dialog);
        const Item& label = now[i];
        const int missing = IsLabel(label.wnd) ? MissingWidth(label) : 0;
        if (missing > 0)
            WidenColumn(dialog, label.rect, missing);
    }
}

} // namespace _qv_commonwnd
