// What the dialog keeps and tells when the selection, the folder or the file type changes.
#include "FileDialogFixture.h"
#include "PreviewProbe.h"

namespace filedialog_test {

using Note = PreviewProbe::Note;

namespace {

// The user's choice not to be shown the extensions of files.
class HiddenExtensions {
  public:
    HiddenExtensions() { Set(1); }
    ~HiddenExtensions() { Set(0); }
    HiddenExtensions(const HiddenExtensions&) = delete;
    HiddenExtensions& operator=(const HiddenExtensions&) = delete;

  private:
    static void Set(DWORD hide) {
        EXPECT_EQ(ERROR_SUCCESS,
                  ::RegSetKeyValueW(HKEY_CURRENT_USER,
                                    L"Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Advanced",
                                    L"HideFileExt", REG_DWORD, &hide, sizeof hide));
    }
};

// Counts what a list is sent and posted for its look while it lives.
class LookWatch {
  public:
    LookWatch() {
        s_grounds = s_posts = 0;
        m_sent = ::SetWindowsHookExW(WH_CALLWNDPROC, &NoteSent, nullptr, ::GetCurrentThreadId());
        m_posted = ::SetWindowsHookExW(WH_GETMESSAGE, &NotePosted, nullptr, ::GetCurrentThreadId());
    }
    ~LookWatch() {
        ::UnhookWindowsHookEx(m_sent);
        ::UnhookWindowsHookEx(m_posted);
    }
    LookWatch(const LookWatch&) = delete;
    LookWatch& operator=(const LookWatch&) = delete;

    static int Grounds() { return s_grounds; } // background pictures
    static int Posts() { return s_posts; }     // WM_QV_LISTSKIN

  private:
    static LRESULT CALLBACK NoteSent(int code, WPARAM wParam, LPARAM lParam) {
        s_grounds +=
            code == HC_ACTION && reinterpret_cast<const CWPSTRUCT*>(lParam)->message == LVM_SETBKIMAGEW;
        return ::CallNextHookEx(nullptr, code, wParam, lParam);
    }
    static LRESULT CALLBACK NotePosted(int code, WPARAM wParam, LPARAM lParam) {
        s_posts += code == HC_ACTION && wParam == PM_REMOVE &&
                   reinterpret_cast<const MSG*>(lParam)->message == WM_QV_LISTSKIN;
        return ::CallNextHookEx(nullptr, code, wParam, lParam);
    }

    static inline int s_grounds = 0;
    static inline int s_posts = 0;
    HHOOK m_sent;
    HHOOK m_posted;
};

// A host's dialog that notes which of the base's notifications reach it.
class NotedDialog : public TestFileDialog {
  public:
    using TestFileDialog::TestFileDialog;
    int m_notes = 0;

  protected:
    void OnInitDone() override { ++m_notes; }
    void OnFileNameChange() override { ++m_notes; }
    void OnTypeChange() override { ++m_notes; }
};

} // namespace

class FileDialogSelection : public FileDialog {
  protected:
    void SetUp() override {
        FileDialog::SetUp();
        m_folder.folder(L"Archive");
        m_folder.folder(L"Clips.psd");
        m_folder.file(L"Archive\\inner.avi", "x");
        m_folder.file(L"a.avi", "x");
        m_folder.file(L"b.avi", "x");
        m_folder.file(L"noextension", "x");
        m_folder.file(L"picture.psd", "8BPS is all of it");
        m_preview = std::make_unique<PreviewProbe>(CSize(300, 100));
    }
    void TearDown() override {
        m_preview.reset();
        FileDialog::TearDown();
    }

    void Browse(DWORD options, DWORD flags, const std::function<void(Driver&)>& act) {
        m_dialog = std::make_unique<TestFileDialog>(TRUE, nullptr, nullptr, flags, L"All|*.*|AVI|*.avi|",
                                                    nullptr, 0, FALSE, FALSE, options);
        m_dialog->m_ofn.lpstrInitialDir = m_folder.path().c_str();
        m_dialog->SetAdvanceWnd(m_preview.get());
        m_dialog->EnableLayerInfo(2);
        Run(*m_dialog, [&](Driver& user) {
            m_frame = Frame(user);
            m_list = user.waitDescendant(m_frame, L"SysListView32");
            m_preview->TakeNotes();
            act(user);
            if (m_frame)
                user.click(m_frame, kCancel);
        });
    }

    // The row of a name behind another row.
    int Row(Driver& user, const std::wstring& name, int behind = -1) const {
        std::vector<wchar_t> text(name.c_str(), name.c_str() + name.size() + 1);
        LRESULT row = -1;
        user.waitFor("the row", [&] {
            user.onUi([&] {
                LVFINDINFOW find = {};
                find.flags = LVFI_STRING;
                find.psz = text.data();
                row = ::SendMessageW(m_list, LVM_FINDITEMW, static_cast<WPARAM>(behind),
                                     reinterpret_cast<LPARAM>(&find));
            });
            return row >= 0;
        });
        return static_cast<int>(row);
    }

    // By real mouse input.
    void Click(Driver& user, const std::wstring& name, unsigned modifiers = qvtest::NoModifier) {
        ClickRow(user, Row(user, name), modifiers);
    }
    void ClickRow(Driver& user, int row, unsigned modifiers = qvtest::NoModifier) {
        CRect label;
        user.onUi([&] { ListView_GetItemRect(m_list, row, &label, LVIR_LABEL); });
        user.clickAt(m_list, label.CenterPoint(), qvtest::MouseButton::Left, modifiers);
        user.settle();
    }
    void Unselect(Driver& user) {
        user.onUi([&] { ListView_SetItemState(m_list, -1, 0, LVIS_SELECTED); });
        user.settle();
    }
    // As the system tells of a folder; on the dialog's thread.
    void NotifyFolder() const {
        OFNOTIFYW notice = {};
        notice.hdr = {m_frame, 0, static_cast<UINT>(CDN_FOLDERCHANGE)};
        ::SendMessageW(m_dialog->m_hWnd, WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&notice));
    }
    Note Last() {
        const std::vector<Note> notes = m_preview->TakeNotes();
        return notes.empty() ? Note{99, L"nothing", false, 0, nullptr} : notes.back();
    }
    bool PanelShown() const { return ::IsWindowVisible(::GetDlgItem(m_frame, kPsdPanel)); }
    bool ImportEnabled() const {
        const HWND panel = ::GetDlgItem(m_frame, kImportPanel);
        return panel && ::IsWindowEnabled(::GetDlgItem(panel, kImportButton));
    }
    std::wstring NameText(Driver& user) const { return user.text(NameEdit(m_frame)); }

    std::unique_ptr<PreviewProbe> m_preview;
    std::unique_ptr<TestFileDialog> m_dialog;
    HWND m_frame = nullptr;
    HWND m_list = nullptr;
};

TEST_F(FileDialogSelection, FileIsToldByItsPath) {
    Browse(FDO_KEEPOK, 0, [&](Driver& user) {
        Click(user, L"a.avi");
        EXPECT_EQ((Note{FILESEL_ONE, m_folder.path(L"a.avi")}), Last());
        EXPECT_TRUE(m_dialog->m_strSelPath.IsEmpty()) << "a file's path is not kept";
        Click(user, L"noextension");
        EXPECT_EQ((Note{FILESEL_ONE, m_folder.path(L"noextension")}), Last());
    });
}

TEST_F(FileDialogSelection, NoSelectionIsToldByNull) {
    Browse(FDO_KEEPOK, 0, [&](Driver& user) {
        Click(user, L"a.avi");
        Unselect(user);
        EXPECT_EQ((Note{FILESEL_ONE, L"", true}), Last());
        EXPECT_TRUE(m_dialog->m_strSelPath.IsEmpty());
    });
}

TEST_F(FileDialogSelection, FileThatVanishedIsToldAsMissing) {
    Browse(FDO_KEEPOK, 0, [&](Driver& user) {
        const int row = Row(user, L"b.avi");
        ASSERT_TRUE(::DeleteFileW(m_folder.path(L"b.avi").c_str()));
        user.onUi([&] { ListView_SetItemState(m_list, row, LVIS_SELECTED, LVIS_SELECTED); });
        user.settle();
        EXPECT_EQ((Note{FILESEL_MISSING, L"", false, 0, nullptr}), Last());
    });
}

TEST_F(FileDialogSelection, FolderIsKeptAndMayBeImported) {
    Browse(FDO_KEEPOK | FDO_IMPORTFOLDER, 0, [&](Driver& user) {
        EXPECT_FALSE(ImportEnabled());
        Click(user, L"Archive");
        EXPECT_EQ((Note{FILESEL_ONE, m_folder.path(L"Archive")}), Last());
        EXPECT_STREQ(m_folder.path(L"Archive").c_str(), m_dialog->m_strSelPath);
        EXPECT_TRUE(ImportEnabled());
        EXPECT_EQ(L"Archive", NameText(user));
        Click(user, L"a.avi");
        EXPECT_FALSE(ImportEnabled());
        EXPECT_TRUE(m_dialog->m_strSelPath.IsEmpty());
        EXPECT_EQ((Note{FILESEL_ONE, m_folder.path(L"a.avi")}), Last());
        Click(user, L"Archive");
        EXPECT_TRUE(ImportEnabled()) << "after a file, too";
        Unselect(user);
        EXPECT_FALSE(ImportEnabled());
    });
}

TEST_F(FileDialogSelection, FolderWithADotInItsNameIsFound) {
    Browse(FDO_KEEPOK | FDO_IMPORTFOLDER, 0, [&](Driver& user) {
        Click(user, L"Clips.psd");
        EXPECT_EQ((Note{FILESEL_ONE, m_folder.path(L"Clips.psd")}), Last());
        EXPECT_STREQ(m_folder.path(L"Clips.psd").c_str(), m_dialog->m_strSelPath);
        EXPECT_FALSE(PanelShown()) << "a folder has no layers";
    });
}

TEST_F(FileDialogSelection, ItemIsNotTakenForTheFileSelectedBefore) {
    m_folder.file(L"Archive.avi", "x");
    m_folder.file(L"Sky.psd", "8BPS is all of it");
    m_folder.folder(L"Sky");
    m_folder.file(L"picture", "x");
    Browse(FDO_KEEPOK | FDO_IMPORTFOLDER, 0, [&](Driver& user) {
        Click(user, L"Archive.avi");
        Click(user, L"Archive");
        EXPECT_EQ((Note{FILESEL_ONE, m_folder.path(L"Archive")}), Last());
        EXPECT_TRUE(ImportEnabled());
        Click(user, L"Sky.psd");
        EXPECT_TRUE(PanelShown());
        Click(user, L"Sky");
        EXPECT_EQ((Note{FILESEL_ONE, m_folder.path(L"Sky")}), Last());
        EXPECT_FALSE(PanelShown());
        EXPECT_TRUE(ImportEnabled());
        Click(user, L"picture.psd");
        Click(user, L"picture");
        EXPECT_EQ((Note{FILESEL_ONE, m_folder.path(L"picture")}), Last());
        EXPECT_FALSE(PanelShown());
    });
}

// As it is on most machines: the list shows two rows of the same name.
TEST_F(FileDialogSelection, HiddenExtensionsDoNotMixItemsUp) {
    m_folder.file(L"Archive.avi", "x");
    const HiddenExtensions hidden;
    Browse(FDO_KEEPOK | FDO_IMPORTFOLDER, 0, [&](Driver& user) {
        const int folder = Row(user, L"Archive");
        const int file = Row(user, L"Archive", folder);
        ASSERT_NE(folder, file);
        for (int round = 0; round < 2; ++round) {
            ClickRow(user, file);
            EXPECT_EQ((Note{FILESEL_ONE, m_folder.path(L"Archive.avi")}), Last());
            EXPECT_FALSE(ImportEnabled());
            ClickRow(user, folder);
            EXPECT_EQ((Note{FILESEL_ONE, m_folder.path(L"Archive")}), Last());
            EXPECT_TRUE(ImportEnabled());
        }
        ClickRow(user, Row(user, L"picture"));
        EXPECT_EQ((Note{FILESEL_ONE, m_folder.path(L"picture.psd")}), Last());
        EXPECT_TRUE(PanelShown());
    });
}

TEST_F(FileDialogSelection, ImportButtonEndsTheDialogWithTheFolder) {
    Browse(FDO_IMPORTFOLDER, 0, [&](Driver& user) {
        Click(user, L"Archive");
        const HWND panel = ::GetDlgItem(m_frame, kImportPanel);
        user.waitEnabled(::GetDlgItem(panel, kImportButton), true);
        user.click(panel, kImportButton);
        m_frame = nullptr; // nothing to be cancelled
    });
    EXPECT_EQ(eSelForder, m_dialog->GetSelTpye());
    EXPECT_STREQ(m_folder.path(L"Archive").c_str(), m_dialog->GetSelForderPath());
    EXPECT_STREQ(L"All", m_dialog->GetSelFileFormat());
}

TEST_F(FileDialogSelection, SeveralAreToldByTheirNumber) {
    Browse(FDO_KEEPOK | FDO_IMPORTFOLDER, OFN_ALLOWMULTISELECT, [&](Driver& user) {
        Click(user, L"a.avi");
        m_preview->TakeNotes();
        Click(user, L"b.avi", qvtest::Control);
        const std::vector<Note> both = m_preview->TakeNotes();
        ASSERT_GE(both.size(), 2u);
        EXPECT_EQ((Note{FILESEL_ONE, m_folder.path(L"a.avi")}), both[both.size() - 2])
            << "the first one's path";
        EXPECT_EQ((Note{FILESEL_SEVERAL, L"", false, 2}), both.back());
        Click(user, L"Archive", qvtest::Control);
        EXPECT_EQ((Note{FILESEL_SEVERAL, L"", false, 3}), Last());
        EXPECT_FALSE(ImportEnabled()) << "only a single folder";
        Click(user, L"a.avi");
        EXPECT_EQ((Note{FILESEL_ONE, m_folder.path(L"a.avi")}), Last());
        Click(user, L"picture.psd", qvtest::Shift);
        EXPECT_EQ((Note{FILESEL_SEVERAL, L"", false, 4}), Last());
    });
}

TEST_F(FileDialogSelection, PsdShowsThePanelAndGrowsTheFrameOnce) {
    Browse(FDO_KEEPOK, 0, [&](Driver& user) {
        CRect before;
        ::GetWindowRect(m_frame, before);
        auto height = [&] {
            CRect now;
            ::GetWindowRect(m_frame, now);
            return now.Height();
        };
        EXPECT_FALSE(PanelShown());
        Click(user, L"picture.psd");
        EXPECT_TRUE(PanelShown());
        EXPECT_EQ(before.Height() + 60, height());
        EXPECT_NE(0u, m_dialog->m_dwPsdState & 4);
        user.onUi([&] { m_dialog->ShowPsdOptionWnd(TRUE); });
        EXPECT_EQ(before.Height() + 60, height()) << "shown already";
        Click(user, L"a.avi");
        EXPECT_FALSE(PanelShown());
        EXPECT_EQ(before.Height(), height());
        Click(user, L"picture.psd");
        Unselect(user);
        EXPECT_EQ(before.Height(), height());
        user.onUi([&] { m_dialog->ShowPsdOptionWnd(FALSE); });
        EXPECT_EQ(before.Height(), height()) << "hidden already";
    });
    EXPECT_EQ(0u, m_dialog->m_dwPsdState & 4) << "a second run starts without the panel";
}

TEST_F(FileDialogSelection, FileTypeIsToldAndForgetsTheFolder) {
    Browse(FDO_KEEPOK | FDO_IMPORTFOLDER, 0, [&](Driver& user) {
        Click(user, L"Archive");
        m_preview->TakeNotes();
        ChooseFilter(user, m_frame, 1);
        bool told = false;
        for (const Note& note : m_preview->TakeNotes())
            told |= note.what == FILESEL_ATTACHED && note.dialog == m_dialog.get();
        EXPECT_TRUE(told);
        EXPECT_FALSE(ImportEnabled());
        EXPECT_TRUE(m_dialog->m_strSelPath.IsEmpty());
    });
}

TEST_F(FileDialogSelection, EveryFolderHasItsListSkinned) {
    Browse(FDO_KEEPOK | FDO_IMPORTFOLDER, 0, [&](Driver& user) {
        EXPECT_EQ(m_list, m_dialog->m_pSkinnedList->GetSafeHwnd());
        const HWND first = m_list;
        CRect label;
        const int row = Row(user, L"Archive");
        user.onUi([&] { ListView_GetItemRect(m_list, row, &label, LVIR_LABEL); });
        user.doubleClickAt(m_list, label.CenterPoint());
        user.waitFor("the folder", [&] {
            m_list = qvtest::findDescendant(m_frame, L"SysListView32");
            return m_list && user.send(m_list, LVM_GETITEMCOUNT) == 1;
        });
        user.settle();
        user.onUi([&] {
            EXPECT_EQ(m_list, m_dialog->m_pSkinnedList->GetSafeHwnd());
            EXPECT_TRUE(m_list == first || !CWnd::FromHandlePermanent(first))
                << "the former list is given back";
        });
        EXPECT_FALSE(ImportEnabled());
    });
}

// The shell sets its list up between the making of the view and the notice of the folder.
TEST_F(FileDialogSelection, FirstNoticeOfAListGivesItsLookAgain) {
    const LookWatch watch;
    Browse(FDO_KEEPOK, 0, [&](Driver& user) {
        user.settle();
        EXPECT_EQ(2, LookWatch::Grounds());
        EXPECT_EQ(2, LookWatch::Posts());
        user.onUi([&] { NotifyFolder(); });
        user.settle();
        EXPECT_EQ(2, LookWatch::Grounds()) << "told again of the same list";
        EXPECT_EQ(2, LookWatch::Posts());
    });
}

TEST_F(FileDialogSelection, ViewThatFailedToComeReleasesTheFormerList) {
    Browse(FDO_KEEPOK, 0, [&](Driver& user) {
        user.onUi([&] {
            const HWND view = ::GetParent(m_list);
            ::SetParent(view, ::GetDesktopWindow());
            NotifyFolder();
            EXPECT_EQ(nullptr, m_dialog->m_pSkinnedList);
            ::SetParent(view, m_frame);
            NotifyFolder();
            EXPECT_EQ(m_list, m_dialog->m_pSkinnedList->GetSafeHwnd());
        });
    });
}

TEST_F(FileDialogSelection, BaseIsNotAskedWhatTheDialogAnswers) {
    NotedDialog dialog(TRUE, nullptr, nullptr, 0, L"All|*.*|AVI|*.avi|", nullptr, 0, FALSE, FALSE,
                       FDO_KEEPOK);
    dialog.m_ofn.lpstrInitialDir = m_folder.path().c_str();
    Run(dialog, [&](Driver& user) {
        m_frame = Frame(user);
        m_list = user.waitDescendant(m_frame, L"SysListView32");
        Click(user, L"a.avi");
        ChooseFilter(user, m_frame, 1);
        user.click(m_frame, kCancel);
    });
    EXPECT_EQ(0, dialog.m_notes);
}

TEST_F(FileDialogSelection, SecondNoticeOfTheSameListChangesNothing) {
    Browse(FDO_KEEPOK, 0, [&](Driver& user) {
        user.onUi([&] {
            const auto procedure = ::GetWindowLongPtrW(m_list, GWLP_WNDPROC);
            CWnd* const skinned = m_dialog->m_pSkinnedList;
            NotifyFolder();
            EXPECT_EQ(procedure, ::GetWindowLongPtrW(m_list, GWLP_WNDPROC));
            EXPECT_EQ(skinned, m_dialog->m_pSkinnedList);
        });
    });
}

} // namespace filedialog_test
