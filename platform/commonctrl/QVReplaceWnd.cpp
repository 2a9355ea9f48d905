#include "QVReplaceWnd.h"

#include "QVScrollSkin.h"

namespace _qv_commonctrl {

BOOL QV_ReplaceWnd(HWND wnd) {
    if (!wnd || GetWindowThreadProcessId(wnd, nullptr) != GetCurrentThreadId())
        return FALSE;
    try {
        return ScrollSkin::Find(wnd) || ScrollSkin::Attach(wnd);
    } catch (const std::exception&) { // memory ran out
        return FALSE;
    }
}

BOOL QV_UnReplaceWnd(HWND wnd) {
    ScrollSkin* const skin = ScrollSkin::Find(wnd);
    if (!skin || GetWindowThreadProcessId(wnd, nullptr) != GetCurrentThreadId())
        return FALSE;
    skin->Detach();
    return TRUE;
}

BOOL QV_GetReplaceData(HWND wnd, QVReplaceData& data) {
    ScrollSkin* const skin = ScrollSkin::Find(wnd);
    if (!skin || GetWindowThreadProcessId(wnd, nullptr) != GetCurrentThreadId())
        return FALSE;
    skin->Describe(data);
    return TRUE;
}

} // namespace _qv_commonctrl
