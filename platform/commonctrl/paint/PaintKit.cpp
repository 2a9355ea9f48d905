#include "PaintKit.h"

#include "module/Guards.h"

#include <algorithm>
#include <cmath>

namespace _qv_commonctrl {

namespace {

constexpr int kSubSamples = 4; // a corner pixel is judged at 4 x 4 places

COLORREF Blend(COLORREF below, COLORREF above, int part, int whole) {
    const auto mix = [part, whole](int from, int to) { return from + (to - from) * part / whole; };
    return RGB(mix(GetRValue(below), GetRValue(above)), mix(GetGValue(below), GetGValue(above)),
               mix(GetBValue(below), GetBValue(above)));
}

// How many of a pixel's sample places lie within `radius` of the centre.
int Coverage(int x, int y, double centreX, double centreY, double radius) {
    int inside = 0;
    for (int sy = 0; sy < kSubSamples; ++sy) {
        for (int sx = 0; sx < kSubSamples; ++sx) {
            const double dx = x + (sx + 0.5) / kSubSamples - centreX;
            const double dy = y + (sy + 0.5) / kSubSamples - centreY;
            if (dx * dx + dy * dy <= radius * radius)
                ++inside;
        }
    }
    return inside;
}

// Paints the pixels of `part` as belonging to a disc with a border.
void PaintRound(CDC* dc, const CRect& part, double centreX, double centreY, double radius,
                const BoxLook& look) {
    constexpr int whole = kSubSamples * kSubSamples;
    const double inner = radius - look.borderPx;
    for (int y = part.top; y < part.bottom; ++y) {
        for (int x = part.left; x < part.right; ++x) {
            const int outerPart = Coverage(x, y, centreX, centreY, radius);
            if (outerPart == 0)
                continue;
            const int innerPart = inner > 0 ? Coverage(x, y, centreX, centreY, inner) : 0;
            COLORREF color = dc->GetPixel(x, y);
            if (color == CLR_INVALID) // outside the clip
                continue;
            color = Blend(color, look.border, outerPart, whole);
            color = Blend(color, look.fill, innerPart, whole);
            dc->SetPixelV(x, y, color);
        }
    }
}

} // namespace

void DrawFrameLines(CDC* dc, const CRect& rect, COLORREF color, int widthPx) {
    const int across = std::min(widthPx, rect.Width() / 2);
    const int down = std::min(widthPx, rect.Height() / 2);
    dc->FillSolidRect(rect.left, rect.top, rect.Width(), down, color);
    dc->FillSolidRect(rect.left, rect.bottom - down, rect.Width(), down, color);
    dc->FillSolidRect(rect.left, rect.top, across, rect.Height(), color);
    dc->FillSolidRect(rect.right - across, rect.top, across, rect.Height(), color);
}

void DrawBox(CDC* dc, const CRect& rect, const BoxLook& look) {
    if (rect.IsRectEmpty())
        return;
    const int radius = std::min({look.radiusPx, rect.Width() / 2, rect.Height() / 2});
    const int border = std::min({look.borderPx, rect.Width() / 2, rect.Height() / 2});
    dc->FillSolidRect(rect.left + radius, rect.top, rect.Width() - 2 * radius, border, look.border);
    dc->FillSolidRect(rect.left + radius, rect.bottom - border, rect.Width() - 2 * radius, border,
                      look.border);
    dc->FillSolidRect(rect.left, rect.top + radius, border, rect.Height() - 2 * radius, look.border);
    dc->FillSolidRect(rect.right - border, rect.top + radius, border, rect.Height() - 2 * radius,
                      look.border);
    CRect middle(rect.left + border, rect.top + radius, rect.right - border, rect.bottom - radius);
    dc->FillSolidRect(middle, look.fill);
    dc->FillSolidRect(rect.left + radius, rect.top + border, rect.Width() - 2 * radius, radius - border,
                      look.fill);
    dc->FillSolidRect(rect.left + radius, rect.bottom - radius, rect.Width() - 2 * radius, radius - border,
                      look.fill);
    for (const int x : {rect.left, rect.right - radius}) {
        for (const int y : {rect.top, rect.bottom - radius}) {
            const double centreX = x == rect.left ? rect.left + radius : rect.right - radius;
            const double centreY = y == rect.top ? rect.top + radius : rect.bottom - radius;
            PaintRound(dc, CRect(x, y, x + radius, y + radius), centreX, centreY, radius, look);
        }
    }
}

void DrawDisc(CDC* dc, const CRect& rect, const BoxLook& look) {
    PaintRound(dc, rect, (rect.left + rect.right) / 2.0, (rect.top + rect.bottom) / 2.0,
               std::min(rect.Width(), rect.Height()) / 2.0, look);
}

void DrawTextIn(CDC* dc, const CString& text, CRect rect, UINT format, HFONT font, COLORREF color) {
    if (text.IsEmpty() || rect.IsRectEmpty())
        return;
    const DcSelection selection(*dc, font);
    const int mode = dc->SetBkMode(TRANSPARENT);
    const COLORREF former = dc->SetTextColor(color);
    dc->DrawText(text, rect, format);
    dc->SetTextColor(former);
    dc->SetBkMode(mode);
}

CSize MeasureText(CDC* dc, const CString& text, HFONT font, UINT format, int widthPx) {
    const DcSelection selection(*dc, font);
    CRect rect(0, 0, widthPx, 0);
    // In an empty rectangle a centred or bottom line lies half or wholly above its top, and its height is
    // lost.
    dc->DrawText(text, rect, (format & ~static_cast<UINT>(DT_VCENTER | DT_BOTTOM)) | DT_CALCRECT);
    return rect.Size();
}

void FillParentGround(CDC* dc, HWND child, UINT ctlColorMessage, const CRect& rect) {
    const HWND parent = ::GetParent(child);
    HBRUSH brush = nullptr;
    if (parent) {
        const DcState state(*dc); // the parent may select what it likes
        brush = reinterpret_cast<HBRUSH>(::SendMessageW(parent, ctlColorMessage,
                                                        reinterpret_cast<WPARAM>(dc->GetSafeHdc()),
                                                        reinterpret_cast<LPARAM>(child)));
    }
    if (!brush)
        brush = QV_GetSysBrush(QVBRUSH_WINDOW);
    ::FillRect(*dc, rect, brush);
}

CString WindowTextOf(HWND wnd) {
    const int length = ::GetWindowTextLengthW(wnd);
    CString text;
    if (length > 0) {
        ::GetWindowTextW(wnd, text.GetBuffer(length + 1), length + 1);
        text.ReleaseBuffer();
    }
    return text;
}

HFONT WindowFontOf(HWND wnd) {
    const auto font = reinterpret_cast<HFONT>(::SendMessageW(wnd, WM_GETFONT, 0, 0));
    if (font && ::GetObjectType(font) == OBJ_FONT)
        return font;
    return static_cast<HFONT>(QV_GetSysFont(QVFONT_UI, QV_GetWindowDpi(wnd))->GetSafeHandle());
}

COLORREF ControlFill(ControlState state) {
    return QV_GetSysColor(QVCLR_CTRL_NORMAL + static_cast<int>(state));
}

} // namespace _qv_commonctrl
