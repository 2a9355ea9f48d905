// How the chooser looks and lies on the screen.
#include "PathDialogFixture.h"

#include "LeakGuard.h"
#include "Picture.h"
#include "ShownText.h"

#include <QVReplaceWnd.h>

#include <commctrl.h>
#include <shlobj.h>

namespace pathdialog_test {

using namespace _qv_commonctrl;
using qvtest::Picture;
using qvtest::textOf;

constexpr int kWidth = 450;
constexpr int kHeight = 500;

CRect PlaceOf(HWND frame, HWND control) {
    CRect place;
    ::GetWindowRect(control, &place);
    ::MapWindowPoints(nullptr, frame, reinterpret_cast<POINT*>(&place), 2);
    return place;
}

void ExpectLayout(HWND frame, HWND tree) {
    CRect client;
    ::GetClientRect(frame, &client);
    EXPECT_EQ(CSize(kWidth, kHeight), client.Size());
    EXPECT_EQ(CRect(10, 35, 440, 57), PlaceOf(frame, ::GetDlgItem(frame, kTitle)));
    EXPECT_EQ(CRect(10, 63, 440, 456), PlaceOf(frame, tree));
    EXPECT_EQ(CRect(358, 467, 428, 489), PlaceOf(frame, ::GetDlgItem(frame, kCancel)));
    EXPECT_EQ(CRect(278, 467, 348, 489), PlaceOf(frame, ::GetDlgItem(frame, kOk)));
    EXPECT_EQ(CRect(198, 467, 268, 489), PlaceOf(frame, ::GetDlgItem(frame, kNewFolder)));
}

TEST_F(PathDialog, LosesTheSystemFrameAndIsLaidOut) {
    CQVPathDialog dialog(nullptr);
    Run(dialog, [](Driver& user, HWND frame) {
        const auto style = static_cast<DWORD>(::GetWindowLongPtrW(frame, GWL_STYLE));
        // The system gives every top-level window the style that clips siblings back.
        for (const DWORD gone : {DWORD(WS_BORDER), DWORD(WS_DLGFRAME), DWORD(WS_THICKFRAME),
                                 DWORD(WS_SYSMENU), DWORD(DS_3DLOOK), DWORD(DS_MODALFRAME)})
            EXPECT_EQ(0u, style & gone) << std::hex << gone;
        const auto exStyle = static_cast<DWORD>(::GetWindowLongPtrW(frame, GWL_EXSTYLE));
        EXPECT_EQ(0u, exStyle & (WS_EX_DLGMODALFRAME | WS_EX_WINDOWEDGE));
        ExpectLayout(frame, Tree(frame));
        user.click(frame, kCancel);
    });
}

TEST_F(PathDialog, KeepsItsSizeWhateverItIsGiven) {
    CQVPathDialog dialog(nullptr);
    Run(dialog, [](Driver& user, HWND frame) {
        for (const CSize size : {CSize(700, 300), CSize(100, 100), CSize(0, 0), CSize(450, 500)}) {
            user.onUi([&] {
                ::SetWindowPos(frame, nullptr, 300, 200, size.cx, size.cy, SWP_NOZORDER | SWP_NOACTIVATE);
            });
            CRect window;
            ::GetWindowRect(frame, &window);
            EXPECT_EQ(CRect(CPoint(300, 200), CSize(kWidth, kHeight)), window);
            ExpectLayout(frame, Tree(frame));
        }
        user.click(frame, kCancel);
    });
}

TEST_F(PathDialog, IsDraggedByItsCaption) {
    CQVPathDialog dialog(nullptr);
    Run(dialog, [](Driver& user, HWND frame) {
        user.onUi([&] { ::SetWindowPos(frame, nullptr, 300, 200, 0, 0, SWP_NOSIZE | SWP_NOZORDER); });
        user.drag(frame, {100, 12}, {180, 52});
        user.waitFor("the new place", [&] {
            CRect window;
            ::GetWindowRect(frame, &window);
            return window == CRect(CPoint(380, 240), CSize(kWidth, kHeight));
        });
        user.click(frame, kCancel);
    });
}

TEST_F(PathDialog, CloseButtonAnswersTheMouse) {
    CQVPathDialog dialog(nullptr);
    Run(dialog, [](Driver& user, HWND frame) {
        const POINT inside = CloseCentre(frame);
        const POINT corner = {kWidth - 27 + 2, 3}; // of its ground, beside the cross
        const auto ground = [&] { return Picture::ofClient(frame).at(corner.x, corner.y); };
        const auto isColor = [&](int index) { return ground() == QV_GetSysColor(index); };
        user.hover(frame, {100, 60});
        user.waitFor("the plain button", [&] { return isColor(QVCLR_CLOSE_ACTIVE); });
        user.hover(frame, inside);
        user.waitFor("the hot button", [&] { return isColor(QVCLR_CLOSE_ACTIVE + 1); });
        qvtest::mouseDown();
        user.waitFor("the pressed button", [&] { return isColor(QVCLR_CLOSE_ACTIVE + 2); });
        user.hover(frame, {100, 60});
        user.waitFor("the button left", [&] { return isColor(QVCLR_CLOSE_ACTIVE); });
        qvtest::mouseUp();
        user.settle();
        EXPECT_TRUE(::IsWindowVisible(frame)) << "let go elsewhere";
        user.hover(frame, inside);
        user.waitFor("hot again", [&] { return isColor(QVCLR_CLOSE_ACTIVE + 1); });
        user.hover(frame, {inside.x, -20}); // out of the window
        user.waitFor("the button left for good", [&] { return isColor(QVCLR_CLOSE_ACTIVE); });
        user.clickAt(frame, inside);
    });
}

TEST_F(PathDialog, NewFolderButtonIsTheHostsChoice) {
    for (const int shown : {0, 1}) {
        CQVPathDialog dialog(nullptr);
        dialog.m_bShowNewFolder = shown;
        Run(dialog, [&](Driver& user, HWND frame) {
            EXPECT_EQ(shown != 0, ::IsWindowVisible(::GetDlgItem(frame, kNewFolder)) != FALSE);
            user.click(frame, kCancel);
        });
    }
}

TEST_F(PathDialog, AmpersandsInTheTitleAreShown) {
    CQVPathDialog dialog(nullptr);
    dialog.m_strTitle = L"Where do R&B and Drum & Bass go?";
    Run(dialog, [](Driver& user, HWND frame) {
        const HWND title = ::GetDlgItem(frame, kTitle);
        EXPECT_EQ(L"Where do R&B and Drum & Bass go?", textOf(title));
        EXPECT_NEAR(qvtest::widthOfText(title), qvtest::widthOfInk(title), 3);
        user.click(frame, kCancel);
    });
}

TEST_F(PathDialog, TitleIsTheHosts) {
    CQVPathDialog dialog(nullptr);
    dialog.m_strTitle = L"Where do the proxies go? 代理文件";
    Run(dialog, [](Driver& user, HWND frame) {
        EXPECT_EQ(L"Where do the proxies go? 代理文件", textOf(::GetDlgItem(frame, kTitle)));
        user.click(frame, kCancel);
    });
}

// How many pixels are as bright as the system's own ground in a dark skin.
int SystemWhite(const Picture& picture, const CRect& area) {
    constexpr int kBright = 235;
    int count = 0;
    for (int y = area.top; y < area.bottom; ++y) {
        for (int x = area.left; x < area.right; ++x) {
            const COLORREF color = picture.at(x, y);
            count +=
                GetRValue(color) >= kBright && GetGValue(color) >= kBright && GetBValue(color) >= kBright;
        }
    }
    return count;
}

struct LookRow {
    const wchar_t* skin;
    const wchar_t* language;
    const char* name;
};

class PathDialogIn : public PathDialog, public testing::WithParamInterface<LookRow> {};

TEST_P(PathDialogIn, IsSkinnedAndTranslated) {
    ASSERT_TRUE(QV_SetLanguage(GetParam().language));
    ASSERT_TRUE(QV_SetSkinPath(SkinFolder(GetParam().skin)));
    for (int i = 0; i < 60; ++i)
        m_folder.folder(L"project\\" + std::to_wstring(i) +
                        L" 视频 takes of the harbour at sunrise, second camera");
    CQVPathDialog dialog(nullptr);
    dialog.m_strPath =
        m_folder.path(L"project\\7 视频 takes of the harbour at sunrise, second camera").c_str();
    Run(dialog, [](Driver& user, HWND frame) {
        WaitSelected(user, Tree(frame), L"7 视频 takes of the harbour at sunrise, second camera");
        const auto expectKey = [](HWND window, const wchar_t* key) {
            EXPECT_STREQ(QV_LoadSysString(key), textOf(window).c_str());
        };
        expectKey(frame, L"IDS_COMMON_BROWSE_FOLDERS");
        expectKey(::GetDlgItem(frame, kTitle), L"IDS_COMMON_CHOOSE_PATH");
        expectKey(::GetDlgItem(frame, kOk), L"IDS_COMMON_OK");
        expectKey(::GetDlgItem(frame, kCancel), L"IDS_COMMON_CANCEL");
        expectKey(::GetDlgItem(frame, kNewFolder), L"IDS_COMMON_NEW_FOLDER");
        user.settle();
        const Picture picture = Picture::ofWindow(frame);
        picture.save(
            qvtest::picturePath(std::wstring(L"pathdialog-") + GetParam().skin + L"-" + GetParam().language));
        EXPECT_EQ(QV_GetSysColor(QVCLR_FRAME_OUTER), picture.at(0, kHeight / 2));
        EXPECT_EQ(QV_GetSysColor(QVCLR_FRAME_INNER), picture.at(1, kHeight / 2));
        EXPECT_EQ(QV_GetSysColor(QVCLR_GROUND), picture.at(5, kHeight / 2));
        EXPECT_EQ(QV_GetSysColor(QVCLR_CAPTION), picture.at(kWidth / 2, 20));
        EXPECT_EQ(QV_GetSysColor(QVCLR_CAPTION_LINE), picture.at(kWidth / 2, 24));
        EXPECT_EQ(QV_GetSysColor(QVCLR_TREE_FRAME), picture.at(9, kHeight / 2));
        EXPECT_EQ(QV_GetSysColor(QVCLR_TREE), picture.at(12, kHeight / 2));
        if (std::wstring(GetParam().skin) == L"dark") {
            const CRect all(0, 0, kWidth, kHeight); // texts are nearly white themselves
            EXPECT_LT(SystemWhite(picture, all), kWidth * kHeight / 20);
        }
        user.click(frame, kCancel);
    });
}

INSTANTIATE_TEST_SUITE_P(Looks, PathDialogIn,
                         testing::Values(LookRow{L"dark", L"zh-CN", "DarkChinese"},
                                         LookRow{L"dark", L"en-US", "DarkEnglish"},
                                         LookRow{L"light", L"zh-CN", "LightChinese"},
                                         LookRow{L"light", L"en-US", "LightEnglish"}),
                         [](const auto& row) { return row.param.name; });

TEST_F(PathDialog, SkinMayChangeWhileItIsOpen) {
    CQVPathDialog dialog(nullptr);
    dialog.m_strPath = m_folder.path().c_str();
    Run(dialog, [](Driver& user, HWND frame) {
        const HWND tree = Tree(frame);
        COLORREF ground = 0;
        user.onUi([&] {
            QV_SetSkinPath(SkinFolder(L"light"));
            ground = QV_GetSysColor(QVCLR_TREE);
        });
        EXPECT_EQ(static_cast<LRESULT>(ground), user.send(tree, TVM_GETBKCOLOR));
        EXPECT_EQ(static_cast<LRESULT>(QV_GetSysColor(QVCLR_TEXT_TREE)), user.send(tree, TVM_GETTEXTCOLOR));
        user.waitFor("the light window", [&] {
            const Picture picture = Picture::ofWindow(frame);
            return picture.at(5, kHeight / 2) == QV_GetSysColor(QVCLR_GROUND) &&
                   picture.at(12, kHeight - 60) == ground;
        });
        user.click(frame, kCancel);
    });
}

TEST_F(PathDialog, TreeIsScrolledBySkinnedBars) {
    for (int i = 0; i < 100; ++i)
        m_folder.folder(L"many\\" + std::to_wstring(1000 + i));
    CQVPathDialog dialog(nullptr);
    dialog.m_strPath = m_folder.path(L"many\\1000").c_str();
    Run(dialog, [](Driver& user, HWND frame) {
        const HWND tree = Tree(frame);
        WaitSelected(user, tree, L"1000");
        user.waitFor("the skinned bar", [&] {
            const HWND bar = qvtest::findDescendant(frame, L"QVScrollOverlay");
            return bar && ::IsWindowVisible(bar);
        });
        const auto first = [&] { return user.send(tree, TVM_GETNEXTITEM, TVGN_FIRSTVISIBLE); };
        const LRESULT before = first();
        user.wheel(tree, {50, 100}, -3);
        user.waitFor("the scrolled tree", [&] { return first() != before; });
        user.settle();
        const Picture picture = Picture::ofWindow(frame);
        EXPECT_GT(picture.count(QV_GetSysColor(QVCLR_SCROLL_TRACK), CRect(423, 64, 440, 456)), 100);
        user.click(frame, kCancel);
    });
}

// Where both bars meet, window pixels of the tree; empty while one of them does not show.
CRect CornerOf(Driver& user, HWND tree) {
    CRect corner;
    user.onUi([&] {
        QVReplaceData bars;
        if (QV_GetReplaceData(tree, bars) && bars.bVert && bars.bHorz)
            corner = CRect(bars.rcVert.left, bars.rcHorz.top, bars.rcVert.right, bars.rcHorz.bottom);
    });
    return corner;
}

TEST_F(PathDialog, CornerBetweenTheBarsIsGroundOfTheTree) {
    ASSERT_NE(QV_GetSysColor(QVCLR_TREE), QV_GetSysColor(QVCLR_SCROLL_TRACK));
    const std::wstring wide(90, L'w');
    for (int i = 0; i < 40; ++i)
        m_folder.folder(L"top\\" + std::to_wstring(100 + i) + wide);
    CQVPathDialog dialog(nullptr);
    dialog.m_strPath = m_folder.path(L"top\\100" + wide).c_str();
    Run(dialog, [&](Driver& user, HWND frame) {
        const HWND tree = Tree(frame);
        WaitSelected(user, tree, L"100" + wide);
        CRect corner;
        user.waitFor("both bars", [&] {
            corner = CornerOf(user, tree);
            return !corner.IsRectEmpty();
        });
        user.settle();
        corner.OffsetRect(PlaceOf(frame, tree).TopLeft());
        corner.DeflateRect(1, 1, 0, 0); // the system lets each bar reach one pixel into it
        const Picture picture = Picture::ofWindow(frame);
        picture.save(qvtest::picturePath(L"pathdialog-corner"));
        EXPECT_EQ(corner.Width() * corner.Height(), picture.count(QV_GetSysColor(QVCLR_TREE), corner));
        user.click(frame, kCancel);
    });
}

void RunBare() {
    ASSERT_EQ(S_OK, ::OleInitialize(nullptr));
    BROWSEINFOW info = {};
    info.lpszTitle = L"bare";
    info.ulFlags = BIF_RETURNONLYFSDIRS | BIF_STATUSTEXT | BIF_NEWDIALOGSTYLE;
    const SelfCancel cancel;
    EXPECT_EQ(nullptr, ::SHBrowseForFolderW(&info));
    ::OleUninitialize();
}

TEST_F(PathDialog, TwoHundredRunsLeaveNothing) {
    constexpr int kRuns = 200;
    m_folder.folder(L"media");
    const auto run = [&] {
        CQVPathDialog dialog(nullptr);
        dialog.m_strPath = m_folder.path(L"media").c_str();
        const SelfCancel cancel;
        EXPECT_EQ(IDCANCEL, dialog.DoModal());
    };
    qvtest::expectNoLeak(kRuns, run, {.bare = RunBare});
}

} // namespace pathdialog_test
