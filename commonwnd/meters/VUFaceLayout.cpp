#include "VUFaceLayout.h"

#include "QVVUFrame.h"

#include <QVDBScale.h>
#include <QVSkin.h>

#include <cmath>

namespace _qv_commonwnd {

namespace {

// Pixels at 96 DPI.
constexpr int kFirstGroupLeftPx = 40;
constexpr int kPitchPx = 22;
constexpr int kGroupGapPx = 40;
constexpr int kRightMarginPx = 14;
constexpr int kScaleLeftPx = 30; // left of the meters
constexpr int kMeterTopPx = 86;
constexpr int kMeterWidthPx = 15;
constexpr int kMeterHeightPx = 206;
constexpr int kButtonLeftPx = 3;
constexpr int kButtonTopPx = 66;
constexpr int kTitleTopPx = 8;
constexpr int kLabelLeftPx = 3;
constexpr int kLabelTopPx = 40;
constexpr int kPanelTopPx = 36;
constexpr int kPanelExtraWidthPx = 35;
constexpr int kPanelLostHeightPx = 46;
constexpr int kScaleWidthPx = 30;
constexpr int kFootPx = 20; // from the foot of the client area up to that of meters and scales

} // namespace

CVUFaceLayout::CVUFaceLayout(int inputs, int tracks, int outputs, UINT dpi) {
    auto px = [dpi](int value) { return _qv_commonctrl::QV_ScaleForDpi(value, dpi); };
    int x = px(kFirstGroupLeftPx);
    x = Place(input, inputs, x, dpi);
    if (inputs > 0)
        x += px(kGroupGapPx);
    x = Place(track, tracks, x, dpi);
    if (tracks > 0)
        x += px(kGroupGapPx);
    x = Place(output, outputs, x, dpi);
    width = x + px(kRightMarginPx);
}

int CVUFaceLayout::Place(VUGroup& group, int count, int x, UINT dpi) {
    auto px = [dpi](int value) { return _qv_commonctrl::QV_ScaleForDpi(value, dpi); };
    if (count <= 0)
        return x;
    group.count = count;
    group.pitch = px(kPitchPx);
    group.scale = CPoint(x - px(kScaleLeftPx), px(kMeterTopPx));
    group.firstMeter = CRect(CPoint(x, px(kMeterTopPx)), CSize(px(kMeterWidthPx), px(kMeterHeightPx)));
    group.firstButton = CPoint(x + px(kButtonLeftPx), px(kButtonTopPx));
    group.title = CPoint(x, px(kTitleTopPx));
    group.label = CPoint(x + px(kLabelLeftPx), px(kLabelTopPx));
    return x + group.pitch * count;
}

bool IsFacePossible(long inputs, long tracks, long outputs) {
    return inputs >= 0 && inputs <= CQVVUFrame::kMostInputs && tracks >= 0 &&
           tracks <= CQVVUFrame::kMostTracks && outputs >= 0 && outputs <= CQVVUFrame::kMostOutputs;
}

CRect VUPanel(int left, int count, int clientHeight, UINT dpi) {
    auto px = [dpi](int value) { return _qv_commonctrl::QV_ScaleForDpi(value, dpi); };
    return CRect(CPoint(left, px(kPanelTopPx)),
                 CSize(px(kPitchPx) * count + px(kPanelExtraWidthPx), clientHeight - px(kPanelLostHeightPx)));
}

int VUFoot(int clientHeight, UINT dpi) {
    return clientHeight - _qv_commonctrl::QV_ScaleForDpi(kFootPx, dpi);
}

CRect VUScale(const VUGroup& group, int clientHeight, UINT dpi) {
    const int right = group.scale.x + _qv_commonctrl::QV_ScaleForDpi(kScaleWidthPx, dpi);
    return CRect(group.scale.x, group.scale.y, right, VUFoot(clientHeight, dpi));
}

int VUMarkY(int markDb, int top, int bottom) {
    const double fromTop = 100.0 - _qv_extractrl::QVX_DBToPos(markDb);
    return static_cast<int>(std::lround(fromTop * (bottom - top) / 100.0)) + top;
}

} // namespace _qv_commonwnd
