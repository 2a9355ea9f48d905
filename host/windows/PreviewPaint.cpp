#include "PreviewPaint.h"

#include <QVDict.h>
#include <QVSkin.h>

#include <algorithm>
#include <cmath>

using namespace _qv_commonctrl;

namespace {

constexpr int kGapPx = 8;
constexpr int kLinePx = 20;
constexpr int kLayerLinePx = 16;
constexpr int kLeastLanePx = 18;
constexpr UINT kOneLine = DT_SINGLELINE | DT_VCENTER | DT_END_ELLIPSIS | DT_NOPREFIX;

// The skin's interface font on a transparent ground, as long as it lives.
class TextScope {
  public:
    TextScope(CDC& dc, UINT dpi) : m_dc(dc), m_former(dc.SelectObject(QV_GetSysFont(QVFONT_UI, dpi))) {
        dc.SetBkMode(TRANSPARENT);
    }
    ~TextScope() { m_dc.SelectObject(m_former); }
    TextScope(const TextScope&) = delete;
    TextScope& operator=(const TextScope&) = delete;

    void Draw(const CString& text, CRect row, QVSkinColor color) {
        m_dc.SetTextColor(QV_GetSysColor(color));
        m_dc.DrawText(text, row, kOneLine);
    }

  private:
    CDC& m_dc;
    CFont* m_former;
};

// One channel: its middle line, and in each column of pixels a stroke from its lowest to its highest sample.
void PaintLane(CDC& dc, const CRect& lane, const std::vector<SoundOutline::Range>& ranges) {
    const int middle = lane.CenterPoint().y;
    const int reach = std::max(1, lane.Height() / 2 - 1);
    const auto offset = [reach](float sample) {
        return static_cast<int>(std::lround(sample * static_cast<float>(reach)));
    };
    dc.FillSolidRect(CRect(lane.left, middle, lane.right, middle + 1), QV_GetSysColor(QVCLR_GRID));
    for (int x = 0; x < lane.Width(); ++x) {
        const SoundOutline::Range& range =
            ranges[static_cast<size_t>(x) * ranges.size() / static_cast<size_t>(lane.Width())];
        dc.FillSolidRect(CRect(lane.left + x, middle - offset(range.high), lane.left + x + 1,
                               middle - offset(range.low) + 1),
                         QV_GetSysColor(QVCLR_ACCENT));
    }
}

} // namespace

void PaintThumbnail(CDC& dc, const CRect& frame, CPixelBitmap& picture) {
    if (picture.IsEmpty())
        return;
    CDC source;
    source.CreateCompatibleDC(&dc);
    CBitmap* const former = source.SelectObject(picture.Bitmap());
    const CSize size = picture.Size();
    dc.BitBlt(frame.left + (frame.Width() - size.cx) / 2, frame.top + (frame.Height() - size.cy) / 2, size.cx,
              size.cy, &source, 0, 0, SRCCOPY);
    source.SelectObject(former);
}

void PaintLayers(CDC& dc, const CRect& frame, const std::vector<CString>& layers, UINT dpi) {
    const int gap = QV_ScaleForDpi(kGapPx, dpi);
    const int step = QV_ScaleForDpi(kLayerLinePx, dpi);
    const int count = static_cast<int>(layers.size());
    const int rows = std::max(1, (frame.Height() - gap / 2) / step);
    const int named = count <= rows ? count : rows - 1;
    TextScope text(dc, dpi);
    CRect row(frame.left + gap, frame.top + gap / 2, frame.right - gap, frame.top + gap / 2 + step);
    for (int i = 0; i < named; ++i, row.OffsetRect(0, step))
        text.Draw(layers[static_cast<size_t>(count - 1 - i)], row, QVCLR_TEXT_WINDOW);
    if (named < count) {
        CString more;
        more.Format(QV_LoadSysString(L"IDS_GALLERY_PREVIEW_MORE"), count - named);
        text.Draw(more, row, QVCLR_TEXT_LIST);
    }
}

void PaintOutline(CDC& dc, const CRect& frame, const SoundOutline& outline, UINT dpi) {
    if (outline.IsEmpty())
        return;
    CRect inner(frame);
    const int gap = QV_ScaleForDpi(kGapPx, dpi) / 2;
    inner.DeflateRect(gap, gap);
    const int room = std::max(1, inner.Height() / QV_ScaleForDpi(kLeastLanePx, dpi));
    const int lanes = std::min(room, static_cast<int>(outline.channels.size()));
    for (int lane = 0; lane < lanes; ++lane)
        PaintLane(dc,
                  CRect(inner.left, inner.top + inner.Height() * lane / lanes, inner.right,
                        inner.top + inner.Height() * (lane + 1) / lanes),
                  outline.channels[static_cast<size_t>(lane)]);
}

void PaintLines(CDC& dc, const CRect& area, const std::vector<CString>& lines, UINT dpi) {
    const int step = QV_ScaleForDpi(kLinePx, dpi);
    TextScope text(dc, dpi);
    CRect row(area.left, area.top, area.right, area.top + step);
    for (size_t i = 0; i < lines.size(); ++i, row.OffsetRect(0, step))
        text.Draw(lines[i], row, i == 0 ? QVCLR_TEXT_WINDOW : QVCLR_TEXT_LIST);
}
