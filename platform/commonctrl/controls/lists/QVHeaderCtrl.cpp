#include "QVHeaderCtrl.h"

#include "paint/PaintKit.h"
#include "QVPaintMemoDC.h"
#include "skin/SkinPicture.h"

namespace _qv_commonctrl {

IMPLEMENT_DYNAMIC(CQVHeaderCtrl, CHeaderCtrl)

namespace {

constexpr int kTextMarginPx = 6;
constexpr int kArrowGapPx = 4;
constexpr int kMaxTextUnits = 512;

struct HeaderCell {
    CRect rect;
    HDITEMW item = {};
    wchar_t text[kMaxTextUnits] = L"";
};

bool ReadCell(HWND header, int index, HeaderCell& cell) {
    cell.item.mask = HDI_TEXT | HDI_FORMAT | HDI_IMAGE | HDI_LPARAM;
    cell.item.pszText = cell.text;
    cell.item.cchTextMax = kMaxTextUnits;
    return SendMessageW(header, HDM_GETITEMRECT, static_cast<WPARAM>(index),
                        reinterpret_cast<LPARAM>(&cell.rect)) &&
           SendMessageW(header, HDM_GETITEMW, static_cast<WPARAM>(index),
                        reinterpret_cast<LPARAM>(&cell.item));
}

UINT TextFormat(int format) {
    const int justify = format & HDF_JUSTIFYMASK;
    const UINT side = justify == HDF_RIGHT ? DT_RIGHT : justify == HDF_CENTER ? DT_CENTER : DT_LEFT;
    return side | DT_SINGLELINE | DT_VCENTER | DT_END_ELLIPSIS | DT_NOPREFIX;
}

// Draws the sorting arrow behind the text and returns the room that is left for the text.
CRect DrawSortArrow(CDC* dc, const HeaderCell& cell, CRect room, UINT dpi) {
    if (!(cell.item.fmt & (HDF_SORTUP | HDF_SORTDOWN)))
        return room;
    const SkinPicture arrow((cell.item.fmt & HDF_SORTUP) ? L"CommonCtrl\\Header\\sort_up.png"
                                                         : L"CommonCtrl\\Header\\sort_down.png",
                            QVIMAGE_STATES, dpi);
    const CSize size = arrow.Size();
    if (room.Width() < size.cx)
        return room;
    arrow.Draw(dc, 0, room.right - size.cx, cell.rect.top + (cell.rect.Height() - size.cy) / 2);
    room.right -= size.cx + QV_ScaleForDpi(kArrowGapPx, dpi);
    return room;
}

void DrawImageOf(HWND header, CDC* dc, const HeaderCell& cell, CRect& room) {
    const auto images = reinterpret_cast<HIMAGELIST>(SendMessageW(header, HDM_GETIMAGELIST, 0, 0));
    int width = 0;
    int height = 0;
    if (!images || !(cell.item.fmt & HDF_IMAGE) || !ImageList_GetIconSize(images, &width, &height))
        return;
    ImageList_Draw(images, cell.item.iImage, *dc, room.left,
                   cell.rect.top + (cell.rect.Height() - height) / 2, ILD_TRANSPARENT);
    room.left += width + kArrowGapPx;
}

void AskParentToDraw(HWND header, CDC* dc, int index, const HeaderCell& cell, bool pressed) {
    DRAWITEMSTRUCT draw = {};
    draw.CtlType = ODT_HEADER;
    draw.CtlID = static_cast<UINT>(GetDlgCtrlID(header));
    draw.itemID = static_cast<UINT>(index);
    draw.itemAction = ODA_DRAWENTIRE;
    draw.itemState = pressed ? ODS_SELECTED : 0;
    draw.hwndItem = header;
    draw.hDC = *dc;
    draw.rcItem = cell.rect;
    draw.itemData = static_cast<ULONG_PTR>(cell.item.lParam);
    SendMessageW(GetParent(header), WM_DRAWITEM, draw.CtlID, reinterpret_cast<LPARAM>(&draw));
}

} // namespace

CQVHeaderCtrl::CQVHeaderCtrl() = default;

CQVHeaderCtrl::~CQVHeaderCtrl() = default;

void CQVHeaderCtrl::PreSubclassWindow() {
    CHeaderCtrl::PreSubclassWindow();
    AttachSkin(this);
    m_nHot = m_nPressed = -1;
    Invalidate(FALSE);
}

int CQVHeaderCtrl::ItemAt(CPoint client) const {
    HDHITTESTINFO hit = {};
    hit.pt = client;
    const auto index = static_cast<int>(SendMessage(HDM_HITTEST, 0, reinterpret_cast<LPARAM>(&hit)));
    return (hit.flags & HHT_ONHEADER) ? index : -1;
}

void CQVHeaderCtrl::SetMouseItems(int hot, int pressed) {
    if (hot == m_nHot && pressed == m_nPressed)
        return;
    m_nHot = hot;
    m_nPressed = pressed;
    Invalidate(FALSE);
}

void CQVHeaderCtrl::Paint(CDC* dc) {
    const UINT dpi = QV_GetWindowDpi(m_hWnd);
    CRect client;
    GetClientRect(client);
    dc->FillSolidRect(client, QV_GetSysColor(QVCLR_HEADER));
    const HFONT font = WindowFontOf(m_hWnd);
    const bool enabled = ::IsWindowEnabled(m_hWnd);
    const COLORREF textColor = QV_GetSysColor(enabled ? QVCLR_TEXT_WINDOW : QVCLR_TEXT_DISABLED);
    for (int index = 0, count = GetItemCount(); index < count; ++index) {
        HeaderCell cell;
        if (!ReadCell(m_hWnd, index, cell) || cell.rect.IsRectEmpty())
            continue;
        const bool pressed = index == m_nPressed;
        if (pressed || index == m_nHot)
            dc->FillSolidRect(cell.rect, QV_GetSysColor(pressed ? QVCLR_CTRL_PRESSED : QVCLR_CTRL_HOT));
        if (cell.item.fmt & HDF_OWNERDRAW) {
            AskParentToDraw(m_hWnd, dc, index, cell, pressed);
        } else {
            CRect room = cell.rect;
            room.DeflateRect(QV_ScaleForDpi(kTextMarginPx, dpi), 0);
            room = DrawSortArrow(dc, cell, room, dpi);
            DrawImageOf(m_hWnd, dc, cell, room);
            DrawTextIn(dc, cell.text, room, TextFormat(cell.item.fmt), font, textColor);
        }
        dc->FillSolidRect(cell.rect.right - 1, cell.rect.top, 1, cell.rect.Height(),
                          QV_GetSysColor(QVCLR_GRID));
    }
    dc->FillSolidRect(client.left, client.bottom - 1, client.Width(), 1, QV_GetSysColor(QVCLR_LIST_FRAME));
}

LRESULT CQVHeaderCtrl::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_ERASEBKGND:
        return TRUE;
    case WM_PAINT: {
        CQVPaintMemoDC dc(this, QVCLR_HEADER);
        Paint(&dc);
        return 0;
    }
    case WM_PRINTCLIENT:
        Paint(CDC::FromHandle(reinterpret_cast<HDC>(wParam)));
        return 0;
    }
    const LRESULT result = CHeaderCtrl::WindowProc(message, wParam, lParam);
    const CPoint point(static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam)));
    switch (message) {
    case WM_MOUSEMOVE: {
        TRACKMOUSEEVENT track = {sizeof(track), TME_LEAVE, m_hWnd, 0};
        TrackMouseEvent(&track);
        SetMouseItems(ItemAt(point), m_nPressed);
        break;
    }
    case WM_MOUSELEAVE:
        SetMouseItems(-1, m_nPressed);
        break;
    case WM_LBUTTONDOWN:
        SetMouseItems(m_nHot, (GetStyle() & HDS_BUTTONS) ? ItemAt(point) : -1);
        break;
    case WM_LBUTTONUP:
    case WM_CAPTURECHANGED:
        SetMouseItems(m_nHot, -1);
        break;
    case HDM_SETITEMW: // the native control repaints cells itself, in its own look
    case HDM_SETITEMA:
    case WM_ENABLE:
        Invalidate(FALSE);
        break;
    }
    return result;
}

} // namespace _qv_commonctrl
