#include "ScrollPainter.h"

#include "QVMemoDC.h"
#include "QVSkin.h"
#include "skin/SkinPicture.h"

namespace _qv_commonctrl {

namespace {

constexpr int kThumbInsetPx = 3; // between the sides of the bar and the thumb

enum ArrowFrame { kArrowNormal, kArrowHot, kArrowPressed, kArrowDisabled };

int FrameFor(ScrollPart part, const OverlayPicture& picture) {
    if (!picture.shape.enabled)
        return kArrowDisabled;
    if (picture.pressed == part)
        return kArrowPressed;
    return picture.hot == part && picture.pressed == ScrollPart::None ? kArrowHot : kArrowNormal;
}

COLORREF ThumbColor(const OverlayPicture& picture) {
    switch (FrameFor(ScrollPart::Thumb, picture)) {
    case kArrowPressed:
        return QV_GetSysColor(QVCLR_SCROLL_THUMB_PRESSED);
    case kArrowHot:
        return QV_GetSysColor(QVCLR_SCROLL_THUMB_HOT);
    default:
        return QV_GetSysColor(QVCLR_SCROLL_THUMB);
    }
}

// A span along the bar as a rectangle of the window.
CRect Along(const CRect& rect, bool vertical, int begin, int end) {
    return vertical ? CRect(rect.left, rect.top + begin, rect.right, rect.top + end)
                    : CRect(rect.left + begin, rect.top, rect.left + end, rect.bottom);
}

void PaintArrow(CDC& dc, const CRect& field, const wchar_t* image, int frame) {
    const SkinPicture picture(image);
    const CSize size = picture.Size();
    if (field.Width() >= size.cx && field.Height() >= size.cy)
        picture.Draw(&dc, frame, field.left + (field.Width() - size.cx) / 2,
                     field.top + (field.Height() - size.cy) / 2);
}

void PaintThumb(CDC& dc, CRect thumb, bool vertical, COLORREF color, UINT dpi) {
    const int inset = QV_ScaleForDpi(kThumbInsetPx, dpi);
    if (vertical)
        thumb.DeflateRect(std::min(inset, thumb.Width() / 3), 0);
    else
        thumb.DeflateRect(0, std::min(inset, thumb.Height() / 3));
    dc.FillSolidRect(thumb, color);
}

} // namespace

void PaintScrollBar(HDC target, const CRect& rect, OverlayKind kind, const OverlayPicture& picture,
                    HWND wnd) {
    CDC* const targetDc = CDC::FromHandle(target);
    CQVMemoDC dc(targetDc, rect);
    const int ground = picture.ground >= 0 ? picture.ground : static_cast<int>(QVCLR_SCROLL_TRACK);
    dc.FillSolidRect(rect, QV_GetSysColor(ground));
    if (kind == OverlayKind::Corner)
        return;
    const bool vertical = kind == OverlayKind::Vertical;
    const ScrollBarShape& shape = picture.shape;
    PaintArrow(dc, Along(rect, vertical, 0, shape.arrow),
               vertical ? L"CommonCtrl\\Scroll\\up.png" : L"CommonCtrl\\Scroll\\left.png",
               FrameFor(ScrollPart::ArrowBack, picture));
    PaintArrow(dc, Along(rect, vertical, shape.length - shape.arrow, shape.length),
               vertical ? L"CommonCtrl\\Scroll\\down.png" : L"CommonCtrl\\Scroll\\right.png",
               FrameFor(ScrollPart::ArrowForward, picture));
    if (shape.HasThumb())
        PaintThumb(dc, Along(rect, vertical, shape.thumbBegin, shape.thumbEnd), vertical, ThumbColor(picture),
                   QV_GetWindowDpi(wnd));
}

} // namespace _qv_commonctrl
