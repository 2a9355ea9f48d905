#include "FileDialogFixture.h"

#include "WindowQuery.h"

namespace filedialog_test {

using namespace _qv_commonclass;

void FileDialog::SetUp() {
    SkinnedTest::SetUp();
    ASSERT_TRUE(QV_SetProfileRoot(L"Software\\QVCommonWndTest"));
}

std::unique_ptr<TestFileDialog> FileDialog::Make(Kind kind, const wchar_t* filter, DWORD flags, Names names,
                                                 const wchar_t* name) const {
    auto dialog = std::make_unique<TestFileDialog>(kind == Kind::Open, nullptr, name, flags, filter, nullptr,
                                                   0, TRUE, names == Names::Raw, FDO_KEEPOK);
    dialog->m_ofn.lpstrInitialDir = m_folder.path().c_str();
    return dialog;
}

HWND FileDialog::Frame(Driver& user) {
    HWND frame = nullptr;
    user.waitFor("the file dialog", [&] {
        for (const HWND window : qvtest::findWindows({.className = L"#32770"}))
            if (const HWND edit = NameEdit(window); edit && ::IsWindowVisible(edit))
                frame = window;
        return frame != nullptr;
    });
    user.settle();
    return frame;
}

HWND FileDialog::List(Driver& user, HWND frame, int rows) {
    HWND list = nullptr;
    user.waitFor("the list", [&] {
        list = qvtest::findDescendant(frame, L"SysListView32");
        return list && user.send(list, LVM_GETITEMCOUNT) == rows;
    });
    user.settle();
    return list;
}

HWND FileDialog::NameEdit(HWND frame) {
    const HWND combo = ::GetDlgItem(frame, kFileNameCombo);
    return combo ? qvtest::findDescendant(combo, L"Edit") : nullptr;
}

void FileDialog::Confirm(Driver& user, const std::wstring& name) {
    const HWND frame = Frame(user);
    user.send(NameEdit(frame), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(name.c_str()));
    user.click(frame, kOk);
}

void FileDialog::ChooseFilter(Driver& user, HWND frame, int index) {
    const HWND combo = ::GetDlgItem(frame, kFileTypeCombo);
    // By keys, as a user does it: the system dialog looks at more than one of the notifications that they cause.
    user.onUi([&] { ::SetFocus(combo); });
    const LRESULT count = user.send(combo, CB_GETCOUNT);
    if (index == count - 1) {
        user.press(VK_END);
    } else {
        user.press(VK_HOME);
        for (int i = 0; i < index; ++i)
            user.press(VK_DOWN);
    }
    user.waitFor("the file type", [&] { return user.send(combo, CB_GETCURSEL) == index; });
    user.settle();
}

INT_PTR FileDialog::Run(CQVFileDialog& dialog, const std::function<void(Driver&)>& act) {
    return qvtest::runBeside([&] { return dialog.DoModal(); }, act, qvtest::Milliseconds(60000));
}

std::vector<std::wstring> FileDialog::Paths(CQVFileDialog& dialog) {
    std::vector<std::wstring> paths;
    for (POSITION pos = dialog.GetStartPosition(); pos;)
        paths.emplace_back(dialog.GetNextPathName(pos));
    return paths;
}

std::wstring Lower(std::wstring text) {
    ::CharLowerBuffW(text.data(), static_cast<DWORD>(text.size()));
    return text;
}

} // namespace filedialog_test
