#include "AnchoredChildren.h"

#include <algorithm>

namespace _qv_commonctrl {

namespace {

// Which edges of the host an edge pair of a child follows.
struct Follow {
    bool follows; // the child keeps its distance to the right (bottom) edge
    bool sized;   // it keeps its distance to the left (top) edge as well
};

void Apply(LONG& low, LONG& high, int growth, Follow follow) {
    if (!follow.follows)
        return;
    if (follow.sized) {
        high = std::max<LONG>(low, high + growth);
        return;
    }
    low += growth;
    high += growth;
}

bool FollowsRight(int mode) {
    return mode == QVANCHOR_TOP_RIGHT || mode == QVANCHOR_BOTTOM_RIGHT || mode == QVANCHOR_FILL;
}

bool FollowsBottom(int mode) {
    return mode == QVANCHOR_BOTTOM_LEFT || mode == QVANCHOR_BOTTOM_RIGHT || mode == QVANCHOR_FILL;
}

CRect RectInHost(HWND host, HWND child) {
    CRect rect;
    ::GetWindowRect(child, rect);
    ::MapWindowPoints(HWND_DESKTOP, host, reinterpret_cast<POINT*>(&rect), 2);
    return rect;
}

CSize ClientSizeOf(HWND wnd) {
    CRect client;
    ::GetClientRect(wnd, client);
    return client.Size();
}

} // namespace

CRect QV_GetAnchoredRect(const CRect& rect, CSize from, CSize to, int mode, DWORD flags) {
    CRect result(rect);
    const bool fill = mode == QVANCHOR_FILL;
    const bool sized = !(flags & QVANCHOR_KEEP_SIZE) && (fill || (flags & QVANCHOR_RESIZE));
    const bool moves = sized || !fill; // a filling child that must keep its size has nowhere to go
    Apply(result.left, result.right, to.cx - from.cx, {moves && FollowsRight(mode), sized});
    Apply(result.top, result.bottom, to.cy - from.cy, {moves && FollowsBottom(mode), sized});
    return result;
}

void AnchoredChildren::Register(HWND host, HWND child, int mode, DWORD flags) {
    if (!::IsWindow(host) || !::IsWindow(child) || ::GetAncestor(child, GA_PARENT) != host)
        return;
    std::erase_if(m_children, [child](const Child& known) { return known.wnd == child; });
    ForgetDead(host);
    m_children.push_back({child, RectInHost(host, child), ClientSizeOf(host), mode, flags});
}

void AnchoredChildren::ForgetDead(HWND host) {
    std::erase_if(m_children, [host](const Child& known) {
        return !::IsWindow(known.wnd) || ::GetAncestor(known.wnd, GA_PARENT) != host;
    });
}

void AnchoredChildren::Layout(HWND host) {
    ForgetDead(host);
    if (m_children.empty() || ::IsIconic(host))
        return;
    const CSize size = ClientSizeOf(host);
    HDWP positions = ::BeginDeferWindowPos(static_cast<int>(m_children.size()));
    for (const Child& child : m_children) {
        const CRect now = RectInHost(host, child.wnd);
        const CRect wanted = QV_GetAnchoredRect(child.rect, child.hostSize, size, child.mode, child.flags);
        if (now == wanted)
            continue;
        // Children that are sized wrap or align anew: what they show cannot be copied.
        const UINT flags = SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOOWNERZORDER |
                           (now.Size() == wanted.Size() ? SWP_NOSIZE : SWP_NOCOPYBITS);
        if (positions)
            positions = ::DeferWindowPos(positions, child.wnd, nullptr, wanted.left, wanted.top,
                                         wanted.Width(), wanted.Height(), flags);
        else
            ::SetWindowPos(child.wnd, nullptr, wanted.left, wanted.top, wanted.Width(), wanted.Height(),
                           flags);
    }
    if (positions)
        ::EndDeferWindowPos(positions);
}

} // namespace _qv_commonctrl
