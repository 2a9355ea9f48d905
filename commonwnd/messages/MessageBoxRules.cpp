#include "MessageBoxRules.h"

#include <QVSkin.h>

#include <algorithm>

namespace _qv_commonwnd {

namespace {

// The least distances that a crowded box keeps, in pixels at 96 DPI.
constexpr int kEdgePx = 6;
constexpr int kRowGapPx = 4;
constexpr int kNextToButtonGapPx = 8;
// The ink of a line's last letter may end behind the width that the system measures.
constexpr int kOverhangPx = 3;

int Grown(int question, int window, int limit) {
    return std::max(window, std::min(question, limit));
}

} // namespace

CSize MessageBoxSize(CSize question, CSize window, CSize workArea, UINT dpi) {
    const int sides = _qv_commonctrl::QV_ScaleForDpi(kQuestionSidesPx, dpi);
    const int topAndBottom = _qv_commonctrl::QV_ScaleForDpi(kQuestionTopAndBottomPx, dpi);
    return CSize(Grown(question.cx + sides, window.cx, workArea.cx),
                 Grown(question.cy + topAndBottom, window.cy, workArea.cy));
}

MessageBoxParts FitQuestion(MessageBoxParts parts, CSize client, CSize question, int noAskWidth, UINT dpi) {
    const auto scaled = [dpi](int px) { return _qv_commonctrl::QV_ScaleForDpi(px, dpi); };
    CRect& text = parts.question;
    if (text.Width() < question.cx + scaled(kOverhangPx)) {
        const int edge = scaled(kEdgePx);
        const int width = std::min<int>(question.cx, client.cx - 2 * edge);
        text.left = std::min<int>(text.left, (client.cx - width) / 2);
        text.right = std::min<int>(std::max<int>(text.right, text.left + width + scaled(kOverhangPx)),
                                   client.cx - edge);
    }
    if (text.Height() < question.cy) {
        // One row for tick box and buttons.
        parts.noAsk.MoveToY(parts.yes.CenterPoint().y - parts.noAsk.Height() / 2);
        text.bottom = parts.yes.top - scaled(kRowGapPx);
        text.top =
            std::clamp<int>(text.bottom - question.cy, std::min<int>(scaled(kEdgePx), text.top), text.top);
    }
    const bool besideButtons = parts.noAsk.bottom > parts.yes.top;
    const int limit =
        besideButtons ? parts.yes.left - scaled(kNextToButtonGapPx) : client.cx - scaled(kEdgePx);
    const int right = std::min<int>(parts.noAsk.left + noAskWidth, limit);
    parts.noAsk.right = std::max<int>(parts.noAsk.right, right);
    return parts;
}

} // namespace _qv_commonwnd
