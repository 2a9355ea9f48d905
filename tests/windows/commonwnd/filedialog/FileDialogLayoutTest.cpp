// Real dialogs measured: what was taken over, what stands where.
#include "FileDialogFixture.h"
#include "filedialog/FileDialogLayout.h"
#include "PreviewProbe.h"

#include <map>

namespace filedialog_test {

namespace {

constexpr int kMovedIds[] = {2, 1089, 1090, 1091, 1136, 1137, 1148, 1184, 1120};
constexpr int kViewBar = 1; // the second tool bar has the Open button's id
constexpr UINT k96 = 96;

CRect PlaceIn(HWND frame, HWND child) {
    CRect place;
    ::GetWindowRect(child, &place);
    ::MapWindowPoints(nullptr, frame, reinterpret_cast<POINT*>(&place), 2);
    return place;
}

HWND ViewBarOf(HWND frame) {
    HWND bar = nullptr;
    while ((bar = ::FindWindowExW(frame, bar, L"ToolbarWindow32", nullptr)) != nullptr)
        if (::GetDlgCtrlID(bar) == kViewBar)
            return bar;
    return nullptr;
}

struct Measured {
    std::map<int, CRect> places; // by control id; 0: the tool bar with the views
    CRect open;
    CRect frame; // screen
    CSize client;
};

Measured Measure(HWND frame) {
    Measured measured;
    for (const int id : kMovedIds)
        measured.places[id] = PlaceIn(frame, ::GetDlgItem(frame, id));
    measured.places[0] = PlaceIn(frame, ViewBarOf(frame));
    measured.open = PlaceIn(frame, ::GetDlgItem(frame, kOk));
    ::GetWindowRect(frame, &measured.frame);
    CRect client;
    ::GetClientRect(frame, &client);
    measured.client = client.Size();
    return measured;
}

} // namespace

class FileDialogLayout : public FileDialog {
  protected:
    std::unique_ptr<TestFileDialog> MakeWith(DWORD options, DWORD flags = 0) const {
        auto dialog = std::make_unique<TestFileDialog>(TRUE, nullptr, nullptr, flags, L"All|*.*|", nullptr, 0,
                                                       FALSE, FALSE, options);
        dialog->m_ofn.lpstrInitialDir = m_folder.path().c_str();
        return dialog;
    }

    Measured MeasureSkinned(DWORD options) const {
        Measured measured;
        const auto dialog = MakeWith(options);
        Run(*dialog, [&](Driver& user) {
            const HWND frame = Frame(user);
            measured = Measure(frame);
            user.click(frame, kCancel);
        });
        return measured;
    }

    // The system's dialog in its own look.
    Measured MeasureBare() const {
        Measured measured;
        CFileDialog dialog(TRUE, nullptr, nullptr, OFN_HIDEREADONLY, L"All|*.*|", nullptr, 0, FALSE);
        dialog.m_ofn.lpstrInitialDir = m_folder.path().c_str();
        ModalScript script(qvtest::Milliseconds(60000));
        script.step("measure", [&](Driver& user) {
            const HWND frame = Frame(user);
            measured = Measure(frame);
            user.click(frame, kCancel);
        });
        script.run([&] { return dialog.DoModal(); });
        return measured;
    }
};

TEST_F(FileDialogLayout, EveryControlIsMovedOnce) {
    const Measured bare = MeasureBare();
    const Measured skinned = MeasureSkinned(FDO_KEEPOK);
    for (const auto& [id, place] : bare.places)
        EXPECT_TRUE(_qv_commonwnd::MovedControl(place, k96) == skinned.places.at(id)) << id;
    EXPECT_TRUE(_qv_commonwnd::MovedControl(bare.open, k96) == skinned.open);
    EXPECT_EQ(bare.frame.Width(), skinned.frame.Width());
    EXPECT_EQ(bare.frame.Height() + 5, skinned.frame.Height());
    EXPECT_TRUE(skinned.frame.Size() == skinned.client) << "the frame has no border of the system's";
}

TEST_F(FileDialogLayout, WithNeitherOptionTheOpenButtonStays) {
    const Measured bare = MeasureBare();
    const Measured skinned = MeasureSkinned(0);
    EXPECT_TRUE(bare.open == skinned.open);
    EXPECT_TRUE(_qv_commonwnd::MovedControl(bare.places.at(2), k96) == skinned.places.at(2));
}

TEST_F(FileDialogLayout, ImportPanelTakesTheOpenButtonsPlace) {
    const Measured bare = MeasureBare();
    const auto dialog = MakeWith(FDO_IMPORTFOLDER);
    Run(*dialog, [&](Driver& user) {
        const HWND frame = Frame(user);
        EXPECT_FALSE(::IsWindowVisible(::GetDlgItem(frame, kOk)));
        const HWND panel = ::GetDlgItem(frame, kImportPanel);
        EXPECT_TRUE(::IsWindowVisible(panel));
        EXPECT_TRUE(_qv_commonwnd::MovedControl(bare.open, k96) == PlaceIn(frame, panel));
        user.click(frame, kCancel);
    });
}

TEST_F(FileDialogLayout, BothOptionsPutThePanelBelowCancel) {
    const auto dialog = MakeWith(FDO_KEEPOK | FDO_IMPORTFOLDER);
    Run(*dialog, [&](Driver& user) {
        const HWND frame = Frame(user);
        const Measured measured = Measure(frame);
        const CRect cancel = measured.places.at(kCancel);
        EXPECT_LE(90, cancel.Width());
        EXPECT_LE(90, measured.open.Width());
        const CRect panel = PlaceIn(frame, ::GetDlgItem(frame, kImportPanel));
        EXPECT_TRUE(_qv_commonwnd::ImportPanelBelow(cancel, k96) == panel);
        EXPECT_LE(panel.bottom, measured.client.cy) << "the panel is seen whole";
        user.click(frame, kCancel);
    });
}

TEST_F(FileDialogLayout, WithoutImportThereIsNoPanel) {
    const auto dialog = MakeWith(FDO_KEEPOK);
    Run(*dialog, [&](Driver& user) {
        const HWND frame = Frame(user);
        EXPECT_EQ(nullptr, ::GetDlgItem(frame, kImportPanel));
        user.click(frame, kCancel);
    });
}

TEST_F(FileDialogLayout, FrameIsCentredByItsClientArea) {
    const Measured measured = MeasureSkinned(FDO_KEEPOK);
    const CSize screen(::GetSystemMetrics(SM_CXSCREEN), ::GetSystemMetrics(SM_CYSCREEN));
    EXPECT_TRUE(_qv_commonwnd::CentredOnScreen(screen, measured.client) == measured.frame.TopLeft());
}

TEST_F(FileDialogLayout, FrameHasLostTheSystemsStyles) {
    const auto dialog = MakeWith(FDO_KEEPOK);
    Run(*dialog, [&](Driver& user) {
        const HWND frame = Frame(user);
        const auto style = static_cast<DWORD>(::GetWindowLongPtrW(frame, GWL_STYLE));
        EXPECT_EQ(0u, style & (WS_CAPTION | WS_SYSMENU | DS_3DLOOK | DS_MODALFRAME));
        EXPECT_NE(0u, style & WS_CLIPCHILDREN) << "given back once the dialog is initialised";
        const auto exStyle = static_cast<DWORD>(::GetWindowLongPtrW(frame, GWL_EXSTYLE));
        EXPECT_EQ(0u, exStyle & (WS_EX_DLGMODALFRAME | WS_EX_WINDOWEDGE));
        user.click(frame, kCancel);
    });
}

TEST_F(FileDialogLayout, EveryControlIsTakenOver) {
    const auto dialog = MakeWith(FDO_KEEPOK | FDO_IMPORTFOLDER);
    Run(*dialog, [&](Driver& user) {
        const HWND frame = Frame(user);
        const HWND list = user.waitDescendant(frame, L"SysListView32");
        user.onUi([&] {
            EXPECT_NE(nullptr, CWnd::FromHandlePermanent(frame));
            for (const int id : {1, 2, 1089, 1090, 1091, 1136, 1137, 1148, 1184, 1120})
                EXPECT_NE(nullptr, CWnd::FromHandlePermanent(::GetDlgItem(frame, id))) << id;
            EXPECT_NE(nullptr, CWnd::FromHandlePermanent(ViewBarOf(frame)));
            EXPECT_NE(nullptr, CWnd::FromHandlePermanent(list));
            EXPECT_NE(nullptr, CWnd::FromHandlePermanent(ListView_GetHeader(list)));
        });
        user.click(frame, kCancel);
    });
}

TEST_F(FileDialogLayout, FileTypeComboKeepsItsRowHeight) {
    const auto dialog = MakeWith(FDO_KEEPOK);
    Run(*dialog, [&](Driver& user) {
        const HWND frame = Frame(user);
        const HWND combo = ::GetDlgItem(frame, kFileTypeCombo);
        EXPECT_EQ(16, user.send(combo, CB_GETITEMHEIGHT, 0));
        COMBOBOXINFO info = {};
        info.cbSize = sizeof info;
        ASSERT_TRUE(::GetComboBoxInfo(combo, &info));
        user.send(info.hwndList, LB_SETITEMHEIGHT, 0, 30);
        ASSERT_EQ(30, user.send(combo, CB_GETITEMHEIGHT, 0));
        user.send(combo, CB_SHOWDROPDOWN, TRUE);
        EXPECT_EQ(16, user.send(combo, CB_GETITEMHEIGHT, 0)) << "each time it drops down";
        user.send(combo, CB_SHOWDROPDOWN, FALSE);
        user.click(frame, kCancel);
    });
}

TEST_F(FileDialogLayout, SizeLimitsFollowTheAdvanceWindow) {
    auto limits = [](Driver& user, const CQVFileDialog& dialog) {
        MINMAXINFO info = {};
        info.ptMaxTrackSize = CPoint(9999, 9999);
        user.send(dialog.m_hWnd, WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&info));
        return info;
    };
    const auto plain = MakeWith(FDO_KEEPOK);
    Run(*plain, [&](Driver& user) {
        const HWND frame = Frame(user);
        const MINMAXINFO info = limits(user, *plain);
        EXPECT_TRUE(CPoint(640, 520) == info.ptMinTrackSize);
        EXPECT_TRUE(CPoint(640, 520) == info.ptMaxTrackSize);
        user.click(frame, kCancel);
    });
    PreviewProbe preview(CSize(300, 100));
    const auto docked = MakeWith(FDO_KEEPOK);
    docked->SetAdvanceWnd(&preview);
    Run(*docked, [&](Driver& user) {
        const HWND frame = Frame(user);
        EXPECT_TRUE(CPoint(500, 500) == limits(user, *docked).ptMinTrackSize);
        user.click(frame, kCancel);
    });
}

class DockedPreview : public FileDialogLayout, public testing::WithParamInterface<std::tuple<DWORD, int>> {};

TEST_P(DockedPreview, StandsWhereTheFiguresSay) {
    const auto [options, width] = GetParam();
    const Measured plain = MeasureSkinned(options);
    PreviewProbe preview(CSize(width, 100));
    const auto dialog = MakeWith(options);
    dialog->SetAdvanceWnd(&preview);
    Run(*dialog, [&](Driver& user) {
        const HWND frame = Frame(user);
        EXPECT_TRUE(::IsWindowVisible(preview));
        EXPECT_EQ(frame, ::GetParent(preview));
        const Measured measured = Measure(frame);
        const bool mayBeFitted = (options & FDO_IMPORTFOLDER) != 0;
        EXPECT_TRUE(mayBeFitted || plain.frame.Height() + 100 == measured.frame.Height());
        std::optional<int> panelBottom;
        if (options & FDO_IMPORTFOLDER)
            panelBottom = PlaceIn(frame, ::GetDlgItem(frame, kImportPanel)).bottom;
        const CRect expected =
            _qv_commonwnd::PlaceAdvanceWindow(measured.client, CSize(width, 100), options, panelBottom, k96);
        EXPECT_TRUE(expected == PlaceIn(frame, preview));
        const bool isBelow = !panelBottom || !(options & FDO_KEEPOK) || expected.top >= *panelBottom + 4;
        EXPECT_TRUE(isBelow) << "the panel is covered";
        EXPECT_TRUE(CSize(width, 100) == dialog->m_szAdvance);
        user.click(frame, kCancel);
    });
    ASSERT_NE(nullptr, preview.m_hWnd) << "the host's window outlives the dialog";
    EXPECT_FALSE(preview.IsWindowVisible());
    EXPECT_EQ(nullptr, ::GetParent(preview));
    CRect place;
    preview.GetWindowRect(&place);
    EXPECT_TRUE(CRect(CPoint(10, 10), CSize(width, 100)) == place);
}

INSTANTIATE_TEST_SUITE_P(Table, DockedPreview,
                         testing::Combine(testing::Values(0u, 1u, 2u, 3u), testing::Values(300, 2000)));

TEST_F(FileDialogLayout, AdvanceWindowServesASecondRunAndMayBeGone) {
    auto preview = std::make_unique<PreviewProbe>(CSize(300, 100));
    const auto dialog = MakeWith(FDO_KEEPOK);
    dialog->SetAdvanceWnd(preview.get());
    auto cancel = [](Driver& user) { user.click(Frame(user), kCancel); };
    for (int run = 0; run < 2; ++run) {
        EXPECT_EQ(IDCANCEL, Run(*dialog, cancel));
        const auto notes = preview->TakeNotes();
        ASSERT_FALSE(notes.empty());
        EXPECT_EQ(static_cast<WPARAM>(FILESEL_ATTACHED), notes.front().what);
        EXPECT_EQ(dialog.get(), notes.front().dialog);
    }
    preview->DestroyWindow();
    EXPECT_EQ(IDCANCEL, Run(*dialog, cancel)) << "a window that is gone is no window";
    EXPECT_TRUE(CSize(0, 0) == dialog->m_szAdvance);
}

} // namespace filedialog_test
