#include "QVMeterStrip.h"

#include "QVDBScale.h"

#include <QVSkin.h>

#include <algorithm>
#include <vector>

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

constexpr int kColumns = static_cast<int>(QVMeterRow::ClipMark) + 1;

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
    const BITMAPINFO info = TopDownBitmap(kColumns * key.width, key.height);
    void* pixels = nullptr;
    m_columns.reset(::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &pixels, nullptr, 0));
    if (!m_columns)
        return; // out of drawing objects: nothing will be copied
    m_source.emplace(m_columns.get());
    Fill(static_cast<DWORD*>(pixels));
    ::GdiFlush();
}

void CQVMeterStrip::Fill(DWORD* pixels) const {
    const COLORREF well = QV_GetSysColor(QVCLR_METER_WELL);
    const DWORD peak = PixelOf(QV_GetSysColor(QVCLR_METER_PEAK));
    const DWORD clip = PixelOf(QV_GetSysColor(QVCLR_METER_OVER));
    const auto column = [this](DWORD* row, QVMeterRow state) {
        return row + static_cast<int>(state) * m_key.width;
    };
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
        DWORD* const row =
            pixels + static_cast<ptrdiff_t>(m_key.height - 1 - fromFoot) * kColumns * m_key.width;
        std::fill_n(column(row, QVMeterRow::Unlit), m_key.width, PixelOf(unlit));
        DWORD* const litRow = column(row, QVMeterRow::Lit);
        std::fill_n(litRow, m_key.width, PixelOf(lit));
        litRow[0] = litRow[m_key.width - 1] = PixelOf(Mix(lit, well, kEdgeShare));
        std::fill_n(column(row, QVMeterRow::PeakMark), m_key.width, peak);
        std::fill_n(column(row, QVMeterRow::ClipMark), m_key.width, clip);
    }
}

void CQVMeterStrip::Draw(HDC dc, POINT at, const QVMeterRuns& runs) const {
    if (!m_source)
        return;
    for (const QVMeterRun& run : runs)
        ::BitBlt(dc, at.x, at.y + run.from, m_key.width, run.to - run.from, m_source->Get(),
                 static_cast<int>(run.state) * m_key.width, run.from, SRCCOPY);
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
