#include "SkinnedWindows.h"

#include "QVBaseCtrl.h"

#include <algorithm>
#include <vector>

namespace _qv_commonctrl {

namespace {

std::vector<CQVBaseCtrl*>& Controls() {
    static std::vector<CQVBaseCtrl*> controls;
    return controls;
}

bool IsEntered(const CQVBaseCtrl* control) {
    const auto& controls = Controls();
    return std::find(controls.begin(), controls.end(), control) != controls.end();
}

} // namespace

void EnterSkinnedWindow(CQVBaseCtrl* control) {
    if (!IsEntered(control))
        Controls().push_back(control);
}

void LeaveSkinnedWindow(CQVBaseCtrl* control) {
    std::erase(Controls(), control);
}

void BroadcastSkinChange() {
    // A handler may destroy controls or make new ones, so the list is copied and every entry is looked up
    // again.
    const std::vector<CQVBaseCtrl*> controls = Controls();
    for (CQVBaseCtrl* control : controls) {
        if (!IsEntered(control))
            continue;
        const HWND wnd = control->GetSkinWnd()->GetSafeHwnd();
        if (!wnd)
            continue;
        control->OnSkinChange(0, wnd);
        if (::IsWindow(wnd))
            ::SendMessageW(wnd, QV_GetSkinChangeMessage(), 0, 0);
    }
    for (CQVBaseCtrl* control : controls) {
        if (IsEntered(control) && control->GetSkinWnd()->GetSafeHwnd())
            ::RedrawWindow(*control->GetSkinWnd(), nullptr, nullptr, RDW_UPDATENOW);
    }
}

} // namespace _qv_commonctrl
