#include "PathDialogFixture.h"

#include "WindowQuery.h"

#include <commctrl.h>

namespace pathdialog_test {

void PathDialog::SetUp() {
    ASSERT_TRUE(_qv_commonctrl::QV_SetLanguage(L"en-US"));
    ASSERT_TRUE(_qv_commonctrl::QV_SetSkinPath(nullptr));
}

void PathDialog::TearDown() {
    SetUp();
}

HWND PathDialog::Frame(Driver& user) {
    HWND frame = nullptr;
    user.waitFor("the folder chooser", [&] {
        for (const HWND window : qvtest::findWindows({.className = L"#32770"})) {
            if (::GetDlgItem(window, kNewFolder))
                frame = window;
        }
        return frame != nullptr && Tree(frame) != nullptr;
    });
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

INT_PTR PathDialog::Run(CQVPathDialog& dialog, const std::function<void(Driver&, HWND)>& act) {
    ModalScript script;
    script.step("act on the chooser", [&](Driver& user) { act(user, Frame(user)); });
    return script.run([&] { return dialog.DoModal(); });
}

} // namespace pathdialog_test
