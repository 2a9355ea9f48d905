// What the dialog keeps and tells when the selection, the folder or the file type changes.
#include "FileDialogFixture.h"
#include "PreviewProbe.h"

namespace filedialog_test {

using Note = PreviewProbe::Note;

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

    int Row(Driver& user, const std::wstring& name) const {
        std::vector<wchar_t> text(name.c_str(), name.c_str() + name.size() + 1);
        LRESULT row = -1;
        user.waitFor("the row", [&] {
            user.onUi([&] {
                LVFINDINFOW find = {};
                find.flags = LVFI_STRING;
                find.psz = text.data();
                row = ::SendMessageW(m_list, LVM_FINDITEMW, static_cast<WPARAM>(-1),
                                     reinterpret_cast<LPARAM>(&find));
            });
            return row >= 0;
        });
        return static_cast<int>(row);
    }

    // By real mouse input.
    void Click(Driver& user, const std::wstring& name, unsigned modifiers = qvtest::NoModifier) {
        CRect label;
        const int row = Row(user, name);
        user.onUi([&] { ListView_GetItemRect(m_list, row, &label, LVIR_LABEL); });
        user.clickAt(m_list, label.CenterPoint(), qvtest::MouseButton::Left, modifiers);
        user.settle();
    }
    void Unselect(Driver& user) {
        user.onUi([&] { ListView_SetItemState(m_list, -1, 0, LVIS_SELECTED); });
        user.settle();
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
        Click(user, L"b.avi", qvtest::Control);
        EXPECT_EQ((Note{FILESEL_SEVERAL, L"", false, 2}), Last());
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

TEST_F(FileDialogSelection, SecondNoticeOfTheSameListChangesNothing) {
    Browse(FDO_KEEPOK, 0, [&](Driver& user) {
        user.onUi([&] {
            const auto procedure = ::GetWindowLongPtrW(m_list, GWLP_WNDPROC);
            CWnd* const skinned = m_dialog->m_pSkinnedList;
            OFNOTIFYW notice = {};
            notice.hdr = {m_frame, 0, static_cast<UINT>(CDN_FOLDERCHANGE)};
            ::SendMessageW(m_dialog->m_hWnd, WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&notice));
            EXPECT_EQ(procedure, ::GetWindowLongPtrW(m_list, GWLP_WNDPROC));
            EXPECT_EQ(skinned, m_dialog->m_pSkinnedList);
        });
    });
}

} // namespace filedialog_test
