// The painting half of CQVRectTracker.
#include "QVRectTracker.h"

#include "QVTrackerGeometry.h"

#include <QVSkin.h>

#include <algorithm>

namespace _qv_extractrl {

using namespace _qv_commonctrl;

namespace {

constexpr int kMarginPx96 = 6;
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

// The bitmap's own device context, for as long as it is drawn.
class BitmapSource {
  public:
    explicit BitmapSource(HBITMAP bitmap)
        : m_dc(::CreateCompatibleDC(nullptr)), m_before(m_dc ? ::SelectObject(m_dc, bitmap) : nullptr) {}
    BitmapSource(const BitmapSource&) = delete;
    BitmapSource& operator=(const BitmapSource&) = delete;
    ~BitmapSource() {
        if (m_before)
            ::SelectObject(m_dc, m_before);
        if (m_dc)
            ::DeleteDC(m_dc);
    }
    bool IsReady() const { return m_before != nullptr; }
    HDC Handle() const { return m_dc; }

  private:
    HDC m_dc;
    HGDIOBJ m_before;
};

} // namespace

QVTrackerView CQVRectTracker::View() const {
    CRect client;
    if (m_hWnd)
        GetClientRect(client);
    return QV_GetTrackerView(m_rcRange, client, QV_ScalePx(m_hWnd, kMarginPx96));
}

void CQVRectTracker::Draw(CDC& dc, const CRect& rcClient) const {
    dc.FillSolidRect(rcClient, QV_GetSysColor(QVCLR_WINDOW));
    const QVTrackerView view = View();
    if (!view.IsEmpty()) {
        DrawRange(dc, view.rcView);
        DrawTrackRect(dc, view);
    }
    if (::GetFocus() == m_hWnd)
        DrawHairline(dc, rcClient, QV_GetSysColor(QVCLR_ACCENT));
}

void CQVRectTracker::DrawRange(CDC& dc, const CRect& rcView) const {
    dc.FillSolidRect(rcView, QV_GetSysColor(QVCLR_LIST));
    if (m_nOption & QVTRACKER_GRID) {
        const COLORREF grid = QV_GetSysColor(QVCLR_GRID);
        for (int i = 1; i < kGridParts; ++i) {
            dc.FillSolidRect(rcView.left + rcView.Width() * i / kGridParts, rcView.top, 1, rcView.Height(),
                             grid);
            dc.FillSolidRect(rcView.left, rcView.top + rcView.Height() * i / kGridParts, rcView.Width(), 1,
                             grid);
        }
    }
    CRect frame(rcView);
    frame.InflateRect(1, 1);
    DrawHairline(dc, frame, QV_GetSysColor(QVCLR_CTRL_BORDER));
    DrawSize(dc, rcView, m_rcRange.Size(), DT_RIGHT | DT_BOTTOM);
}

void CQVRectTracker::DrawTrackRect(CDC& dc, const QVTrackerView& view) const {
    CRect picture = view.ToClient(m_rcTrack);
    picture.right = std::max(picture.right, picture.left + 1);
    picture.bottom = std::max(picture.bottom, picture.top + 1);
    const int saved = dc.SaveDC();
    dc.IntersectClipRect(view.rcView);
    const COLORREF accent = QV_GetSysColor(QVCLR_ACCENT);
    if (m_hPicture)
        DrawPicture(dc, picture);
    else
        dc.FillSolidRect(picture, Tint(accent, QV_GetSysColor(QVCLR_LIST)));
    if (m_nOption & QVTRACKER_FRAME) {
        DrawHairline(dc, picture, accent);
        DrawCorners(dc, picture, accent);
    }
    if (!m_hPicture)
        DrawSize(dc, picture, m_rcTrack.Size(), DT_CENTER | DT_VCENTER);
    dc.RestoreDC(saved);
}

void CQVRectTracker::DrawPicture(CDC& dc, const CRect& rcPicture) const {
    BITMAP size = {};
    const BitmapSource source(m_hPicture);
    if (!source.IsReady() || !::GetObjectW(m_hPicture, sizeof(size), &size))
        return;
    dc.SetStretchBltMode(HALFTONE);
    dc.SetBrushOrg(0, 0);
    ::StretchBlt(dc.GetSafeHdc(), rcPicture.left, rcPicture.top, rcPicture.Width(), rcPicture.Height(),
                 source.Handle(), 0, 0, size.bmWidth, size.bmHeight, SRCCOPY);
}

void CQVRectTracker::DrawCorners(CDC& dc, const CRect& rcPicture, COLORREF color) const {
    const int length =
        std::min({QV_ScalePx(m_hWnd, kCornerLengthPx96), rcPicture.Width() / 2, rcPicture.Height() / 2});
    const int width = std::min(QV_ScalePx(m_hWnd, kCornerWidthPx96), length);
    for (const int x : {rcPicture.left, rcPicture.right - length})
        for (const int y : {rcPicture.top, rcPicture.bottom - width})
            dc.FillSolidRect(x, y, length, width, color);
    for (const int x : {rcPicture.left, rcPicture.right - width})
        for (const int y : {rcPicture.top, rcPicture.bottom - length})
            dc.FillSolidRect(x, y, width, length, color);
}

// "720 x 576", where there is room for it.
void CQVRectTracker::DrawSize(CDC& dc, const CRect& rcArea, const CSize& size, UINT nFormat) const {
    CString text;
    text.Format(L"%d \u00D7 %d", static_cast<int>(size.cx), static_cast<int>(size.cy));
    CFont* const before = dc.SelectObject(QV_GetSysFont(QVFONT_UI, QV_GetWindowDpi(m_hWnd)));
    CRect room(rcArea);
    const int inset = QV_ScalePx(m_hWnd, kTextInsetPx96);
    room.DeflateRect(inset, inset);
    const CSize extent = dc.GetTextExtent(text);
    if (extent.cx <= room.Width() && extent.cy <= room.Height()) {
        dc.SetBkMode(TRANSPARENT);
        const int color = m_nTextStyle == QVTEXT_LABEL ? QVCLR_TEXT_WINDOW : QVCLR_TEXT;
        dc.SetTextColor(QV_GetSysColor((nFormat & DT_RIGHT) ? int{QVCLR_TEXT_LIST} : color));
        dc.DrawText(text, room, nFormat | DT_SINGLELINE | DT_NOPREFIX);
    }
    dc.SelectObject(before);
}

} // namespace _qv_extractrl
