#include "QVTrackerPainter.h"

#include "QVRectTracker.h"
#include "support/QVGuards.h"

#include <QVSkin.h>

#include <algorithm>

namespace _qv_extractrl {

using namespace _qv_commonctrl;

namespace {

constexpr int kCornerLengthPx96 = 8;
constexpr int kCornerWidthPx96 = 2;
constexpr int kTextInsetPx96 = 4;
constexpr int kGridParts = 3;

// The rectangle's ground between the range's and the accent, so that both ends of it stay visible.
constexpr int kTintParts = 4;

COLORREF Tint(COLORREF color, COLORREF ground) {
    const auto channel = [](int a, int b) { return (a + b * (kTintParts - 1)) / kTintParts; };
    return RGB(channel(GetRValue(color), GetRValue(ground)), channel(GetGValue(color), GetGValue(ground)),
               channel(GetBValue(color), GetBValue(ground)));
}

void DrawHairline(CDC& dc, const CRect& rect, COLORREF color) {
    CRect line(rect);
    dc.Draw3dRect(line, color, color);
}

// "720 x 576", where there is room for it.
void DrawSize(CDC& dc, const CRect& area, const CSize& size, UINT format, COLORREF color, UINT dpi) {
    CString text;
    text.Format(L"%d \u00D7 %d", static_cast<int>(size.cx), static_cast<int>(size.cy));
    const QVSelection font(dc.GetSafeHdc(), QV_GetSysFont(QVFONT_UI, dpi)->GetSafeHandle());
    CRect room(area);
    const int inset = QV_ScaleForDpi(kTextInsetPx96, dpi);
    room.DeflateRect(inset, inset);
    const CSize extent = dc.GetTextExtent(text);
    if (extent.cx > room.Width() || extent.cy > room.Height())
        return;
    dc.SetBkMode(TRANSPARENT);
    dc.SetTextColor(color);
    dc.DrawText(text, room, format | DT_SINGLELINE | DT_NOPREFIX);
}

void DrawRange(CDC& dc, const QVTrackerLook& look) {
    const CRect& area = look.view.rcView;
    dc.FillSolidRect(area, QV_GetSysColor(QVCLR_LIST));
    if (look.nOption & QVTRACKER_GRID) {
        const COLORREF grid = QV_GetSysColor(QVCLR_GRID);
        for (int i = 1; i < kGridParts; ++i) {
            dc.FillSolidRect(area.left + area.Width() * i / kGridParts, area.top, 1, area.Height(), grid);
            dc.FillSolidRect(area.left, area.top + area.Height() * i / kGridParts, area.Width(), 1, grid);
        }
    }
    CRect frame(area);
    frame.InflateRect(1, 1);
    DrawHairline(dc, frame, QV_GetSysColor(QVCLR_CTRL_BORDER));
    DrawSize(dc, area, look.view.rcRange.Size(), DT_RIGHT | DT_BOTTOM, QV_GetSysColor(QVCLR_TEXT_LIST),
             look.nDpi);
}

void DrawPicture(CDC& dc, const CRect& place, HBITMAP picture) {
    BITMAP size = {};
    const QVBitmapDC source(picture);
    if (!source.IsReady() || !::GetObjectW(picture, sizeof(size), &size))
        return;
    dc.SetStretchBltMode(HALFTONE);
    dc.SetBrushOrg(0, 0);
    ::StretchBlt(dc.GetSafeHdc(), place.left, place.top, place.Width(), place.Height(), source.Get(), 0, 0,
                 size.bmWidth, size.bmHeight, SRCCOPY);
}

void DrawCorners(CDC& dc, const CRect& place, COLORREF color, UINT dpi) {
    const int length =
        std::min({QV_ScaleForDpi(kCornerLengthPx96, dpi), place.Width() / 2, place.Height() / 2});
    const int width = std::min(QV_ScaleForDpi(kCornerWidthPx96, dpi), length);
    for (const int x : {place.left, place.right - length})
        for (const int y : {place.top, place.bottom - width})
            dc.FillSolidRect(x, y, length, width, color);
    for (const int x : {place.left, place.right - width})
        for (const int y : {place.top, place.bottom - length})
            dc.FillSolidRect(x, y, width, length, color);
}

void DrawTrackRect(CDC& dc, const QVTrackerLook& look) {
    CRect place = look.view.ToClient(look.rcTrack);
    place.right = std::max(place.right, place.left + 1);
    place.bottom = std::max(place.bottom, place.top + 1);
    const QVSavedDC saved(dc.GetSafeHdc());
    dc.IntersectClipRect(look.view.rcView);
    const COLORREF accent = QV_GetSysColor(QVCLR_ACCENT);
    if (look.hPicture)
        DrawPicture(dc, place, look.hPicture);
    else
        dc.FillSolidRect(place, Tint(accent, QV_GetSysColor(QVCLR_LIST)));
    if (look.nOption & QVTRACKER_FRAME) {
        DrawHairline(dc, place, accent);
        DrawCorners(dc, place, accent, look.nDpi);
    }
    if (!look.hPicture) {
        const int color = look.nTextStyle == QVTEXT_LABEL ? QVCLR_TEXT_WINDOW : QVCLR_TEXT;
        DrawSize(dc, place, look.rcTrack.Size(), DT_CENTER | DT_VCENTER, QV_GetSysColor(color), look.nDpi);
    }
}

} // namespace

void QV_PaintTracker(CDC& dc, const CRect& client, const QVTrackerLook& look) {
    dc.FillSolidRect(client, QV_GetSysColor(QVCLR_WINDOW));
    if (!look.view.IsEmpty()) {
        DrawRange(dc, look);
        DrawTrackRect(dc, look);
    }
    if (look.isFocused)
        DrawHairline(dc, client, QV_GetSysColor(QVCLR_ACCENT));
}

} // namespace _qv_extractrl
