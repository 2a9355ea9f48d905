// What the meter frame paints: panels, labels, titles and scales.
#include "QVVUFrame.h"

#include "module/DictText.h"
#include "VUFaceLayout.h"

#include <QVMemoDC.h>
#include <QVSkin.h>

#include <algorithm>

using namespace _qv_commonctrl;

namespace _qv_commonwnd {

namespace {

int g_marksDb[] = {0, -3, -6, -12, -20, -30, -40, -60, -120};
constexpr int kMarks = static_cast<int>(std::size(g_marksDb));
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
constexpr int kScaleWidthPx = 30;
constexpr int kScaleBottomPx = 20;
constexpr int kTickLeftPx = 7;
constexpr int kTickRightPx = 3;
constexpr int kMarkTextRightPx = 8;
constexpr int kMarkTextAbovePx = 8;
constexpr int kMarkTextBelowPx = 12;
constexpr int kMarkLabelPx = 12; // height of a figure

// The skin's UI font in another height.
void CreateUiFont(CFont& font, int heightPx, UINT dpi) {
    LOGFONTW log = {};
    QV_GetSysFont(QVFONT_UI, dpi)->GetLogFont(&log);
    log.lfHeight = -QV_ScaleForDpi(heightPx, dpi);
    font.CreateFontIndirect(&log);
}

// Restores the font that was selected before.
class FontScope {
  public:
    FontScope(CDC& dc, CFont* font) : m_dc(dc), m_pOld(dc.SelectObject(font)) {}
    ~FontScope() { m_dc.SelectObject(m_pOld); }
    FontScope(const FontScope&) = delete;
    FontScope& operator=(const FontScope&) = delete;

  private:
    CDC& m_dc;
    CFont* m_pOld;
};

// The font of the scale's figures; narrower than its height asks for when the widest figure would not fit.
void CreateScaleFont(CFont& font, CDC& dc, int room, UINT dpi) {
    CreateUiFont(font, kScaleFontPx, dpi);
    LOGFONTW log = {};
    LONG width = 0;
    TEXTMETRICW metrics = {};
    {
        FontScope scope(dc, &font);
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

// `font`: null for the one that is selected.
void DrawMarkText(CDC& dc, const CString& text, CRect place, CFont* font) {
    const UINT format = DT_RIGHT | DT_VCENTER | DT_SINGLELINE | DT_NOCLIP;
    if (!font) {
        dc.DrawText(text, place, format);
        return;
    }
    FontScope scope(dc, font);
    dc.DrawText(text, place, format);
}

struct GroupText {
    VUGroup CVUFaceLayout::*group;
    const wchar_t* title; // default text of the dictionary table
    const wchar_t* label; // format of a channel's label
};
constexpr GroupText kGroups[] = {{&CVUFaceLayout::input, L"输入", L"In%d"},
                                 {&CVUFaceLayout::track, L"轨道", L"A%d"},
                                 {&CVUFaceLayout::output, L"输出", L"Ch%d"}};

} // namespace

BOOL CQVVUFrame::OnEraseBkgnd(CDC*) {
    return TRUE;
}

// The meters' buttons stand on the raised panels.
HBRUSH CQVVUFrame::OnCtlColor(CDC* pDC, CWnd*, UINT) {
    pDC->SetBkMode(TRANSPARENT);
    pDC->SetTextColor(QV_GetSysColor(QVCLR_TEXT));
    return m_brPanel;
}

void CQVVUFrame::OnPaint() {
    CQVPaintMemoDC dc(this, QVCLR_PANEL);
    dc.SetBkMode(TRANSPARENT);
    dc.SetTextColor(QV_GetSysColor(QVCLR_TEXT));
    PaintPanels(dc, dc.Client());
    PaintLabels(dc);
    PaintTitles(dc);
    const UINT dpi = Dpi();
    FontScope font(dc, QV_GetSysFont(QVFONT_TITLE, dpi));
    for (const auto& text : kGroups) {
        const VUGroup& group = m_pLayout->*text.group;
        if (group.count == 0)
            continue;
        PaintLine(&dc, g_marksDb, kMarks,
                  CRect(group.scale.x, group.scale.y, group.scale.x + QV_ScaleForDpi(kScaleWidthPx, dpi),
                        dc.Client().bottom - QV_ScaleForDpi(kScaleBottomPx, dpi)));
    }
}

void CQVVUFrame::PaintPanels(CDC& dc, const CRect& client) {
    const UINT dpi = Dpi();
    const COLORREF color = QV_GetSysColor(QVCLR_PANEL_RAISED);
    CBrush brush(color);
    CPen pen(PS_SOLID, 1, color);
    CBrush* oldBrush = dc.SelectObject(&brush);
    CPen* oldPen = dc.SelectObject(&pen);
    const int corner = QV_ScaleForDpi(kPanelCornerPx, dpi);
    int left = QV_ScaleForDpi(kPanelLeftPx, dpi);
    for (const auto& text : kGroups) {
        const VUGroup& group = m_pLayout->*text.group;
        if (group.count == 0)
            continue;
        const CRect panel = VUPanel(left, group.count, client.Height(), dpi);
        dc.RoundRect(panel, CPoint(corner, corner));
        left = panel.right + QV_ScaleForDpi(kPanelGapPx, dpi);
    }
    dc.SelectObject(oldPen);
    dc.SelectObject(oldBrush);
}

void CQVVUFrame::PaintLabels(CDC& dc) {
    const UINT dpi = Dpi();
    CFont font;
    CreateUiFont(font, kChannelFontPx, dpi);
    FontScope scope(dc, &font);
    const CSize cell(QV_ScaleForDpi(kLabelWidthPx, dpi), QV_ScaleForDpi(kLabelHeightPx, dpi));
    for (const auto& text : kGroups) {
        const VUGroup& group = m_pLayout->*text.group;
        for (int i = 0; i < group.count; ++i) {
            CRect rect(
                CPoint(group.label.x + group.pitch * i - QV_ScaleForDpi(kLabelShiftPx, dpi), group.label.y),
                cell);
            CString label;
            label.Format(text.label, i + 1);
            dc.DrawText(label, rect, DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_NOCLIP);
        }
    }
}

void CQVVUFrame::PaintTitles(CDC& dc) {
    const UINT dpi = Dpi();
    const COLORREF oldColor = dc.SetTextColor(QV_GetSysColor(QVCLR_TEXT_TITLE));
    FontScope scope(dc, QV_GetSysFont(QVFONT_TITLE, dpi));
    const CSize cell(QV_ScaleForDpi(kTitleWidthPx, dpi), QV_ScaleForDpi(kTitleHeightPx, dpi));
    for (const auto& text : kGroups) {
        const VUGroup& group = m_pLayout->*text.group;
        if (group.count == 0)
            continue;
        CRect rect(group.title, cell);
        rect.OffsetRect(std::max(0, group.pitch * group.count - static_cast<int>(cell.cx)) / 2, 0);
        // The title of a narrow group may be wider than its cell.
        dc.DrawText(QV_GetCommonDictString(text.title), rect, DT_CENTER | DT_SINGLELINE | DT_NOCLIP);
    }
    dc.SetTextColor(oldColor);
}

void CQVVUFrame::PaintLine(CDC* pDC, int* pMarks, int nMarks, CRect rect) {
    const UINT dpi = Dpi();
    auto px = [dpi](int value) { return QV_ScaleForDpi(value, dpi); };
    CFont font;
    CreateScaleFont(font, *pDC, rect.Width() - px(kMarkTextRightPx), dpi);
    CPen* oldPen = pDC->SelectObject(m_pTickPen);
    const auto marks = VUScaleMarks(pMarks, nMarks, rect.top, rect.bottom, px(kMarkLabelPx));
    for (int i = 0; i < nMarks; ++i) {
        const VUScaleMark& mark = marks[static_cast<size_t>(i)];
        pDC->SelectObject(m_pShadowPen);
        pDC->MoveTo(rect.right - px(kTickLeftPx), mark.y - 1);
        pDC->LineTo(rect.right - px(kTickRightPx), mark.y - 1);
        pDC->SelectObject(m_pTickPen);
        pDC->MoveTo(rect.right - px(kTickLeftPx), mark.y);
        pDC->LineTo(rect.right - px(kTickRightPx), mark.y);
        if (!mark.labelled)
            continue;
        CRect place(rect.left, mark.y - px(kMarkTextAbovePx), rect.right - px(kMarkTextRightPx),
                    mark.y + px(kMarkTextBelowPx));
        CString number;
        number.Format(L"%d", pMarks[i]);
        const bool silence = pMarks[i] == kSilenceDb;
        DrawMarkText(*pDC, silence ? CString(kSilenceText) : number, place, &font);
        if (silence) // in the font that was selected before
            DrawMarkText(*pDC, kInfinity, place, nullptr);
    }
    pDC->SelectObject(oldPen);
}

} // namespace _qv_commonwnd
