#include "QVReplaceWnd.h"

#include "ScrollSkin.h"

namespace _qv_commonctrl {

namespace {

bool IsOwnThreads(HWND wnd) {
    return wnd && GetWindowThreadProcessId(wnd, nullptr) == GetCurrentThreadId();
}

ScrollSkin* FindOwn(HWND wnd) {
    return IsOwnThreads(wnd) ? ScrollSkin::Find(wnd) : nullptr;
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

BOOL QV_SetReplaceCorner(HWND wnd, int colorIndex) {
    ScrollSkin* const skin = FindOwn(wnd);
    if (!skin)
        return FALSE;
    skin->SetCornerColor(colorIndex);
    return TRUE;
}

BOOL QV_UnReplaceWnd(HWND wnd) {
    ScrollSkin* const skin = FindOwn(wnd);
    if (!skin)
        return FALSE;
    skin->Detach();
    return TRUE;
}

BOOL QV_GetReplaceData(HWND wnd, QVReplaceData& data) {
    ScrollSkin* const skin = FindOwn(wnd);
    if (!skin)
        return FALSE;
    skin->Describe(data);
    return TRUE;
}

} // namespace _qv_commonctrl
