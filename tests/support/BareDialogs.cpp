#include "BareDialogs.h"

#include <windows.h>

#include <commdlg.h>

namespace qvtest {
namespace {

UINT_PTR CALLBACK cancelAtOnce(HWND hooked, UINT message, WPARAM, LPARAM lParam) {
    if (message == WM_NOTIFY &&
        reinterpret_cast<const NMHDR*>(lParam)->code == static_cast<UINT>(CDN_INITDONE))
        PostMessageW(GetParent(hooked), WM_COMMAND, IDCANCEL, 0);
    return 0;
}

} // namespace

void runBareFileDialog() {
    wchar_t path[MAX_PATH] = {};
    OPENFILENAMEW open = {};
    open.lStructSize = sizeof open;
    open.lpstrFile = path;
    open.nMaxFile = MAX_PATH;
    open.lpstrFilter = L"AVI\0*.avi\0";
    open.Flags = OFN_EXPLORER | OFN_ENABLEHOOK;
    open.lpfnHook = cancelAtOnce;
    GetOpenFileNameW(&open);
}

} // namespace qvtest
