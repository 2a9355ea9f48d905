#include "ScrollSkin.h"

#include "QVSkin.h"

#include <commctrl.h>

#include <cstring>
#include <unordered_map>
#include <utility>
#include <vector>

namespace _qv_commonctrl {

namespace {

constexpr UINT_PTR kHotTimer = 0x51565342; // "QVSB"
constexpr UINT kHotTimerMs = 100;          // the native bar does not always say when the mouse leaves it

UINT SynchroniseMessage() {
    static const UINT message = RegisterWindowMessageW(L"QVCommonCtrlU.SynchroniseScrollBars");
    return message;
}

// Our procedure answers it with its object, or with this when it only passes messages on.
constexpr LRESULT kPassesOn = -1;

UINT WhoMessage() {
    static const UINT message = RegisterWindowMessageW(L"QVCommonCtrlU.ScrollSkin");
    return message;
}

// What stands behind our procedure of a window. The common controls' own way of subclassing asks for a window
// property with each message, which may take longer than the message: a list of 100,000 rows is filled by as
// many messages.
struct Entry {
    ScrollSkin* skin; // null: given back while a procedure of somebody else lay above ours
    WNDPROC below;
};

// By handle; only the thread of a window touches its entry.
std::unordered_map<HWND, Entry>& Registry() {
    static std::unordered_map<HWND, Entry> registry;
    return registry;
}

WNDPROC ProcedureOf(HWND wnd) {
    return reinterpret_cast<WNDPROC>(GetWindowLongPtrW(wnd, GWLP_WNDPROC));
}

void SetProcedure(HWND wnd, WNDPROC procedure) {
    SetWindowLongPtrW(wnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(procedure));
}

enum class Effect { None, Painted, Now, Soon };

// What a message may do to the scroll bars of a list, tree, edit or list box.
Effect EffectOf(UINT message) {
    switch (message) {
    case WM_PAINT:
        return Effect::Painted;
    case WM_NCPAINT:
    case WM_SIZE:
    case WM_WINDOWPOSCHANGED:
    case WM_SHOWWINDOW:
    case WM_STYLECHANGED:
    case WM_ENABLE:
    case WM_VSCROLL:
    case WM_HSCROLL:
    case WM_MOUSEWHEEL:
    case WM_KEYDOWN:
        return Effect::Now;
    case WM_TIMER:
    case WM_SETREDRAW:
    case WM_SETFONT:
    case WM_SETTEXT:
    case WM_CHAR:
    case WM_LBUTTONDOWN:
        return Effect::Soon;
    default: // any control's own messages: at most one look for all that come in a row
        return message >= EM_GETSEL && message < WM_MOUSEFIRST ? Effect::Soon
               : message >= LVM_FIRST && message < 0x2000      ? Effect::Soon
                                                               : Effect::None;
    }
}

bool IsNonClientButtonDown(UINT message) {
    return message == WM_NCLBUTTONDOWN || message == WM_NCLBUTTONDBLCLK;
}

} // namespace

ScrollSkin* ScrollSkin::Find(HWND wnd) {
    const auto found = Registry().find(wnd);
    if (found == Registry().end() || !found->second.skin)
        return nullptr;
    ScrollSkin* const skin = found->second.skin;
    if (IsWindow(wnd) && SendMessageW(wnd, WhoMessage(), 0, 0) == reinterpret_cast<LRESULT>(skin))
        return skin;
    // Somebody has put another procedure in place of the whole chain, so the end of the window went unseen.
    if (IsAttached(wnd, skin)) {
        delete skin;
        Registry().erase(wnd);
    }
    return nullptr;
}

bool ScrollSkin::IsAttached(HWND wnd, const ScrollSkin* skin) {
    const auto found = Registry().find(wnd);
    return found != Registry().end() && found->second.skin == skin;
}

// Puts our procedure above the window's, unless it is still among those that the window has.
bool ScrollSkin::HookProcedure(HWND wnd) {
    const auto found = Registry().find(wnd);
    if (found != Registry().end()) {
        if (SendMessageW(wnd, WhoMessage(), 0, 0) == kPassesOn)
            return true;
        Registry().erase(found);
    }
    const WNDPROC below = ProcedureOf(wnd);
    if (!below)
        return false;
    Registry()[wnd] = {nullptr, below};
    SetProcedure(wnd, &ScrollSkin::WindowProc);
    return true;
}

// While a procedure of somebody else lies above ours, ours has to stay.
void ScrollSkin::UnhookProcedure(HWND wnd) {
    const auto found = Registry().find(wnd);
    if (found == Registry().end())
        return;
    if (ProcedureOf(wnd) == &ScrollSkin::WindowProc) {
        SetProcedure(wnd, found->second.below);
        Registry().erase(found);
    } else {
        found->second.skin = nullptr;
    }
}

ScrollSkin* ScrollSkin::Attach(HWND wnd) {
    if (!HookProcedure(wnd))
        return nullptr;
    auto* skin = new ScrollSkin(wnd);
    const auto found = Registry().find(wnd);
    found->second.skin = skin;
    skin->m_below = found->second.below;
    const LONG_PTR style = GetWindowLongPtrW(wnd, GWL_STYLE);
    skin->m_addedClipSiblings = !(style & WS_CLIPSIBLINGS);
    if (skin->m_addedClipSiblings) // or the native bars would paint over their overlays
        SetWindowLongPtrW(wnd, GWL_STYLE, style | WS_CLIPSIBLINGS);
    skin->Synchronise();
    return skin;
}

void ScrollSkin::RefreshAll() {
    std::vector<HWND> windows;
    for (const auto& entry : Registry())
        windows.push_back(entry.first);
    for (const HWND wnd : windows) {
        if (GetWindowThreadProcessId(wnd, nullptr) != GetCurrentThreadId())
            continue;
        if (ScrollSkin* const skin = Find(wnd))
            skin->Refresh();
    }
}

ScrollSkin::ScrollSkin(HWND wnd)
    : m_wnd(wnd), m_vertical(wnd, OverlayKind::Vertical), m_horizontal(wnd, OverlayKind::Horizontal),
      m_corner(wnd, OverlayKind::Corner) {
}

void ScrollSkin::Detach() {
    UnhookProcedure(m_wnd);
    KillTimer(m_wnd, kHotTimer);
    if (m_addedClipSiblings)
        SetWindowLongPtrW(m_wnd, GWL_STYLE,
                          GetWindowLongPtrW(m_wnd, GWL_STYLE) & ~static_cast<LONG_PTR>(WS_CLIPSIBLINGS));
    const HWND wnd = m_wnd;
    delete this;
    RedrawWindow(wnd, nullptr, nullptr, RDW_FRAME | RDW_INVALIDATE);
}

void ScrollSkin::Describe(QVReplaceData& data) {
    Synchronise();
    CRect window;
    GetWindowRect(m_wnd, window);
    data.hWnd = m_wnd;
    data.bVert = m_vertical.IsShowing();
    data.bHorz = m_horizontal.IsShowing();
    data.rcVert = m_vertical.Rect();
    data.rcHorz = m_horizontal.Rect();
    if (data.bVert)
        data.rcVert.OffsetRect(-window.left, -window.top);
    if (data.bHorz)
        data.rcHorz.OffsetRect(-window.left, -window.top);
}

void ScrollSkin::SetCornerColor(int colorIndex) {
    m_cornerColor = colorIndex;
    Synchronise();
}

LRESULT CALLBACK ScrollSkin::WindowProc(HWND wnd, UINT message, WPARAM wParam, LPARAM lParam) {
    const auto found = Registry().find(wnd);
    if (found == Registry().end())
        return DefWindowProcW(wnd, message, wParam, lParam);
    const Entry entry = found->second;
    if (message == WM_NCDESTROY) {
        UnhookProcedure(wnd);
        Registry().erase(wnd);
        delete entry.skin;
    } else if (entry.skin) {
        return entry.skin->OnMessage(message, wParam, lParam);
    } else if (message == WhoMessage()) {
        return kPassesOn;
    }
    return CallWindowProcW(entry.below, wnd, message, wParam, lParam);
}

LRESULT ScrollSkin::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    const HWND wnd = m_wnd;
    if (message == WhoMessage())
        return reinterpret_cast<LRESULT>(this);
    if (message == SynchroniseMessage()) {
        m_synchroniseAsked = false;
        Synchronise();
        return 0;
    }
    if (message == WM_TIMER && wParam == kHotTimer) {
        OnHotTimer();
        return 0;
    }
    for (SkinnedBar* bar : {&m_vertical, &m_horizontal}) {
        if (IsNonClientButtonDown(message) && bar->IsHitBy(wParam))
            return OnNcButtonDown(*bar, message, wParam, lParam);
    }
    if (message == WM_NCMOUSEMOVE)
        OnNcMouseMove(wParam, lParam);
    const LRESULT result = CallWindowProcW(m_below, wnd, message, wParam, lParam);
    const Effect effect = EffectOf(message);
    if (effect == Effect::None || !IsAttached(wnd, this)) // the message may have ended the window
        return result;
    if (effect == Effect::Painted)
        SynchroniseIfChanged();
    else if (effect == Effect::Now)
        Synchronise();
    else
        SynchroniseSoon();
    return result;
}

// The native bar runs a loop of its own until the button is released; WM_VSCROLL and WM_HSCROLL keep the
// overlay up to date meanwhile.
LRESULT ScrollSkin::OnNcButtonDown(SkinnedBar& bar, UINT message, WPARAM wParam, LPARAM lParam) {
    const HWND wnd = m_wnd;
    bar.pressed = bar.PartAt(CPoint(lParam));
    Synchronise();
    const LRESULT result = CallWindowProcW(m_below, wnd, message, wParam, lParam);
    if (IsAttached(wnd, this)) {
        bar.pressed = ScrollPart::None;
        Synchronise();
    }
    return result;
}

void ScrollSkin::OnNcMouseMove(WPARAM hitCode, LPARAM lParam) {
    const CPoint screen(lParam);
    bool anyHot = false;
    for (SkinnedBar* bar : {&m_vertical, &m_horizontal}) {
        const ScrollPart part = bar->IsHitBy(hitCode) ? bar->PartAt(screen) : ScrollPart::None;
        anyHot = anyHot || part != ScrollPart::None;
        if (part != bar->hot) {
            bar->hot = part;
            bar->Synchronise();
        }
    }
    if (anyHot)
        SetTimer(m_wnd, kHotTimer, kHotTimerMs, nullptr);
}

void ScrollSkin::OnHotTimer() {
    CPoint cursor;
    GetCursorPos(&cursor);
    bool anyHot = false;
    for (SkinnedBar* bar : {&m_vertical, &m_horizontal}) {
        if (bar->hot == ScrollPart::None)
            continue;
        if (WindowFromPoint(cursor) != m_wnd || !bar->Rect().PtInRect(cursor)) {
            bar->hot = ScrollPart::None;
            bar->Synchronise();
        }
        anyHot = anyHot || bar->hot != ScrollPart::None;
    }
    if (!anyHot)
        KillTimer(m_wnd, kHotTimer);
}

void ScrollSkin::SynchroniseSoon() {
    if (!m_synchroniseAsked)
        m_synchroniseAsked = PostMessageW(m_wnd, SynchroniseMessage(), 0, 0);
}

bool ScrollSkin::Glance::operator==(const Glance& other) const {
    return style == other.style && window == other.window &&
           std::memcmp(&vertical, &other.vertical, sizeof vertical) == 0 &&
           std::memcmp(&horizontal, &other.horizontal, sizeof horizontal) == 0;
}

ScrollSkin::Glance ScrollSkin::Look() const {
    Glance glance;
    glance.style = GetWindowLongPtrW(m_wnd, GWL_STYLE);
    GetWindowRect(m_wnd, glance.window);
    for (auto [info, id] : {std::pair{&glance.vertical, SB_VERT}, std::pair{&glance.horizontal, SB_HORZ}}) {
        info->cbSize = sizeof *info;
        info->fMask = SIF_ALL;
        GetScrollInfo(m_wnd, id, info);
    }
    return glance;
}

// A control paints far more often than its bars change. A held thumb moves before the position does.
void ScrollSkin::SynchroniseIfChanged() {
    const bool held = m_vertical.pressed != ScrollPart::None || m_horizontal.pressed != ScrollPart::None;
    if (held || !(Look() == m_seen))
        Synchronise();
}

void ScrollSkin::Synchronise() {
    if (m_synchronising) // painting an overlay may send messages to the window
        return;
    m_synchronising = true;
    m_seen = Look();
    m_vertical.Synchronise();
    m_horizontal.Synchronise();
    OverlayPicture corner;
    corner.ground = m_cornerColor;
    m_corner.Show(CornerRect(), corner);
    m_synchronising = false;
}

CRect ScrollSkin::CornerRect() const {
    if (!m_vertical.IsShowing() || !m_horizontal.IsShowing())
        return CRect();
    return CRect(m_vertical.Rect().left, m_horizontal.Rect().top, m_vertical.Rect().right,
                 m_horizontal.Rect().bottom);
}

void ScrollSkin::Refresh() {
    Synchronise();
    m_vertical.Repaint();
    m_horizontal.Repaint();
    m_corner.Repaint();
}

} // namespace _qv_commonctrl
