#include "FakeBrowseDialog.h"

#include <commctrl.h>
#include <shlobj.h>

namespace folderfilter_test {

namespace {

struct EmptyTemplate {
    DLGTEMPLATE header;
    WORD menu, windowClass, title;
};

constexpr EmptyTemplate kTemplate = {
    {WS_POPUP | WS_VISIBLE | WS_CAPTION | WS_SYSMENU | WS_THICKFRAME | DS_3DLOOK | DS_MODALFRAME, 0, 0, 50,
     50, 200, 150},
    0,
    0,
    0};

} // namespace

FakeBrowseDialog::FakeBrowseDialog(Controls controls) {
    const INITCOMMONCONTROLSEX classes = {sizeof(classes), ICC_TREEVIEW_CLASSES};
    ::InitCommonControlsEx(&classes);
    dialog = ::CreateDialogIndirectParamW(nullptr, &kTemplate.header, nullptr, DialogProc,
                                          reinterpret_cast<LPARAM>(this));
    if (controls == Controls::None)
        return;
    title = Add(L"STATIC", L"title", 0, 14146, dialog);
    host = Add(L"STATIC", L"", WS_BORDER, 0, dialog);
    tree = Add(WC_TREEVIEWW, L"", TVS_HASBUTTONS, 100, host);
    status = Add(L"STATIC", L"status", 0, 14151, dialog);
    newFolder = Add(L"BUTTON", L"new", 0, 14150, dialog);
    ok = Add(L"BUTTON", L"ok", BS_DEFPUSHBUTTON, IDOK, dialog);
    cancel = Add(L"BUTTON", L"cancel", 0, IDCANCEL, dialog);
}

FakeBrowseDialog::~FakeBrowseDialog() {
    ::DestroyWindow(dialog);
}

HWND FakeBrowseDialog::Add(const wchar_t* className, const wchar_t* text, DWORD style, int id,
                           HWND parent) const {
    return ::CreateWindowExW(0, className, text, WS_CHILD | WS_VISIBLE | style, 0, 0, 50, 20, parent,
                             reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), nullptr, nullptr);
}

INT_PTR CALLBACK FakeBrowseDialog::DialogProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_INITDIALOG) {
        ::SetWindowLongPtrW(window, DWLP_USER, lParam);
        return TRUE;
    }
    auto* const self = reinterpret_cast<FakeBrowseDialog*>(::GetWindowLongPtrW(window, DWLP_USER));
    if (self && message == BFFM_SETSELECTIONW) {
        self->selectionAsked = true;
        self->selectionKind = wParam;
        self->selection = reinterpret_cast<const wchar_t*>(lParam);
        return TRUE;
    }
    return FALSE;
}

} // namespace folderfilter_test
