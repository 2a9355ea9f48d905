#include "RunningDialog.h"

namespace panels_test {

TestDialog::TestDialog(const TempFolder& folder, DWORD option, const wchar_t* filter)
    : CQVFileDialog(TRUE, nullptr, nullptr, OFN_FILEMUSTEXIST, filter, nullptr, 0, FALSE, FALSE, option) {
    m_ofn.lpstrInitialDir = folder.path().c_str();
}

HWND TestDialog::List() const {
    const HWND view = qvtest::findDescendant(Frame(), L"SHELLDLL_DefView");
    return view ? ::GetDlgItem(view, 1) : nullptr;
}

int TestDialog::Height() const {
    CRect rect;
    ::GetWindowRect(Frame(), rect);
    return rect.Height();
}

bool TestDialog::ImportEnabled() const {
    return ::IsWindowEnabled(::GetDlgItem(m_wndForderImport.m_hWnd, kImportButton)) != FALSE;
}

INT_PTR RunningDialog::Run(TestDialog& dialog, const std::function<void(Driver&)>& act) {
    const auto actOnList = [&](Driver& user) {
        user.waitFor("the list of files", [&] {
            return dialog.m_hWnd && ::IsWindowVisible(dialog.Frame()) && dialog.List() &&
                   user.send(dialog.List(), LVM_GETITEMCOUNT) > 0;
        });
        user.settle();
        act(user);
    };
    return qvtest::runBeside([&] { return dialog.DoModal(); }, actOnList, qvtest::Milliseconds(60000));
}

void RunningDialog::Select(Driver& user, TestDialog& dialog, const wchar_t* name) {
    LVITEMW state = {};
    state.stateMask = LVIS_SELECTED | LVIS_FOCUSED;
    LRESULT item = -1;
    user.onUi([&] {
        ::SendMessageW(dialog.List(), LVM_SETITEMSTATE, static_cast<WPARAM>(-1),
                       reinterpret_cast<LPARAM>(&state));
        if (!name)
            return;
        LVFINDINFOW find = {};
        find.flags = LVFI_STRING;
        find.psz = name;
        item = ::SendMessageW(dialog.List(), LVM_FINDITEMW, static_cast<WPARAM>(-1),
                              reinterpret_cast<LPARAM>(&find));
        state.state = state.stateMask;
        ::SendMessageW(dialog.List(), LVM_SETITEMSTATE, static_cast<WPARAM>(item),
                       reinterpret_cast<LPARAM>(&state));
    });
    if (name && item < 0)
        user.fail("the list does not show " + qvtest::toUtf8(name));
    user.settle();
}

void RunningDialog::TabTo(Driver& user, TestDialog& dialog, HWND control) {
    constexpr int kMostStops = 30;
    HWND focus = nullptr;
    user.onUi([&] { ::SetFocus(dialog.List()); });
    for (int stops = 0; stops < kMostStops && focus != control; ++stops) {
        user.press(VK_TAB);
        user.settle();
        user.onUi([&] { focus = ::GetFocus(); });
    }
    EXPECT_EQ(control, focus);
}

} // namespace panels_test
