#include "PathDialogFixture.h"

#include "WindowQuery.h"

#include <commctrl.h>

namespace pathdialog_test {

HWND PathDialog::Frame(Driver& user) {
    const HWND frame = user.waitWindow({.className = L"#32770", .control = kNewFolder});
    user.waitDescendant(frame, WC_TREEVIEWW);
    user.settle();
    return frame;
}

HWND PathDialog::Tree(HWND frame) {
    return qvtest::findDescendant(frame, WC_TREEVIEWW);
}

std::wstring PathDialog::SelectedText(Driver& user, HWND tree) {
    wchar_t text[MAX_PATH] = L"";
    user.onUi([&] {
        TVITEMW item = {};
        item.hItem = TreeView_GetSelection(tree);
        item.mask = TVIF_TEXT;
        item.pszText = text;
        item.cchTextMax = MAX_PATH;
        if (!item.hItem || !::SendMessageW(tree, TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item)))
            text[0] = L'\0';
    });
    return text;
}

void PathDialog::WaitSelected(Driver& user, HWND tree, const std::wstring& text) {
    user.waitFor("the selection", [&] { return SelectedText(user, tree) == text; });
}

CRect PathDialog::SelectedRect(Driver& user, HWND tree) {
    CRect rect;
    user.onUi([&] { TreeView_GetItemRect(tree, TreeView_GetSelection(tree), &rect, TRUE); });
    return rect;
}

bool PathDialog::SelectedIsExpanded(Driver& user, HWND tree) {
    bool expanded = false;
    user.onUi([&] {
        const HTREEITEM item = TreeView_GetSelection(tree);
        expanded = (TreeView_GetItemState(tree, item, TVIS_EXPANDED) & TVIS_EXPANDED) &&
                   TreeView_GetChild(tree, item);
    });
    return expanded;
}

POINT PathDialog::CloseCentre(HWND frame) {
    CRect client;
    ::GetClientRect(frame, &client);
    return {client.right - 16, 9};
}

namespace {

LRESULT CALLBACK CancelWhenActive(int code, WPARAM wParam, LPARAM lParam) {
    const auto window = reinterpret_cast<HWND>(wParam);
    if (code == HCBT_ACTIVATE && ::GetDlgItem(window, kNewFolder))
        ::PostMessageW(window, WM_COMMAND, IDCANCEL, 0);
    return ::CallNextHookEx(nullptr, code, wParam, lParam);
}

} // namespace

SelfCancel::SelfCancel()
    : m_hook(::SetWindowsHookExW(WH_CBT, CancelWhenActive, nullptr, ::GetCurrentThreadId())) {
}

SelfCancel::~SelfCancel() {
    ::UnhookWindowsHookEx(m_hook);
}

INT_PTR PathDialog::Run(CQVPathDialog& dialog, const std::function<void(Driver&, HWND)>& act) const {
    m_folder.settleDates();
    return qvtest::runBeside([&] { return dialog.DoModal(); }, [&](Driver& user) { act(user, Frame(user)); });
}

} // namespace pathdialog_test
