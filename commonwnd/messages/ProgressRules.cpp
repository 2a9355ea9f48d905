#include "ProgressRules.h"

#include <QVSkin.h>

namespace _qv_commonwnd {

namespace {

constexpr int kMaxDots = 20;
constexpr float kSlowDown = 3.0f;

// Pixels at 96 DPI.
constexpr int kSideMarginPx = 20;
constexpr int kBarGapPx = 4;
constexpr int kBarHeightPx = 20;
constexpr int kButtonGapPx = 10;
constexpr int kButtonWidthPx = 70;
constexpr int kButtonHeightPx = 22;

} // namespace

void AdvanceProgress(ProgressState& state) {
    state.cur += state.step;
    if (static_cast<float>(state.next) > state.cur)
        return;
    const float remaining = (static_cast<float>(state.range) - state.cur) / static_cast<float>(state.range);
    if (static_cast<float>(state.slowLimit) > remaining) {
        state.slowLimit /= 2;
        state.step /= kSlowDown;
    }
}

int BarPosition(float cur, int range) {
    if (!(cur > 0.0f))
        return 0;
    return cur < static_cast<float>(range) ? static_cast<int>(cur) : range;
}

CString ProgressMessage(const CString& text, int dots) {
    return text + CString(L'.', dots);
}

int NextDotCount(int dots) {
    return dots + 1 > kMaxDots ? 0 : dots + 1;
}

ProgressLayout LayOutProgress(const CRect& client, const CRect& message, UINT dpi) {
    auto px = [dpi](int value) { return _qv_commonctrl::QV_ScaleForDpi(value, dpi); };
    ProgressLayout layout;
    layout.message.SetRect(client.left + px(kSideMarginPx), message.top, client.right - px(kSideMarginPx),
                           message.bottom);
    const int barTop = layout.message.bottom + px(kBarGapPx);
    layout.bar.SetRect(layout.message.left, barTop, layout.message.right, barTop + px(kBarHeightPx));
    const int buttonTop = layout.bar.bottom + px(kButtonGapPx);
    const int buttonRight = client.right - px(kSideMarginPx);
    layout.cancel.SetRect(buttonRight - px(kButtonWidthPx), buttonTop, buttonRight,
                          buttonTop + px(kButtonHeightPx));
    return layout;
}

} // namespace _qv_commonwnd
