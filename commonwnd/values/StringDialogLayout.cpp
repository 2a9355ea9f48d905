#include "StringDialogLayout.h"

#include <QVSkin.h>

namespace _qv_commonwnd {

namespace {

// Pixels at 96 DPI.
constexpr int kLabelLeftPx = 6;
constexpr int kLabelTopPx = 8;
constexpr int kLabelWidthPx = 60;
constexpr int kLabelHeightPx = 14;
constexpr int kEditGapPx = 4;
constexpr int kEditHeightPx = 22;
constexpr int kButtonGapPx = 10;
constexpr int kButtonsRightPx = 20;
constexpr int kButtonWidthPx = 70;
constexpr int kButtonHeightPx = 22;
constexpr int kWindowMarginPx = 10;
constexpr int kWindowBottomPx = 30;
constexpr int kWindowButtonDropPx = 13;

} // namespace

StringDialogLayout LayOutPromptedString(const CRect& client, UINT dpi) {
    auto px = [dpi](int value) { return _qv_commonctrl::QV_ScaleForDpi(value, dpi); };
    StringDialogLayout layout;
    layout.label = CRect(CPoint(client.left + px(kLabelLeftPx), client.top + px(kLabelTopPx)),
                         CSize(px(kLabelWidthPx), px(kLabelHeightPx)));
    const int editTop = layout.label.bottom + px(kEditGapPx);
    layout.edit.SetRect(layout.label.left, editTop, client.right - px(kLabelLeftPx),
                        editTop + px(kEditHeightPx));
    const int buttonTop = layout.edit.bottom + px(kButtonGapPx);
    const CSize button(px(kButtonWidthPx), px(kButtonHeightPx));
    const int cancelLeft = client.right - px(kButtonsRightPx) - button.cx;
    layout.cancel = CRect(CPoint(cancelLeft, buttonTop), button);
    layout.ok = CRect(CPoint(cancelLeft - px(kButtonGapPx) - button.cx, buttonTop), button);
    return layout;
}

StringDialogLayout LayOutStringWindow(const CRect& client, const CRect& ok, const CRect& cancel, UINT dpi) {
    auto px = [dpi](int value) { return _qv_commonctrl::QV_ScaleForDpi(value, dpi); };
    const CSize button(px(kButtonWidthPx), px(kButtonHeightPx));
    StringDialogLayout layout;
    layout.edit = client;
    layout.edit.DeflateRect(px(kWindowMarginPx), px(kWindowMarginPx), px(kWindowMarginPx),
                            px(kWindowBottomPx));
    layout.ok = CRect(CPoint(ok.left, ok.top + px(kWindowButtonDropPx)), button);
    layout.cancel = CRect(CPoint(cancel.left, cancel.top + px(kWindowButtonDropPx)), button);
    return layout;
}

} // namespace _qv_commonwnd
