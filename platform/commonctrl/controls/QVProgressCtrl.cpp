#include "QVProgressCtrl.h"

#include "paint/PaintKit.h"
#include "QVPaintMemoDC.h"

#include <algorithm>

namespace _qv_commonctrl {

IMPLEMENT_DYNAMIC(CQVProgressCtrl, CProgressCtrl)

namespace {

constexpr UINT_PTR kMarqueeTimer = 0x51565042; // "QVPB"
constexpr UINT kMarqueeDefaultMs = 30;
constexpr int kMarqueeSteps = 60;    // steps in which the marquee crosses the bar once
constexpr int kMarqueePartOfBar = 4; // its length is this part of the bar

bool ChangesPicture(UINT message) {
    switch (message) {
    case PBM_SETPOS:
    case PBM_DELTAPOS:
    case PBM_STEPIT:
    case PBM_SETRANGE:
    case PBM_SETRANGE32:
    case WM_ENABLE:
        return true;
    default:
        return false;
    }
}

} // namespace

CQVProgressCtrl::CQVProgressCtrl() = default;

CQVProgressCtrl::~CQVProgressCtrl() = default;

void CQVProgressCtrl::PreSubclassWindow() {
    CProgressCtrl::PreSubclassWindow();
    AttachSkin(this);
    Invalidate(FALSE);
}

CRect CQVProgressCtrl::FilledPart(const CRect& inside) const {
    const bool vertical = (GetStyle() & PBS_VERTICAL) != 0;
    const long long room = vertical ? inside.Height() : inside.Width();
    long long begin = 0;
    long long end = 0;
    if (m_nMarqueeStep >= 0) {
        const long long part = room / kMarqueePartOfBar;
        begin = m_nMarqueeStep * (room + part) / kMarqueeSteps - part;
        end = std::min(begin + part, room);
        begin = std::max(begin, 0LL);
    } else {
        PBRANGE range = {};
        SendMessage(PBM_GETRANGE, TRUE, reinterpret_cast<LPARAM>(&range));
        const long long span = static_cast<long long>(range.iHigh) - range.iLow;
        const long long done =
            std::clamp<long long>(GetPos(), range.iLow, std::max(range.iLow, range.iHigh)) - range.iLow;
        end = span > 0 ? room * done / span : 0;
    }
    CRect filled = inside;
    if (vertical) {
        filled.top = inside.bottom - static_cast<int>(end);
        filled.bottom = inside.bottom - static_cast<int>(begin);
    } else {
        filled.left = inside.left + static_cast<int>(begin);
        filled.right = inside.left + static_cast<int>(end);
    }
    return filled;
}

void CQVProgressCtrl::Paint(CDC* dc) {
    CRect client;
    GetClientRect(client);
    dc->FillSolidRect(client, QV_GetSysColor(QVCLR_SCROLL_TRACK));
    DrawFrameLines(dc, client, QV_GetSysColor(QVCLR_CTRL_BORDER), 1);
    CRect inside = client;
    inside.DeflateRect(1, 1);
    const CRect filled = FilledPart(inside);
    if (!filled.IsRectEmpty())
        dc->FillSolidRect(filled,
                          QV_GetSysColor(::IsWindowEnabled(m_hWnd) ? QVCLR_ACCENT : QVCLR_CTRL_BORDER));
}

void CQVProgressCtrl::SetMarquee(bool on, UINT stepMs) {
    m_nMarqueeStep = on ? 0 : -1;
    if (on)
        SetTimer(kMarqueeTimer, stepMs ? stepMs : kMarqueeDefaultMs, nullptr);
    else
        KillTimer(kMarqueeTimer);
    Invalidate(FALSE);
}

LRESULT CQVProgressCtrl::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_ERASEBKGND:
        return TRUE;
    case WM_PAINT: {
        CQVPaintMemoDC dc(this, QVCLR_SCROLL_TRACK);
        Paint(&dc);
        return 0;
    }
    case WM_PRINTCLIENT:
        Paint(CDC::FromHandle(reinterpret_cast<HDC>(wParam)));
        return 0;
    case PBM_SETMARQUEE:
        SetMarquee(wParam != 0 && (GetStyle() & PBS_MARQUEE), static_cast<UINT>(lParam));
        return TRUE;
    case WM_TIMER:
        if (wParam == kMarqueeTimer) {
            m_nMarqueeStep = (m_nMarqueeStep + 1) % kMarqueeSteps;
            Invalidate(FALSE);
            return 0;
        }
        break;
    }
    const LRESULT result = CProgressCtrl::WindowProc(message, wParam, lParam);
    if (ChangesPicture(message))
        Invalidate(FALSE);
    return result;
}

} // namespace _qv_commonctrl
