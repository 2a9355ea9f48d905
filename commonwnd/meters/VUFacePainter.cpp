#include "VUFacePainter.h"

#include "module/DictText.h"
#include "support/Handles.h"

#include <QVSkin.h>

#include <algorithm>

using namespace _qv_commonctrl;

namespace _qv_commonwnd {

namespace {

constexpr int kSilenceDb = -120; // shown as minus infinity

constexpr wchar_t kSilenceText[] = L"-    ";
constexpr wchar_t kWidestMark[] = L"-60";
constexpr wchar_t kInfinity[] = L"\u221E";

// Pixels at 96 DPI.
constexpr int kPanelLeftPx = 10;
constexpr int kPanelGapPx = 5;
constexpr int kPanelCornerPx = 8;
constexpr int kChannelFontPx = 11;
constexpr int kScaleFontPx = 17;
constexpr int kLabelWidthPx = 22;
constexpr int kLabelHeightPx = 26;
constexpr int kLabelShiftPx = 3;
constexpr int kTitleWidthPx = 30;
constexpr int kTitleHeightPx = 17;
constexpr int kTickLeftPx = 7;
constexpr int kTickRightPx = 3;
constexpr int kMarkTextRightPx = 8;
constexpr int kMarkTextAbovePx = 8;
constexpr int kMarkTextBelowPx = 12;

// The skin's UI font in another height.
void CreateUiFont(CFont& font, int heightPx, UINT dpi) {
    LOGFONTW log = {};
    QV_GetSysFont(QVFONT_UI, dpi)->GetLogFont(&log);
    log.lfHeight = -QV_ScaleForDpi(heightPx, dpi);
    font.CreateFontIndirect(&log);
}

// The font of the scale's figures; narrower than its height asks for when the widest figure would not fit.
void CreateScaleFont(CFont& font, CDC& dc, int room, UINT dpi) {
    CreateUiFont(font, kScaleFontPx, dpi);
    LOGFONTW log = {};
    LONG width = 0;
    TEXTMETRICW metrics = {};
    {
        const Selection selected(dc.GetSafeHdc(), font.GetSafeHandle());
        width = std::max(dc.GetTextExtent(kWidestMark).cx, dc.GetTextExtent(kSilenceText).cx);
        dc.GetTextMetrics(&metrics);
        font.GetLogFont(&log);
    }
    if (width <= room || width == 0)
        return;
    log.lfWidth = metrics.tmAveCharWidth * room / width;
    font.DeleteObject();
    font.CreateFontIndirect(&log);
}

void DrawMarkText(CDC& dc, const CString& text, CRect place) {
    dc.DrawText(text, place, DT_RIGHT | DT_VCENTER | DT_SINGLELINE | DT_NOCLIP);
}

struct GroupText {
    VUGroup CVUFaceLayout::*group;
    const wchar_t* title; // default text of the dictionary table
    const wchar_t* label; // format of a channel's label
};
constexpr GroupText kGroups[] = {{&CVUFaceLayout::input, L"输入", L"In%d"},
                                 {&CVUFaceLayout::track, L"轨道", L"A%d"},
                                 {&CVUFaceLayout::output, L"输出", L"Ch%d"}};

// Calls action(group, text) for each group that has channels, from left to right.
template <class ACTION> void ForEachGroup(const CVUFaceLayout& face, ACTION action) {
    for (const GroupText& text : kGroups) {
        const VUGroup& group = face.*text.group;
        if (group.count > 0)
            action(group, text);
    }
}

void PaintPanels(CDC& dc, const CRect& client, const CVUFaceLayout& face, UINT dpi) {
    const COLORREF color = QV_GetSysColor(QVCLR_PANEL_RAISED);
    CBrush brush(color);
    CPen pen(PS_SOLID, 1, color);
    const Selection selectedBrush(dc.GetSafeHdc(), brush.GetSafeHandle());
    const Selection selectedPen(dc.GetSafeHdc(), pen.GetSafeHandle());
    const int corner = QV_ScaleForDpi(kPanelCornerPx, dpi);
    int left = QV_ScaleForDpi(kPanelLeftPx, dpi);
    ForEachGroup(face, [&](const VUGroup& group, const GroupText&) {
        const CRect panel = VUPanel(left, group.count, client.Height(), dpi);
        dc.RoundRect(panel, CPoint(corner, corner));
        left = panel.right + QV_ScaleForDpi(kPanelGapPx, dpi);
    });
}

void PaintLabels(CDC& dc, const CVUFaceLayout& face, UINT dpi) {
    CFont font;
    CreateUiFont(font, kChannelFontPx, dpi);
    const Selection selected(dc.GetSafeHdc(), font.GetSafeHandle());
    const CSize cell(QV_ScaleForDpi(kLabelWidthPx, dpi), QV_ScaleForDpi(kLabelHeightPx, dpi));
    const int shift = QV_ScaleForDpi(kLabelShiftPx, dpi);
    ForEachGroup(face, [&](const VUGroup& group, const GroupText& text) {
        for (int i = 0; i < group.count; ++i) {
            CRect place(CPoint(group.label.x + group.pitch * i - shift, group.label.y), cell);
            CString label;
            label.Format(text.label, i + 1);
            dc.DrawText(label, place, DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_NOCLIP);
        }
    });
}

void PaintTitles(CDC& dc, const CVUFaceLayout& face, UINT dpi) {
    const COLORREF oldColor = dc.SetTextColor(QV_GetSysColor(QVCLR_TEXT_TITLE));
    const CSize cell(QV_ScaleForDpi(kTitleWidthPx, dpi), QV_ScaleForDpi(kTitleHeightPx, dpi));
    ForEachGroup(face, [&](const VUGroup& group, const GroupText& text) {
        CRect place(group.title, cell);
        place.OffsetRect(std::max(0, group.pitch * group.count - static_cast<int>(cell.cx)) / 2, 0);
        // The title of a narrow group may be wider than its cell.
        dc.DrawText(QV_GetCommonDictString(text.title), place, DT_CENTER | DT_SINGLELINE | DT_NOCLIP);
    });
    dc.SetTextColor(oldColor);
}

void PaintTick(CDC& dc, int left, int right, int y, CPen* pen) {
    const Selection selected(dc.GetSafeHdc(), pen->GetSafeHandle());
    dc.MoveTo(left, y);
    dc.LineTo(right, y);
}

} // namespace

void PaintVUFace(CDC& dc, const CRect& client, const CVUFaceLayout& face, UINT dpi) {
    dc.SetBkMode(TRANSPARENT);
    dc.SetTextColor(QV_GetSysColor(QVCLR_TEXT));
    PaintPanels(dc, client, face, dpi);
    PaintLabels(dc, face, dpi);
    const Selection font(dc.GetSafeHdc(), QV_GetSysFont(QVFONT_TITLE, dpi)->GetSafeHandle());
    PaintTitles(dc, face, dpi);
}

void PaintVUScale(CDC& dc, const int* marksDb, int count, const CRect& place, const VUScalePens& pens,
                  UINT dpi) {
    auto px = [dpi](int value) { return QV_ScaleForDpi(value, dpi); };
    CFont figures;
    CreateScaleFont(figures, dc, place.Width() - px(kMarkTextRightPx), dpi);
    const int left = place.right - px(kTickLeftPx);
    const int right = place.right - px(kTickRightPx);
    for (int i = 0; i < count; ++i) {
        const int y = VUMarkY(marksDb[i], place.top, place.bottom);
        PaintTick(dc, left, right, y - 1, pens.shadow);
        PaintTick(dc, left, right, y, pens.tick);
        const CRect text(place.left, y - px(kMarkTextAbovePx), place.right - px(kMarkTextRightPx),
                         y + px(kMarkTextBelowPx));
        const bool isSilence = marksDb[i] == kSilenceDb;
        CString figure(kSilenceText);
        if (!isSilence)
            figure.Format(L"%d", marksDb[i]);
        {
            const Selection selected(dc.GetSafeHdc(), figures.GetSafeHandle());
            DrawMarkText(dc, figure, text);
        }
        if (isSilence)
            DrawMarkText(dc, kInfinity, text);
    }
}

} // namespace _qv_commonwnd
