#include "QVMeterStrip.h"

#include "QVDBScale.h"

#include <QVSkin.h>

#include <algorithm>
#include <cmath>

namespace _qv_extractrl {

using namespace _qv_commonctrl;

namespace {

constexpr int kPeakMarkPx96 = 2;
constexpr int kClipMarkPx96 = 4;
constexpr double kHighFromDB = -9.0; // above the permitted programme level
constexpr double kOverFromDB = -3.0;

// Hairlines every few pixels make the bar readable as a ladder; they come closer together towards full scale,
// so that the ranges differ without colours as well.
constexpr int kSafeStepPx96 = 6;
constexpr int kHighStepPx96 = 4;
constexpr int kOverStepPx96 = 3;

constexpr int kPartsOfWhole = 256;
constexpr int kUnlitShare = 34; // how much of its colour an unlit row shows on the well
constexpr int kGapShare = 84;   // how much of the bar's colour a hairline keeps
constexpr int kEdgeShare = 208; // the bar's sides are a little darker than its middle

// 32-bit bitmaps hold blue in the lowest byte, colours red.
DWORD PixelOf(COLORREF color) {
    return static_cast<DWORD>(GetRValue(color)) << 16 | static_cast<DWORD>(GetGValue(color)) << 8 |
           GetBValue(color);
}

COLORREF Mix(COLORREF over, COLORREF ground, int share) {
    const auto channel = [share](int a, int b) {
        return (a * share + b * (kPartsOfWhole - share)) / kPartsOfWhole;
    };
    return RGB(channel(GetRValue(over), GetRValue(ground)), channel(GetGValue(over), GetGValue(ground)),
               channel(GetBValue(over), GetBValue(ground)));
}

struct Zone {
    int colorIndex;
    int stepPx96;
};

Zone ZoneOfPercent(double percent) {
    if (percent >= QVX_DBToPos(kOverFromDB))
        return {QVCLR_METER_OVER, kOverStepPx96};
    if (percent >= QVX_DBToPos(kHighFromDB))
        return {QVCLR_METER_HIGH, kHighStepPx96};
    return {QVCLR_METER_SAFE, kSafeStepPx96};
}

BITMAPINFO TopDownBitmap(int width, int height) {
    BITMAPINFO info = {};
    info.bmiHeader.biSize = sizeof(info.bmiHeader);
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = -height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    info.bmiHeader.biCompression = BI_RGB;
    return info;
}

} // namespace

CQVMeterStrip::CQVMeterStrip(const QVMeterStripKey& key)
    : m_key(key), m_marks{QV_ScaleForDpi(kPeakMarkPx96, key.dpi), QV_ScaleForDpi(kClipMarkPx96, key.dpi)} {
    const auto width = static_cast<size_t>(key.width);
    const size_t count = width * static_cast<size_t>(key.height);
    m_lit.resize(count);
    m_unlit.resize(count);
    m_peak.assign(width, PixelOf(QV_GetSysColor(QVCLR_METER_PEAK)));
    m_clip.assign(width, PixelOf(QV_GetSysColor(QVCLR_METER_OVER)));
    FillScale();
}

void CQVMeterStrip::FillScale() {
    const COLORREF well = QV_GetSysColor(QVCLR_METER_WELL);
    int stepBegin = 0;
    for (int fromFoot = 0; fromFoot < m_key.height; ++fromFoot) {
        const Zone zone = ZoneOfPercent(100.0 * fromFoot / m_key.height);
        const int step = QV_ScaleForDpi(zone.stepPx96, m_key.dpi);
        const bool isGap = fromFoot - stepBegin >= step - 1;
        if (isGap)
            stepBegin = fromFoot + 1;
        const COLORREF color = QV_GetSysColor(zone.colorIndex);
        const COLORREF lit = isGap ? Mix(color, well, kGapShare) : color;
        const COLORREF unlit = isGap ? well : Mix(color, well, kUnlitShare);
        const auto begin =
            static_cast<size_t>(m_key.height - 1 - fromFoot) * static_cast<size_t>(m_key.width);
        const auto width = static_cast<size_t>(m_key.width);
        std::fill_n(m_lit.begin() + static_cast<ptrdiff_t>(begin), width, PixelOf(lit));
        std::fill_n(m_unlit.begin() + static_cast<ptrdiff_t>(begin), width, PixelOf(unlit));
        m_lit[begin] = m_lit[begin + width - 1] = PixelOf(Mix(lit, well, kEdgeShare));
    }
}

const DWORD* CQVMeterStrip::RowPixels(QVMeterRow state, int row) const {
    const size_t begin = static_cast<size_t>(row) * static_cast<size_t>(m_key.width);
    switch (state) {
    case QVMeterRow::Lit:
        return &m_lit[begin];
    case QVMeterRow::PeakMark:
        return m_peak.data();
    case QVMeterRow::ClipMark:
        return m_clip.data();
    default:
        return &m_unlit[begin];
    }
}

void CQVMeterStrip::Draw(HDC dc, const QVMeterPicture& picture, QVRowRange range) const {
    range.from = std::max(range.from, 0);
    range.to = std::min(range.to, m_key.height);
    if (range.IsEmpty() || m_key.width <= 0)
        return;
    // Composed in memory first, so that the window gets one copy however many kinds of rows there are.
    static Pixels composed;
    const auto width = static_cast<size_t>(m_key.width);
    const int rows = range.to - range.from;
    composed.resize(width * static_cast<size_t>(rows));
    DWORD* target = composed.data();
    for (int row = range.from; row < range.to; ++row, target += width)
        std::copy_n(RowPixels(picture.RowAt(row), row), width, target);
    const BITMAPINFO info = TopDownBitmap(m_key.width, rows);
    ::SetDIBitsToDevice(dc, 0, range.from, static_cast<DWORD>(m_key.width), static_cast<DWORD>(rows), 0, 0, 0,
                        static_cast<UINT>(rows), composed.data(), &info, DIB_RGB_COLORS);
}

std::shared_ptr<const CQVMeterStrip> CQVMeterStrip::Get(const QVMeterStripKey& key) {
    static std::vector<std::weak_ptr<const CQVMeterStrip>> strips;
    std::erase_if(strips, [](const auto& strip) { return strip.expired(); });
    for (const auto& weak : strips) {
        if (auto strip = weak.lock(); strip && strip->Key() == key)
            return strip;
    }
    auto strip = std::make_shared<const CQVMeterStrip>(key);
    strips.push_back(strip);
    return strip;
}

} // namespace _qv_extractrl
