// The painted frame, the views and the combo boxes worked by real mouse and keyboard input.
#include "FileDialogFixture.h"

#include "Picture.h"

#include <QVReplaceWnd.h>
#include <QVSkin.h>

namespace filedialog_test {

using qvtest::Picture;

namespace {

// Commands of the shell's view, in the order of its own menu: large icons, small icons, list, details.
constexpr int kViewCommands[] = {0x7029, 0x702A, 0x702B, 0x702C};
constexpr int kManyFiles = 120;

CPoint CloseButton(HWND frame) {
    CRect client;
    ::GetClientRect(frame, client);
    return CPoint(client.right - 16, 9);
}

CRect PlaceIn(HWND frame, HWND control) {
    CRect place;
    ::GetWindowRect(control, place);
    ::MapWindowPoints(nullptr, frame, reinterpret_cast<POINT*>(&place), 2);
    return place;
}

} // namespace

class FileDialogMouse : public FileDialog {
  protected:
    void SetUp() override {
        FileDialog::SetUp();
        m_folder.folder(L"Sub");
        m_folder.file(L"Sub\\deep.avi", "x");
        m_folder.file(L"a.avi", "x");
        m_folder.file(L"b.avi", "x");
        m_folder.file(L"c.txt", "x");
    }
    static CPoint Label(Driver& user, HWND list, int row) {
        CRect label;
        user.onUi([&] { ListView_GetItemRect(list, row, &label, LVIR_LABEL); });
        return label.CenterPoint();
    }
    static CRect FrameRect(HWND frame) {
        CRect rect;
        ::GetWindowRect(frame, rect);
        return rect;
    }
};

TEST_F(FileDialogMouse, PaintedCloseButtonCancels) {
    const auto dialog = Make(Kind::Open);
    EXPECT_EQ(IDCANCEL, Run(*dialog, [](Driver& user) {
                  const HWND frame = Frame(user);
                  user.clickAt(frame, CloseButton(frame));
              }));
}

TEST_F(FileDialogMouse, CloseButtonLetGoElsewhereDoesNothing) {
    const auto dialog = Make(Kind::Open);
    Run(*dialog, [](Driver& user) {
        const HWND frame = Frame(user);
        user.drag(frame, CloseButton(frame), CloseButton(frame) + CPoint(-60, 40));
        EXPECT_TRUE(::IsWindowVisible(frame));
        user.click(frame, kCancel);
    });
}

TEST_F(FileDialogMouse, CloseButtonHearsAPressRightBehindAnother) {
    const auto dialog = Make(Kind::Open);
    EXPECT_EQ(IDCANCEL, Run(*dialog, [](Driver& user) {
                  const HWND frame = Frame(user);
                  user.hover(frame, CloseButton(frame));
                  qvtest::mouseDown();
                  user.hover(frame, CloseButton(frame) + CPoint(0, 40));
                  qvtest::mouseUp();
                  user.clickAt(frame, CloseButton(frame));
              }));
}

TEST_F(FileDialogMouse, CloseButtonLetGoOverItAfterAPressElsewhereDoesNothing) {
    const auto dialog = Make(Kind::Open);
    Run(*dialog, [](Driver& user) {
        const HWND frame = Frame(user);
        const CPoint close = CloseButton(frame);
        user.send(frame, WM_LBUTTONUP, 0, MAKELPARAM(close.x, close.y));
        EXPECT_TRUE(::IsWindowVisible(frame));
        user.click(frame, kCancel);
    });
}

TEST_F(FileDialogMouse, CloseButtonShowsWhatTheFrameIs) {
    using namespace _qv_commonctrl;
    const auto dialog = Make(Kind::Open);
    Run(*dialog, [](Driver& user) {
        const HWND frame = Frame(user);
        const CPoint corner = CloseButton(frame) + CPoint(-8, -5);
        const auto waitFor = [&](const char* what, int color) {
            user.waitFor(what, [&] {
                return Picture::ofClient(frame).at(corner.x, corner.y) == QV_GetSysColor(color);
            });
        };
        user.hover(frame, CloseButton(frame));
        qvtest::mouseDown();
        waitFor("the pressed button", QVCLR_CLOSE_ACTIVE + 2);
        user.hover(frame, CPoint(100, 100));
        qvtest::mouseUp();
        waitFor("the plain button", QVCLR_CLOSE_ACTIVE);
        user.onUi([&] { ::EnableWindow(frame, FALSE); });
        waitFor("the disabled button", QVCLR_CLOSE_ACTIVE + 3);
        user.onUi([&] { ::EnableWindow(frame, TRUE); });
        HWND other = nullptr;
        user.onUi([&] {
            other = ::CreateWindowExW(0, L"STATIC", L"", WS_POPUP | WS_VISIBLE, 0, 0, 20, 20, nullptr,
                                      nullptr, nullptr, nullptr);
            ::SetActiveWindow(other);
        });
        waitFor("the button of an inactive frame", QVCLR_CLOSE_INACTIVE);
        user.onUi([&] {
            ::DestroyWindow(other);
            ::SetActiveWindow(frame);
        });
        user.click(frame, kCancel);
    });
}

TEST_F(FileDialogMouse, LabelsStandOnOneGround) {
    using namespace _qv_commonctrl;
    m_folder.file(L"skin\\skin.txt", "color 16 ground-tree #800000\n");
    QV_SetSkinPath(m_folder.path(L"skin").c_str());
    const auto dialog = Make(Kind::Open);
    Run(*dialog, [](Driver& user) {
        const HWND frame = Frame(user);
        for (const int label : {1089, 1090, 1091})
            EXPECT_EQ(QV_GetSysColor(QVCLR_WINDOW), Picture::ofClient(::GetDlgItem(frame, label)).at(0, 0))
                << label;
        user.click(frame, kCancel);
    });
    QV_SetSkinPath(nullptr);
}

TEST_F(FileDialogMouse, CloseButtonShowsThePointer) {
    using namespace _qv_commonctrl;
    const auto dialog = Make(Kind::Open);
    Run(*dialog, [](Driver& user) {
        const HWND frame = Frame(user);
        const CPoint corner = CloseButton(frame) + CPoint(-8, -5);
        user.hover(frame, CPoint(100, 100));
        user.waitFor("the plain button", [&] {
            return Picture::ofClient(frame).at(corner.x, corner.y) == QV_GetSysColor(QVCLR_CLOSE_ACTIVE);
        });
        user.hover(frame, CloseButton(frame));
        user.waitFor("the hot button", [&] {
            return Picture::ofClient(frame).at(corner.x, corner.y) == QV_GetSysColor(QVCLR_CLOSE_ACTIVE + 1);
        });
        user.hover(frame, CPoint(100, 100));
        user.waitFor("the plain button again", [&] {
            return Picture::ofClient(frame).at(corner.x, corner.y) == QV_GetSysColor(QVCLR_CLOSE_ACTIVE);
        });
        user.click(frame, kCancel);
    });
}

TEST_F(FileDialogMouse, CaptionDragsTheFrame) {
    const auto dialog = Make(Kind::Open);
    Run(*dialog, [](Driver& user) {
        const HWND frame = Frame(user);
        const CRect before = FrameRect(frame);
        user.drag(frame, CPoint(200, 10), CPoint(260, 50));
        const CRect after = FrameRect(frame);
        EXPECT_EQ(60, after.left - before.left);
        EXPECT_EQ(40, after.top - before.top);
        EXPECT_TRUE(before.Size() == after.Size());
        user.drag(frame, CPoint(30, 300), CPoint(60, 330));
        EXPECT_TRUE(after == FrameRect(frame)) << "only the caption drags";
        user.click(frame, kCancel);
    });
}

TEST_F(FileDialogMouse, DoubleClickEntersAFolderAndOpensAFile) {
    const auto dialog = Make(Kind::Open);
    EXPECT_EQ(IDOK, Run(*dialog, [](Driver& user) {
                  const HWND frame = Frame(user);
                  HWND list = List(user, frame, 3); // the folder and two films
                  user.doubleClickAt(list, Label(user, list, 0));
                  list = List(user, frame, 1);
                  user.doubleClickAt(list, Label(user, list, 0));
              }));
    EXPECT_STREQ(m_folder.path(L"Sub\\deep.avi").c_str(), dialog->GetPathName());
}

TEST_F(FileDialogMouse, TypedPathChangesTheFolder) {
    const auto dialog = Make(Kind::Open);
    EXPECT_EQ(IDOK, Run(*dialog, [&](Driver& user) {
                  const HWND frame = Frame(user);
                  List(user, frame, 3);
                  user.replaceText(NameEdit(frame), m_folder.path(L"Sub"));
                  user.enter();
                  List(user, frame, 1);
                  user.replaceText(NameEdit(frame), L"deep.avi");
                  user.enter();
              }));
    EXPECT_STREQ(m_folder.path(L"Sub\\deep.avi").c_str(), dialog->GetPathName());
}

TEST_F(FileDialogMouse, LookInComboGoesUp) {
    const auto dialog = Make(Kind::Open);
    dialog->m_ofn.lpstrInitialDir = nullptr;
    const std::wstring sub = m_folder.path(L"Sub");
    dialog->m_ofn.lpstrInitialDir = sub.c_str();
    Run(*dialog, [&](Driver& user) {
        const HWND frame = Frame(user);
        List(user, frame, 1);
        const HWND combo = ::GetDlgItem(frame, kLookInCombo);
        const auto current = static_cast<int>(user.send(combo, CB_GETCURSEL));
        user.click(combo);
        COMBOBOXINFO info = {};
        info.cbSize = sizeof info;
        ASSERT_TRUE(::GetComboBoxInfo(combo, &info));
        user.waitFor("the dropped list", [&] { return ::IsWindowVisible(info.hwndList); });
        CRect row;
        user.onUi([&] {
            ::SendMessageW(info.hwndList, LB_GETITEMRECT, static_cast<WPARAM>(current) - 1,
                           reinterpret_cast<LPARAM>(&row));
        });
        user.clickAt(info.hwndList, row.CenterPoint());
        List(user, frame, 3);
        user.click(frame, kCancel);
    });
}

TEST_F(FileDialogMouse, LookInListIsIndentedAndShowsTheSelection) {
    using namespace _qv_commonctrl;
    const auto dialog = Make(Kind::Open);
    Run(*dialog, [&](Driver& user) {
        const HWND frame = Frame(user);
        const HWND combo = ::GetDlgItem(frame, kLookInCombo);
        COMBOBOXINFO info = {};
        info.cbSize = sizeof info;
        ASSERT_TRUE(::GetComboBoxInfo(combo, &info));
        user.click(combo);
        user.waitFor("the dropped list", [&] { return ::IsWindowVisible(info.hwndList); });
        user.settle();
        const Picture picture = Picture::ofClient(info.hwndList);
        picture.save(qvtest::picturePath(L"filedialog-lookin"));
        // Where the first pixel stands that is not the row's ground: the icon.
        auto iconLeft = [&](int row) {
            CRect rect;
            user.onUi([&] {
                ::SendMessageW(info.hwndList, LB_GETITEMRECT, static_cast<WPARAM>(row),
                               reinterpret_cast<LPARAM>(&rect));
            });
            const COLORREF ground = picture.at(1, rect.top + 1);
            for (int x = 1; x < picture.width(); ++x)
                for (int y = rect.top; y < rect.bottom; ++y)
                    if (picture.at(x, y) != ground)
                        return x;
            return -1;
        };
        EXPECT_NEAR(13, iconLeft(1) - iconLeft(0), 3) << "one step deeper, icons apart";
        EXPECT_NEAR(26, iconLeft(2) - iconLeft(0), 3);
        CRect selected;
        const auto current = static_cast<int>(user.send(combo, CB_GETCURSEL));
        user.onUi([&] {
            ::SendMessageW(info.hwndList, LB_GETITEMRECT, static_cast<WPARAM>(current),
                           reinterpret_cast<LPARAM>(&selected));
        });
        EXPECT_EQ(QV_GetSysColor(QVCLR_SELECTION), picture.at(2, selected.top + 1));
        EXPECT_EQ(QV_GetSysColor(QVCLR_COMBO_LIST), picture.at(2, 1));
        user.escape();
        user.click(frame, kCancel);
    });
}

TEST_F(FileDialogMouse, PlacesBarFramesTheCheckedPlace) {
    using namespace _qv_commonctrl;
    const auto dialog = Make(Kind::Open);
    Run(*dialog, [&](Driver& user) {
        const HWND frame = Frame(user);
        const HWND bar = ::GetDlgItem(frame, kPlacesBar);
        TBBUTTON button = {};
        CRect rect;
        user.onUi([&] {
            ::SendMessageW(bar, TB_GETBUTTON, 0, reinterpret_cast<LPARAM>(&button));
            ::SendMessageW(bar, TB_GETITEMRECT, 0, reinterpret_cast<LPARAM>(&rect));
        });
        EXPECT_EQ(50, rect.Height());
        Picture picture = Picture::ofClient(bar);
        EXPECT_EQ(QV_GetSysColor(QVCLR_WINDOW), picture.at(rect.left, rect.top));
        user.send(bar, TB_CHECKBUTTON, static_cast<WPARAM>(button.idCommand), TRUE);
        user.settle();
        picture = Picture::ofClient(bar);
        EXPECT_EQ(QV_GetSysColor(QVCLR_TEXT_WINDOW), picture.at(rect.left, rect.top));
        EXPECT_EQ(QV_GetSysColor(QVCLR_TEXT_WINDOW), picture.at(rect.right - 1, rect.bottom - 1));
        user.click(frame, kCancel);
    });
}

class FileDialogViews : public FileDialogMouse, public testing::WithParamInterface<int> {
  protected:
    void SetUp() override {
        FileDialogMouse::SetUp();
        for (int i = 0; i < kManyFiles; ++i)
            m_folder.file(L"clip with a long name " + std::to_wstring(i) + L".avi", "x");
    }
};

TEST_P(FileDialogViews, AreSkinnedAndScroll) {
    using namespace _qv_commonctrl;
    const auto dialog = Make(Kind::Open);
    Run(*dialog, [&](Driver& user) {
        const HWND frame = Frame(user);
        const HWND list = List(user, frame, kManyFiles + 3);
        const int command = kViewCommands[GetParam()];
        user.send(::GetParent(list), WM_COMMAND, static_cast<WPARAM>(command));
        user.settle();
        QVReplaceData bars;
        user.onUi([&] { ASSERT_TRUE(QV_GetReplaceData(list, bars)); });
        EXPECT_TRUE(bars.bVert || bars.bHorz) << "more files than fit";
        user.hover(list, CPoint(100, 100));
        const int bar = bars.bVert ? SB_VERT : SB_HORZ;
        const int before = ::GetScrollPos(list, bar);
        for (int i = 0; i < 3; ++i)
            user.send(list, bars.bVert ? WM_VSCROLL : WM_HSCROLL, SB_LINEDOWN);
        user.settle();
        EXPECT_NE(before, ::GetScrollPos(list, bar));
        // What scrolling has left on the screen is what painting afresh gives.
        Picture::ofWindow(frame).save(qvtest::picturePath(L"filedialog-view" + std::to_wstring(GetParam())));
        const Picture scrolled = Picture::ofClient(list);
        user.onUi([&] {
            ::RedrawWindow(list, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
        });
        user.settle();
        EXPECT_EQ(0, Picture::ofClient(list).differences(scrolled));
        const Picture client = Picture::ofClient(list);
        EXPECT_EQ(QV_GetSysColor(QVCLR_LIST_FRAME), client.at(0, client.height() / 2));
        EXPECT_EQ(QV_GetSysColor(QVCLR_LIST_FRAME), client.at(client.width() - 1, client.height() / 2));
        user.click(frame, kCancel);
    });
}

INSTANTIATE_TEST_SUITE_P(All, FileDialogViews, testing::Values(0, 1, 2, 3));

TEST_F(FileDialogMouse, CornerBetweenTheBarsIsTheLists) {
    using namespace _qv_commonctrl;
    for (int i = 0; i < kManyFiles; ++i)
        m_folder.file(L"clip " + std::to_wstring(i) + L".avi", "x");
    const auto dialog = Make(Kind::Open);
    Run(*dialog, [&](Driver& user) {
        const HWND frame = Frame(user);
        const HWND list = List(user, frame, kManyFiles + 3);
        user.send(::GetParent(list), WM_COMMAND, static_cast<WPARAM>(kViewCommands[3]));
        user.send(list, LVM_SETCOLUMNWIDTH, 0, 2000);
        QVReplaceData bars;
        user.waitFor("both bars", [&] {
            user.onUi([&] { QV_GetReplaceData(list, bars); });
            return bars.bVert && bars.bHorz;
        });
        user.settle();
        CRect place = PlaceIn(frame, list);
        const CPoint corner = place.TopLeft() + CPoint(bars.rcVert.left + 4, bars.rcHorz.top + 4);
        EXPECT_EQ(QV_GetSysColor(QVCLR_LIST), Picture::ofClient(frame).at(corner.x, corner.y));
        EXPECT_NE(QV_GetSysColor(QVCLR_LIST), QV_GetSysColor(QVCLR_SCROLL_TRACK));
        user.click(frame, kCancel);
    });
}

TEST_F(FileDialogMouse, SkinChangeReachesTheOpenDialog) {
    using namespace _qv_commonctrl;
    const auto dialog = Make(Kind::Open);
    Run(*dialog, [&](Driver& user) {
        const HWND frame = Frame(user);
        const HWND list = List(user, frame, 3);
        const CString dark = QV_GetSkinPath();
        const COLORREF formerGround = QV_GetSysColor(QVCLR_WINDOW);
        const COLORREF formerField = QV_GetSysColor(QVCLR_LIST);
        user.onUi([&] { QV_SetSkinPath(dark.Left(dark.ReverseFind(L'\\')) + L"\\light"); });
        user.settle();
        const Picture picture = Picture::ofWindow(frame);
        picture.save(qvtest::picturePath(L"filedialog-switched"));
        EXPECT_EQ(0, picture.count(formerGround)) << "nothing keeps the former ground";
        EXPECT_EQ(0, picture.count(formerField));
        EXPECT_EQ(QV_GetSysColor(QVCLR_LIST), Picture::ofClient(list).at(200, 150));
        user.onUi([&] { QV_SetSkinPath(nullptr); });
        user.click(frame, kCancel);
    });
}

} // namespace filedialog_test
