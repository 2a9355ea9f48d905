#include "ToolBarEx.h"

#include "support/Handles.h"

#include <QVPaintMemoDC.h>
#include <QVSkin.h>

namespace _qv_commonwnd {

using namespace _qv_commonctrl;

namespace {

constexpr int kTextBandPx = 25;    // at the button's bottom
constexpr int kMostTextUnits = 40; // of a button's text
constexpr int kCheckedFramePx = 1;

} // namespace

IMPLEMENT_DYNAMIC(CToolBarEx, CToolBar)

BEGIN_MESSAGE_MAP(CToolBarEx, CToolBar)
    ON_WM_PAINT()
    ON_WM_NCPAINT()
    ON_WM_ERASEBKGND()
    ON_WM_CTLCOLOR()
END_MESSAGE_MAP()

CToolBarEx::CToolBarEx() = default;

CToolBarEx::~CToolBarEx() = default;

void CToolBarEx::PreSubclassWindow() {
    CToolBar::PreSubclassWindow();
    AttachSkin(this);
}

BOOL CToolBarEx::OnEraseBkgnd(CDC*) {
    return TRUE;
}

HBRUSH CToolBarEx::OnCtlColor(CDC*, CWnd*, UINT) {
    return QV_GetSysBrush(QVBRUSH_WINDOW);
}

void CToolBarEx::OnNcPaint() {
    CRect window;
    GetWindowRect(&window);
    CRect client;
    GetClientRect(&client);
    ClientToScreen(&client);
    client.OffsetRect(-window.TopLeft());
    window.OffsetRect(-window.TopLeft());
    CWindowDC dc(this);
    dc.ExcludeClipRect(&client);
    dc.FillSolidRect(window, QV_GetSysColor(QVCLR_WINDOW));
    Invalidate(FALSE);
}

void CToolBarEx::OnPaint() {
    CQVPaintMemoDC dc(this, QVCLR_WINDOW);
    const Selection font(dc, QV_GetSysFont(QVFONT_UI, QV_GetWindowDpi(m_hWnd))->GetSafeHandle());
    dc.SetBkMode(TRANSPARENT);
    dc.SetTextColor(QV_GetSysColor(QVCLR_TEXT_WINDOW));
    const int count = GetToolBarCtrl().GetButtonCount();
    for (int index = 0; index < count; ++index)
        PaintButton(&dc, index);
}

void CToolBarEx::PaintButton(CDC* dc, int index) const {
    const CToolBarCtrl& control = GetToolBarCtrl();
    TBBUTTON button = {};
    CRect rect;
    if (!control.GetButton(index, &button) || (button.fsState & TBSTATE_HIDDEN) ||
        (button.fsStyle & BTNS_SEP) || !control.GetItemRect(index, &rect))
        return;
    dc->FillSolidRect(rect, QV_GetSysColor(QVCLR_WINDOW));
    PaintImage(dc, rect, button.iBitmap);
    if (button.fsState & TBSTATE_CHECKED) {
        CBrush frame(QV_GetSysColor(QVCLR_TEXT_WINDOW));
        CRect line(rect);
        for (int i = 0; i < QV_ScalePx(m_hWnd, kCheckedFramePx); ++i, line.DeflateRect(1, 1))
            dc->FrameRect(line, &frame);
    }
    CRect text(rect);
    text.top = text.bottom - QV_ScalePx(m_hWnd, kTextBandPx);
    dc->DrawText(TextOfButton(button.idCommand), text,
                 DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_END_ELLIPSIS | DT_NOPREFIX);
}

void CToolBarEx::PaintImage(CDC* dc, const CRect& button, int image) const {
    const auto images = reinterpret_cast<HIMAGELIST>(SendMessage(TB_GETIMAGELIST));
    IMAGELISTDRAWPARAMS draw = {};
    int width = 0;
    int height = 0;
    if (!images || image < 0 || !::ImageList_GetIconSize(images, &width, &height))
        return;
    draw.cbSize = sizeof draw;
    draw.himl = images;
    draw.i = image;
    draw.hdcDst = dc->GetSafeHdc();
    draw.x = button.left + (button.Width() - width) / 2;
    draw.y = button.top;
    draw.rgbBk = CLR_NONE;
    draw.rgbFg = CLR_DEFAULT;
    draw.fStyle = ILD_TRANSPARENT;
    draw.dwRop = SRCCOPY;
    ::ImageList_DrawIndirect(&draw);
}

CString CToolBarEx::TextOfButton(int command) const {
    wchar_t text[kMostTextUnits + 1] = L"";
    TBBUTTONINFOW info = {};
    info.cbSize = sizeof info;
    info.dwMask = TBIF_TEXT;
    info.pszText = text;
    info.cchText = kMostTextUnits + 1;
    return GetToolBarCtrl().GetButtonInfo(command, &info) ? CString(text) : CString();
}

} // namespace _qv_commonwnd
