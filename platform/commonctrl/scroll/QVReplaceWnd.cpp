#include "QVReplaceWnd.h"

#include "ScrollSkin.h"

namespace _qv_commonctrl {

namespace {

bool IsOwnThreads(HWND wnd) {
    return wnd && GetWindowThreadProcessId(wnd, nullptr) == GetCurrentThreadId();
}

} // namespace

BOOL QV_ReplaceWnd(HWND wnd) {
    if (!IsOwnThreads(wnd))
        return FALSE;
    try {
        return ScrollSkin::Find(wnd) || ScrollSkin::Attach(wnd);
    } catch (const std::exception&) { // memory ran out
        return FALSE;
    }
}

BOOL QV_UnReplaceWnd(HWND wnd) {
    ScrollSkin* const skin = IsOwnThreads(wnd) ? ScrollSkin::Find(wnd) : nullptr;
    if (!skin)
        return FALSE;
    skin->Detach();
    return TRUE;
}

BOOL QV_GetReplaceData(HWND wnd, QVReplaceData& data) {
    ScrollSkin* const skin = IsOwnThreads(wnd) ? ScrollSkin::Find(wnd) : nullptr;
    if (!skin)
        return FALSE;
    skin->Describe(data);
    return TRUE;
}

} // namespace _qv_commonctrl
