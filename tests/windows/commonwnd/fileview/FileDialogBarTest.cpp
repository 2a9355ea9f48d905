// The tool bar beside the look-in combo box, the file types and several files, worked by mouse and keyboard.
#include "FileDialogFixture.h"

#include "Picture.h"

#include <QVSkin.h>

#include <shlobj.h>

#include <algorithm>
#include <filesystem>
#include <utility>

namespace filedialog_test {

using qvtest::Picture;

namespace {

constexpr int kRows = 5;      // a folder and four films
constexpr int kFirstFile = 1; // behind the folder

// Commands of the tool bar.
constexpr int kUp = 0xA001;
constexpr int kNewFolder = 0xA002;
constexpr int kNames = 0xA003;
constexpr int kDetails = 0xA004;

HWND ViewBar(HWND frame) {
    for (const HWND bar : qvtest::findDescendants(frame, L"ToolbarWindow32"))
        if (::GetDlgCtrlID(bar) != kPlacesBar)
            return bar;
    return nullptr;
}

DWORD ViewOf(HWND list) {
    return static_cast<DWORD>(::GetWindowLongPtrW(list, GWL_STYLE)) & LVS_TYPEMASK;
}

} // namespace

class FileDialogBar : public FileDialog {
  protected:
    void SetUp() override {
        FileDialog::SetUp();
        m_folder.file(L"Sub\\deep.avi", "x");
        for (const wchar_t* name : {L"a.avi", L"b.avi", L"c.avi", L"d.avi", L"e.txt"})
            m_folder.file(name, "x");
    }

    // Clicks the button of a command.
    static void Press(Driver& user, HWND frame, int command) {
        const HWND bar = ViewBar(frame);
        CRect rect;
        user.onUi([&] {
            const LRESULT index = ::SendMessageW(bar, TB_COMMANDTOINDEX, static_cast<WPARAM>(command), 0);
            ::SendMessageW(bar, TB_GETITEMRECT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&rect));
        });
        ASSERT_FALSE(rect.IsRectEmpty()) << "no such button";
        user.clickAt(bar, rect.CenterPoint());
    }

    static std::wstring Text(Driver& user, HWND list, int row) {
        constexpr int kMost = 260;
        wchar_t text[kMost] = L"";
        user.onUi([&] { ListView_GetItemText(list, row, 0, text, kMost); });
        return text;
    }

    int CountFolders() const {
        int count = 0;
        for (const auto& entry : std::filesystem::directory_iterator(m_folder.path()))
            count += entry.is_directory() ? 1 : 0;
        return count;
    }

    static CPoint Label(Driver& user, HWND list, int row) {
        CRect label;
        user.onUi([&] { ListView_GetItemRect(list, row, &label, LVIR_LABEL); });
        return label.CenterPoint();
    }
};

TEST_F(FileDialogBar, UpGoesToTheFolderAbove) {
    const auto dialog = Make(Kind::Open);
    const std::wstring sub = m_folder.path(L"Sub");
    dialog->m_ofn.lpstrInitialDir = sub.c_str();
    Run(*dialog, [&](Driver& user) {
        const HWND frame = Frame(user);
        List(user, frame, 1);
        Press(user, frame, kUp);
        const HWND list = List(user, frame, kRows);
        EXPECT_EQ(dialog->m_pSkinnedList->m_hWnd, list) << "the new list is skinned";
        user.click(frame, kCancel);
    });
}

TEST_F(FileDialogBar, NewFolderMakesOne) {
    const auto dialog = Make(Kind::Open);
    Run(*dialog, [&](Driver& user) {
        const HWND frame = Frame(user);
        List(user, frame, kRows);
        Press(user, frame, kNewFolder);
        List(user, frame, kRows + 1);
        user.escape(); // the new folder's name is being edited, or nothing is
        user.settle();
        if (::IsWindow(frame))
            user.click(frame, kCancel);
    });
    EXPECT_EQ(2, CountFolders());
}

TEST_F(FileDialogBar, ViewButtonsChangeTheView) {
    using namespace _qv_commonctrl;
    const auto dialog = Make(Kind::Open);
    EXPECT_EQ(IDOK, Run(*dialog, [&](Driver& user) {
                  const HWND frame = Frame(user);
                  const HWND list = List(user, frame, kRows);
                  for (const auto& [command, view] :
                       {std::pair{kDetails, DWORD{LVS_REPORT}}, std::pair{kNames, DWORD{LVS_LIST}},
                        std::pair{kDetails, DWORD{LVS_REPORT}}}) {
                      Press(user, frame, command);
                      user.waitFor("the view", [&] { return ViewOf(list) == view; });
                      user.settle();
                      const Picture shot = Picture::ofClient(list);
                      EXPECT_EQ(QV_GetSysColor(QVCLR_LIST), shot.at(shot.width() - 40, shot.height() - 40));
                      EXPECT_EQ(0, shot.count(::GetSysColor(COLOR_BTNFACE))) << "no heading of the system's";
                  }
                  user.doubleClickAt(list, Label(user, list, kFirstFile));
              }));
    EXPECT_STREQ(m_folder.path(L"a.avi").c_str(), dialog->GetPathName());
}

TEST_F(FileDialogBar, TypeIsPickedWithTheMouse) {
    const auto dialog = Make(Kind::Open);
    EXPECT_EQ(IDOK, Run(*dialog, [&](Driver& user) {
                  const HWND frame = Frame(user);
                  List(user, frame, kRows);
                  const HWND types = ::GetDlgItem(frame, kFileTypeCombo);
                  COMBOBOXINFO info = {};
                  info.cbSize = sizeof info;
                  ASSERT_TRUE(::GetComboBoxInfo(types, &info));
                  user.click(types);
                  user.waitFor("the types", [&] { return ::IsWindowVisible(info.hwndList); });
                  CRect row;
                  user.onUi([&] {
                      ::SendMessageW(info.hwndList, LB_GETITEMRECT, 1, reinterpret_cast<LPARAM>(&row));
                  });
                  user.clickAt(info.hwndList, row.CenterPoint());
                  const HWND list = List(user, frame, kRows + 1);
                  user.doubleClickAt(list, Label(user, list, kRows));
              }));
    EXPECT_STREQ(m_folder.path(L"e.txt").c_str(), dialog->GetPathName());
}

TEST_F(FileDialogBar, SeveralAreSelectedWithControlAndShift) {
    const auto dialog = Make(Kind::Open, L"AVI|*.avi|", OFN_ALLOWMULTISELECT);
    EXPECT_EQ(IDOK, Run(*dialog, [&](Driver& user) {
                  const HWND frame = Frame(user);
                  const HWND list = List(user, frame, kRows);
                  auto click = [&](int row, unsigned modifiers, int selected) {
                      user.clickAt(list, Label(user, list, row), qvtest::MouseButton::Left, modifiers);
                      user.waitFor("the selection",
                                   [&] { return user.send(list, LVM_GETSELECTEDCOUNT) == selected; });
                  };
                  click(kFirstFile, qvtest::NoModifier, 1);
                  click(kFirstFile + 3, qvtest::Shift, 4);
                  click(kFirstFile + 1, qvtest::Control, 3);
                  user.click(frame, kOk);
              }));
    std::vector<std::wstring> paths = Paths(*dialog);
    std::sort(paths.begin(), paths.end());
    EXPECT_EQ((std::vector<std::wstring>{m_folder.path(L"a.avi"), m_folder.path(L"c.avi"),
                                         m_folder.path(L"d.avi")}),
              paths);
}

// What the shell's view has answered is kept: a file of another name must not keep the former one's.
TEST_F(FileDialogBar, RenamedFileShowsItsNewName) {
    const auto dialog = Make(Kind::Open);
    Run(*dialog, [&](Driver& user) {
        const HWND frame = Frame(user);
        const HWND list = List(user, frame, kRows);
        EXPECT_EQ(L"b.avi", Text(user, list, kFirstFile + 1));
        user.onUi([&] {
            ::SetFocus(list);
            ListView_EditLabel(list, kFirstFile + 1);
        });
        user.waitFor("the field", [&] { return qvtest::findDescendant(list, L"Edit") != nullptr; });
        user.replaceText(qvtest::findDescendant(list, L"Edit"), L"bb.avi");
        user.enter();
        user.waitFor("the new name", [&] {
            user.onUi([&] { ::RedrawWindow(list, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW); });
            for (int row = 0; row < kRows; ++row)
                if (Text(user, list, row) == L"bb.avi")
                    return true;
            return false;
        });
        user.click(frame, kCancel);
    });
}

} // namespace filedialog_test
