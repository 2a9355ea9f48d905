#include "ButtonFace.h"

#include "Mark.h"

#include <algorithm>

namespace _qv_commonctrl {

namespace {

// Measures in pixels at 96 DPI.
constexpr int kCornerPx = 3;
constexpr int kFocusLinePx = 2;
constexpr int kTextMarginXPx = 12;
constexpr int kTextMarginYPx = 5;
constexpr int kLatchMarginXPx = 5; // of a push-like check box, which is no wider than a channel of a mixer
constexpr int kContentInsetPx = 2; // least room between a push button's edge and its text
constexpr int kLatchBarPx = 2;     // accent bar of a latched push button
constexpr int kMarkGapPx = 6;      // between the box and the text
constexpr int kGroupTextInsetPx = 10;
constexpr int kGroupTextGapPx = 5; // line to text

bool IsGroupBox(HWND wnd) {
    return IsWindowOfClass(wnd, WC_BUTTONW) && (WindowStyle(wnd) & BS_TYPEMASK) == BS_GROUPBOX;
}

} // namespace

ButtonFace::Kind ButtonFace::GetKind() const {
    const DWORD style = Style();
    switch (style & BS_TYPEMASK) {
    case BS_PUSHBUTTON:
    case BS_DEFPUSHBUTTON:
    case BS_PUSHBOX:
        return Kind::Push;
    case BS_CHECKBOX:
    case BS_AUTOCHECKBOX:
    case BS_3STATE:
    case BS_AUTO3STATE:
        return style & BS_PUSHLIKE ? Kind::Push : Kind::Check;
    case BS_RADIOBUTTON:
    case BS_AUTORADIOBUTTON:
        return style & BS_PUSHLIKE ? Kind::Push : Kind::Radio;
    case BS_GROUPBOX:
        return Kind::Group;
    default:
        return Kind::Native;
    }
}

ControlState ButtonFace::State() const {
    if (!::IsWindowEnabled(Wnd()))
        return ControlState::Disabled;
    if (::SendMessageW(Wnd(), BM_GETSTATE, 0, 0) & BST_PUSHED)
        return ControlState::Pressed;
    return hot.IsHot() ? ControlState::Hot : ControlState::Normal;
}

int ButtonFace::CheckState() const {
    return static_cast<int>(::SendMessageW(Wnd(), BM_GETCHECK, 0, 0));
}

UINT ButtonFace::TextFormat() const {
    const DWORD style = Style();
    UINT format = PrefixFormat(Wnd());
    const DWORD across = style & BS_CENTER;
    const bool push = GetKind() == Kind::Push;
    if (across == BS_CENTER || (across == 0 && push))
        format |= DT_CENTER;
    else if (across == BS_RIGHT)
        format |= DT_RIGHT;
    if (style & BS_MULTILINE)
        return format | DT_WORDBREAK;
    format |= DT_SINGLELINE | DT_END_ELLIPSIS;
    const DWORD down = style & BS_VCENTER;
    if (down == BS_TOP)
        return format | DT_TOP;
    return format | (down == BS_BOTTOM ? DT_BOTTOM : DT_VCENTER);
}

void ButtonFace::Paint(CDC* dc, const CRect& client) const {
    if (GetKind() == Kind::Push)
        PaintPush(dc, client);
    else if (GetKind() == Kind::Group)
        PaintGroup(dc, client);
    else
        PaintCheck(dc, client);
}

void ButtonFace::PaintPush(CDC* dc, const CRect& client) const {
    const ControlState state = State();
    const bool latched = CheckState() != BST_UNCHECKED;
    FillParentGround(dc, Wnd(), WM_CTLCOLORBTN, client);
    const bool imageOnly =
        image.IsLoaded() && image.FrameSize().cx >= client.Width() && image.FrameSize().cy >= client.Height();
    const bool accent = state != ControlState::Disabled && (IsFocused() || IsDefault());
    if (!imageOnly) {
        BoxLook look;
        look.fill = ControlFill(latched && state == ControlState::Normal ? ControlState::Pressed : state);
        look.border = QV_GetSysColor(state == ControlState::Disabled ? QVCLR_GRID
                                     : accent                        ? QVCLR_ACCENT
                                                                     : QVCLR_CTRL_BORDER);
        look.borderPx = Px(accent && IsFocused() ? kFocusLinePx : 1);
        look.radiusPx = Px(kCornerPx);
        DrawBox(dc, client, look);
    }
    CRect content(client);
    content.DeflateRect(Px(kContentInsetPx), Px(1));
    PaintPushContent(dc, imageOnly ? client : content, state);
    if (latched) {
        const int inset = Px(kContentInsetPx);
        const int bar = Px(kLatchBarPx);
        dc->FillSolidRect(
            client.left + inset, client.bottom - bar - Px(2), client.Width() - 2 * inset, bar,
            QV_GetSysColor(state == ControlState::Disabled ? QVCLR_TEXT_DISABLED : QVCLR_ACCENT));
    }
    if (imageOnly && IsFocused())
        DrawFrameLines(dc, client, QV_GetSysColor(QVCLR_ACCENT), Px(1));
}

void ButtonFace::PaintPushContent(CDC* dc, CRect rect, ControlState state) const {
    if (image.IsLoaded()) {
        const CRect place = CentredIn(rect, image.FrameSize());
        image.Draw(dc, state, place.left, place.top);
        return;
    }
    if (PaintNativeImage(dc, rect))
        return;
    const CString text = WindowTextOf(Wnd());
    const HFONT font = WindowFontOf(Wnd());
    const UINT format = TextFormat();
    if ((format & DT_WORDBREAK) && (Style() & BS_VCENTER) != BS_TOP) {
        const CSize size = MeasureText(dc, text, font, format, rect.Width());
        rect.top += std::max(0, static_cast<int>(rect.Height() - size.cy) / 2);
    }
    DrawTextIn(dc, text, rect, format, font,
               QV_GetSysColor(state == ControlState::Disabled ? QVCLR_TEXT_DISABLED : QVCLR_TEXT_WINDOW));
}

bool ButtonFace::PaintNativeImage(CDC* dc, const CRect& rect) const {
    const bool disabled = !::IsWindowEnabled(Wnd());
    const auto icon = reinterpret_cast<HICON>(::SendMessageW(Wnd(), BM_GETIMAGE, IMAGE_ICON, 0));
    const auto bitmap = reinterpret_cast<HBITMAP>(::SendMessageW(Wnd(), BM_GETIMAGE, IMAGE_BITMAP, 0));
    const UINT effect = disabled ? DSS_DISABLED : DSS_NORMAL;
    if ((Style() & BS_ICON) && icon) {
        const CSize size(::GetSystemMetrics(SM_CXICON), ::GetSystemMetrics(SM_CYICON));
        const CRect place = CentredIn(rect, size);
        ::DrawStateW(*dc, nullptr, nullptr, reinterpret_cast<LPARAM>(icon), 0, place.left, place.top, 0, 0,
                     DST_ICON | effect);
        return true;
    }
    BITMAP shape = {};
    if (!(Style() & BS_BITMAP) || !bitmap || !::GetObjectW(bitmap, sizeof shape, &shape))
        return false;
    const CRect place = CentredIn(rect, CSize(shape.bmWidth, shape.bmHeight));
    ::DrawStateW(*dc, nullptr, nullptr, reinterpret_cast<LPARAM>(bitmap), 0, place.left, place.top, 0, 0,
                 DST_BITMAP | effect);
    return true;
}

void ButtonFace::PaintCheck(CDC* dc, const CRect& client) const {
    const ControlState state = State();
    FillParentGround(dc, Wnd(), WM_CTLCOLORSTATIC, client);
    const int side = Px(kMarkBoxPx);
    const int gap = Px(kMarkGapPx);
    const bool boxRight = (Style() & BS_LEFTTEXT) != 0;
    const DWORD down = Style() & BS_VCENTER;
    CRect box = CentredIn(client, CSize(side, side));
    if (down == BS_TOP)
        box.MoveToY(client.top + Px(1));
    else if (down == BS_BOTTOM)
        box.MoveToY(client.bottom - side - Px(1));
    box.MoveToX(boxRight ? client.right - side : client.left);
    const MarkLook mark{GetKind() == Kind::Radio ? MarkShape::Radio : MarkShape::Check, state, CheckState(),
                        IsFocused()};
    DrawMark(dc, box, mark, QV_GetWindowDpi(Wnd()));

    CRect text(client);
    if (boxRight)
        text.right = box.left - gap;
    else
        text.left = box.right + gap;
    const CString caption = WindowTextOf(Wnd());
    const HFONT font = WindowFontOf(Wnd());
    const UINT format = TextFormat();
    const CSize size = MeasureText(dc, caption, font, format, text.Width());
    if (format & DT_WORDBREAK && down != BS_TOP)
        text.top += std::max(0, static_cast<int>(text.Height() - size.cy) / 2);
    DrawTextIn(dc, caption, text, format, font,
               QV_GetSysColor(state == ControlState::Disabled ? QVCLR_TEXT_DISABLED : QVCLR_TEXT_WINDOW));
    if (IsFocused() && !caption.IsEmpty()) {
        CRect ring = CentredIn(text, size);
        ring.left = text.left;
        ring.right = std::min<LONG>(ring.left + size.cx, text.right);
        ring.InflateRect(Px(3), Px(1));
        ring &= client;
        DrawFrameLines(dc, ring, QV_GetSysColor(QVCLR_ACCENT), Px(1));
    }
}

void ButtonFace::PaintGroup(CDC* dc, const CRect& client) const {
    FillParentGround(dc, Wnd(), WM_CTLCOLORSTATIC, client);
    const CString title = WindowTextOf(Wnd());
    const HFONT font =
        static_cast<HFONT>(QV_GetSysFont(QVFONT_TITLE, QV_GetWindowDpi(Wnd()))->GetSafeHandle());
    const CSize size = MeasureText(dc, title.IsEmpty() ? CString(L"X") : title, font, DT_SINGLELINE);
    const bool enabled = ::IsWindowEnabled(Wnd()) != FALSE;
    CRect frame(client);
    frame.top += size.cy / 2;
    DrawBox(
        dc, frame,
        {dc->GetPixel(client.left, client.top), QV_GetSysColor(QVCLR_CAPTION_LINE), Px(1), Px(kCornerPx)});
    if (title.IsEmpty())
        return;
    CRect text(client.left + Px(kGroupTextInsetPx), client.top, client.right - Px(kGroupTextInsetPx),
               client.top + size.cy);
    text.right = std::min<LONG>(text.right, text.left + size.cx);
    CRect gap(text);
    gap.InflateRect(Px(kGroupTextGapPx), 0);
    FillParentGround(dc, Wnd(), WM_CTLCOLORSTATIC, gap);
    DrawTextIn(dc, title, text, DT_SINGLELINE | DT_END_ELLIPSIS | PrefixFormat(Wnd()), font,
               QV_GetSysColor(enabled ? QVCLR_TEXT_TITLE : QVCLR_TEXT_DISABLED));
}

void ButtonFace::ExcludeSiblings(CDC* dc) const {
    for (HWND other = ::GetWindow(Wnd(), GW_HWNDFIRST); other; other = ::GetWindow(other, GW_HWNDNEXT)) {
        if (other == Wnd() || !(WindowStyle(other) & WS_VISIBLE))
            continue;
        CRect rect;
        ::GetWindowRect(other, rect);
        ::MapWindowPoints(HWND_DESKTOP, Wnd(), reinterpret_cast<POINT*>(&rect), 2);
        CRect own;
        ::GetClientRect(Wnd(), own);
        if (IsGroupBox(other) &&
            !own.PtInRect(rect.TopLeft())) // an outer group box holds this one; it leaves this one out
            continue;
        dc->ExcludeClipRect(rect);
    }
}

CSize ButtonFace::NaturalSize() const {
    if (image.IsLoaded())
        return image.FrameSize();
    CClientDC dc(const_cast<CWnd*>(&m_button));
    CSize size = MeasureText(&dc, WindowTextOf(Wnd()), WindowFontOf(Wnd()), DT_SINGLELINE);
    if (Style() & BS_PUSHLIKE)
        return size + CSize(2 * Px(kLatchMarginXPx), 0);
    if (GetKind() == Kind::Push)
        return size + CSize(2 * Px(kTextMarginXPx), 2 * Px(kTextMarginYPx));
    const int mark = Px(kMarkBoxPx);
    return CSize(size.cx + mark + Px(kMarkGapPx) + Px(4), std::max<int>(size.cy + Px(2), mark + Px(2)));
}

void ButtonFace::ApplyAutoSize() const {
    if (!autoSize || !Wnd() || GetKind() == Kind::Group || GetKind() == Kind::Native)
        return;
    const CSize size = NaturalSize();
    ::SetWindowPos(Wnd(), nullptr, 0, 0, size.cx, size.cy, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

} // namespace _qv_commonctrl
