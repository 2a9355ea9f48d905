#include "ScrollOverlay.h"

#include "module/OwnModule.h"
#include "ScrollPainter.h"

namespace _qv_commonctrl {

namespace {

constexpr const wchar_t* kClassName = L"QVScrollOverlay";
constexpr UINT_PTR kOverlayId =
    0x51565342; // "QVSB": a host that looks for one of its controls never finds an overlay

// The window class lives as long as the DLL, which may be unloaded before the process ends.
class OverlayClass {
  public:
    explicit OverlayClass(WNDPROC procedure) {
        WNDCLASSW record = {};
        record.lpfnWndProc = procedure;
        record.hInstance = GetOwnModule();
        record.lpszClassName = kClassName;
        m_registered = RegisterClassW(&record) != 0;
    }
    ~OverlayClass() {
        if (m_registered)
            UnregisterClassW(kClassName, GetOwnModule());
    }
    OverlayClass(const OverlayClass&) = delete;
    OverlayClass& operator=(const OverlayClass&) = delete;

  private:
    bool m_registered = false;
};

// A drop-down list is a child of the desktop: to its overlay that is the same as having no parent.
bool IsTopLevel(HWND wnd) {
    return GetAncestor(wnd, GA_PARENT) == GetDesktopWindow();
}

} // namespace

ScrollOverlay::ScrollOverlay(HWND target, OverlayKind kind) : m_target(target), m_kind(kind) {
}

ScrollOverlay::~ScrollOverlay() {
    if (m_wnd)
        DestroyWindow(m_wnd);
}

bool ScrollOverlay::CreateWindowOnce() {
    static const OverlayClass windowClass(&ScrollOverlay::WindowProc);
    const bool topLevel = IsTopLevel(m_target);
    const HWND parent = topLevel ? m_target : GetAncestor(m_target, GA_PARENT);
    if (m_wnd && m_parent == parent)
        return true;
    if (m_wnd)
        DestroyWindow(m_wnd);
    m_parent = parent;
    m_rect.SetRectEmpty();
    const DWORD style = topLevel ? WS_POPUP : WS_CHILD | WS_CLIPSIBLINGS;
    const DWORD exStyle =
        WS_EX_NOPARENTNOTIFY | (topLevel ? WS_EX_TOOLWINDOW | WS_EX_NOACTIVATE | WS_EX_TOPMOST : 0);
    const auto id = topLevel ? nullptr : reinterpret_cast<HMENU>(kOverlayId);
    CreateWindowExW(exStyle, kClassName, L"", style, 0, 0, 0, 0, parent, id, GetOwnModule(), this);
    return m_wnd != nullptr;
}

void ScrollOverlay::Show(const CRect& screenRect, const OverlayPicture& picture) {
    if (screenRect.IsRectEmpty() || !CreateWindowOnce()) {
        Hide();
        return;
    }
    const bool topLevel = m_parent == m_target;
    CRect place = screenRect;
    if (!topLevel)
        MapWindowPoints(nullptr, m_parent, reinterpret_cast<POINT*>(&place), 2);
    HWND above = topLevel ? HWND_TOPMOST : GetWindow(m_target, GW_HWNDPREV);
    if (!above)
        above = HWND_TOP;
    UINT flags = SWP_NOACTIVATE | SWP_SHOWWINDOW | SWP_NOOWNERZORDER;
    if (!topLevel && IsJustAboveTarget())
        flags |= SWP_NOZORDER;
    const bool shown = (GetWindowLongPtrW(m_wnd, GWL_STYLE) & WS_VISIBLE) != 0;
    const bool misplaced = !topLevel && !(flags & SWP_NOZORDER);
    if (!shown || m_rect != place || misplaced)
        SetWindowPos(m_wnd, above, place.left, place.top, place.Width(), place.Height(), flags);
    if (!shown || m_rect != place || m_picture != picture) {
        m_rect = place;
        m_picture = picture;
        Repaint();
    }
}

// Other siblings that lie above the target stay above the overlay, too; only overlays may be between the two.
bool ScrollOverlay::IsJustAboveTarget() const {
    HWND wnd = GetWindow(m_target, GW_HWNDPREV);
    while (wnd && wnd != m_wnd &&
           GetWindowLongPtrW(wnd, GWLP_WNDPROC) == GetWindowLongPtrW(m_wnd, GWLP_WNDPROC))
        wnd = GetWindow(wnd, GW_HWNDPREV);
    return wnd == m_wnd;
}

void ScrollOverlay::Hide() {
    if (m_wnd && (GetWindowLongPtrW(m_wnd, GWL_STYLE) & WS_VISIBLE))
        ShowWindow(m_wnd, SW_HIDE);
}

void ScrollOverlay::Repaint() {
    if (m_wnd) // at once: the native bar's own loop runs while the mouse button is down
        RedrawWindow(m_wnd, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
}

void ScrollOverlay::OnPaint() {
    PAINTSTRUCT paint;
    const HDC dc = BeginPaint(m_wnd, &paint);
    if (dc) {
        CRect client;
        GetClientRect(m_wnd, client);
        PaintScrollBar(dc, client, m_kind, m_picture, m_wnd);
    }
    EndPaint(m_wnd, &paint);
}

LRESULT CALLBACK ScrollOverlay::WindowProc(HWND wnd, UINT message, WPARAM wParam, LPARAM lParam) {
    auto* self = reinterpret_cast<ScrollOverlay*>(GetWindowLongPtrW(wnd, GWLP_USERDATA));
    switch (message) {
    case WM_NCCREATE:
        self = static_cast<ScrollOverlay*>(reinterpret_cast<CREATESTRUCTW*>(lParam)->lpCreateParams);
        SetWindowLongPtrW(wnd, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(self));
        self->m_wnd = wnd;
        break;
    case WM_NCHITTEST:
        return HTTRANSPARENT;
    case WM_MOUSEACTIVATE:
        return MA_NOACTIVATE;
    case WM_ERASEBKGND:
        return TRUE;
    case WM_PAINT:
        if (!self)
            break;
        self->OnPaint();
        return 0;
    case WM_NCDESTROY: // with the parent, before the target itself dies
        if (self)
            self->m_wnd = nullptr;
        SetWindowLongPtrW(wnd, GWLP_USERDATA, 0);
        break;
    }
    return DefWindowProcW(wnd, message, wParam, lParam);
}

} // namespace _qv_commonctrl
