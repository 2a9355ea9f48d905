// What the box shows, how large it becomes, which keys it takes.
#include "MessageBoxFixture.h"

#include "LeakGuard.h"
#include "Picture.h"
#include "ShownText.h"

#include <QVSkin.h>

namespace messagebox_test {

using qvtest::findControl;
using qvtest::Picture;
using qvtest::textOf;

CSize SizeOf(HWND window) {
    CRect rect;
    ::GetWindowRect(window, &rect);
    return rect.Size();
}

// What DrawText needs for a text in the question's font.
CSize Needed(HWND box, const CString& text) {
    const HWND question = findControl(box, IDC_MSGBOX_TEXT);
    const HDC dc = ::GetDC(question);
    const HGDIOBJ former =
        ::SelectObject(dc, reinterpret_cast<HFONT>(::SendMessageW(question, WM_GETFONT, 0, 0)));
    CRect rect(0, 0, 0, 0);
    ::DrawTextW(dc, text, -1, &rect, DT_CALCRECT);
    ::SelectObject(dc, former);
    ::ReleaseDC(question, dc);
    return rect.Size();
}

class QuestionBoxIn : public QuestionBox, public testing::WithParamInterface<const wchar_t*> {};

TEST_P(QuestionBoxIn, ShowsQuestionAndTranslatedButtons) {
    ASSERT_TRUE(_qv_commonctrl::QV_SetLanguage(GetParam()));
    Ask(
        [](Driver& user, HWND box) {
            EXPECT_EQ(L"Delete 视频?", textOf(findControl(box, IDC_MSGBOX_TEXT)));
            const auto expectKey = [&](int id, const wchar_t* key) {
                const HWND control = findControl(box, id);
                EXPECT_STREQ(_qv_commonctrl::QV_LoadSysString(key), textOf(control).c_str());
                EXPECT_TRUE(::IsWindowVisible(control)) << id;
            };
            expectKey(IDC_MSGBOX_NOASK, L"IDS_CLIPWND_INFOSETNOASK");
            expectKey(IDC_MSGBOX_YES, L"IDS_CLIPWND_INFOSETYES");
            expectKey(IDC_MSGBOX_NO, L"IDS_CLIPWND_INFOSETNO");
            EXPECT_FALSE(::IsWindowVisible(findControl(box, IDC_MSGBOX_CANCEL)));
            user.settle();
            Picture::ofWindow(box).save(qvtest::picturePath(std::wstring(L"messagebox-") + GetParam()));
            user.click(box, IDC_MSGBOX_NO);
        },
        L"Delete 视频?");
}

INSTANTIATE_TEST_SUITE_P(Languages, QuestionBoxIn, testing::Values(L"en-US", L"zh-CN"), [](const auto& row) {
    return std::wstring(row.param) == L"en-US" ? "English" : "Chinese";
});

TEST_F(QuestionBox, AmpersandsAreShown) {
    Ask(
        [](Driver& user, HWND box) {
            user.settle();
            const HWND question = findControl(box, IDC_MSGBOX_TEXT);
            EXPECT_EQ(L"Replace \"R&B_final & more.mov\"?", textOf(question));
            EXPECT_NEAR(qvtest::widthOfText(question), qvtest::widthOfInk(question), 4);
            Picture::ofWindow(box).save(qvtest::picturePath(L"messagebox-ampersands"));
            user.click(box, IDC_MSGBOX_NO);
        },
        L"Replace \"R&B_final & more.mov\"?");
}

// The box is measured for what it shows: no line of ampersands is wrapped.
TEST_F(QuestionBox, GrowsForAmpersands) {
    Ask(
        [](Driver& user, HWND box) {
            user.settle();
            const HWND question = findControl(box, IDC_MSGBOX_TEXT);
            EXPECT_NEAR(qvtest::widthOfText(question), qvtest::widthOfInk(question), 4);
            user.click(box, IDC_MSGBOX_NO);
        },
        CString(L'&', 70));
}

TEST_F(QuestionBox, TypeHasNoEffect) {
    CSize plain;
    Ask([&](Driver& user, HWND box) {
        plain = SizeOf(box);
        user.escape();
    });
    for (const UINT type : {UINT(MB_YESNOCANCEL), UINT(MB_OK | MB_ICONERROR), 14u, 0xFFFFFFFFu})
        Ask(
            [&](Driver& user, HWND box) {
                EXPECT_FALSE(::IsWindowVisible(findControl(box, IDC_MSGBOX_CANCEL)));
                EXPECT_TRUE(::IsWindowVisible(findControl(box, IDC_MSGBOX_YES)));
                EXPECT_TRUE(::IsWindowVisible(findControl(box, IDC_MSGBOX_NO)));
                EXPECT_EQ(plain, SizeOf(box));
                user.escape();
            },
            L"Go on?", type);
}

TEST_F(QuestionBox, ParentIsNotUsed) {
    CWnd host;
    ASSERT_TRUE(host.CreateEx(0, AfxRegisterWndClass(0), L"host", WS_OVERLAPPEDWINDOW | WS_VISIBLE,
                              CRect(0, 0, 300, 200), nullptr, 0));
    Ask(
        [&](Driver& user, HWND box) {
            EXPECT_NE(host.m_hWnd, ::GetWindow(box, GW_OWNER));
            EXPECT_TRUE(::IsWindowEnabled(host.m_hWnd));
            user.click(box, IDC_MSGBOX_NO);
        },
        L"Go on?", 0, &host);
    host.DestroyWindow();
}

TEST_F(QuestionBox, SwallowsAllOtherKeys) {
    EXPECT_EQ(2u, Ask([](Driver& user, HWND box) {
                  user.settle();
                  const HWND focus = user.focus();
                  for (const WORD key : {WORD(VK_TAB), WORD(VK_SPACE), WORD(VK_LEFT), WORD(VK_RIGHT),
                                         WORD(VK_UP), WORD(VK_DOWN), WORD('Y'), WORD('N'), WORD(VK_F1)})
                      user.press(key);
                  user.settle();
                  EXPECT_TRUE(::IsWindowVisible(box));
                  EXPECT_EQ(focus, user.focus());
                  EXPECT_FALSE(user.checked(findControl(box, IDC_MSGBOX_NOASK)));
                  // Even with the focus in the tick box the space bar does nothing.
                  user.onUi([&] { ::SetFocus(findControl(box, IDC_MSGBOX_NOASK)); });
                  user.press(VK_SPACE);
                  user.settle();
                  EXPECT_FALSE(user.checked(findControl(box, IDC_MSGBOX_NOASK)));
                  user.enter();
              }));
}

struct GrowthRow {
    const char* name;
    CString text;
};

class QuestionBoxGrowth : public QuestionBox, public testing::WithParamInterface<GrowthRow> {
  protected:
    static CSize TemplateSize() {
        CSize size;
        Ask(
            [&](Driver& user, HWND box) {
                size = SizeOf(box);
                user.escape();
            },
            L"");
        return size;
    }
};

TEST_P(QuestionBoxGrowth, IsExactlyTextAndMargins) {
    const CSize smallest = TemplateSize();
    const CString& text = GetParam().text;
    Ask(
        [&](Driver& user, HWND box) {
            const CSize needed = Needed(box, text);
            const CSize size = SizeOf(box);
            EXPECT_EQ(std::max(smallest.cx, needed.cx + 16), size.cx);
            EXPECT_EQ(std::max(smallest.cy, needed.cy + 86), size.cy);
            CRect client;
            ::GetClientRect(box, &client);
            const auto inside = [&](int id) {
                CRect rect;
                ::GetWindowRect(findControl(box, id), &rect);
                ::MapWindowPoints(nullptr, box, reinterpret_cast<POINT*>(&rect), 2);
                return rect.left >= 0 && rect.top >= 0 && rect.right <= client.right &&
                       rect.bottom <= client.bottom;
            };
            CRect question;
            ::GetClientRect(findControl(box, IDC_MSGBOX_TEXT), &question);
            EXPECT_GE(question.Width(), needed.cx) << "no line is wrapped";
            EXPECT_GE(question.Height(), needed.cy) << "no line is cut";
            for (const int id : {IDC_MSGBOX_TEXT, IDC_MSGBOX_NOASK, IDC_MSGBOX_YES, IDC_MSGBOX_NO})
                EXPECT_TRUE(inside(id)) << id;
            user.settle();
            Picture::ofWindow(box).save(
                qvtest::picturePath(L"messagebox-grown-" + qvtest::toWide(GetParam().name)));
            user.click(box, IDC_MSGBOX_YES);
        },
        text);
}

CString Lines(int count, int length) {
    CString text;
    for (int i = 0; i < count; ++i)
        text += CString(L'w', length) + (i + 1 < count ? L"\n" : L"");
    return text;
}

INSTANTIATE_TEST_SUITE_P(Questions, QuestionBoxGrowth,
                         testing::Values(GrowthRow{"short", L"Go on?"}, GrowthRow{"wide", Lines(1, 60)},
                                         GrowthRow{"high", Lines(12, 4)}, GrowthRow{"both", Lines(15, 70)},
                                         GrowthRow{"chinese", CString(L'视', 50)}),
                         [](const auto& row) { return row.param.name; });

TEST_F(QuestionBox, HugeQuestionStaysOnTheScreenAndCanBeAnswered) {
    constexpr int kMegabyte = 1 << 20;
    for (const CString& text : {CString(L'x', kMegabyte), Lines(2000, 100)})
        EXPECT_EQ(2u, Ask(
                          [](Driver& user, HWND box) {
                              CRect window, work;
                              ::GetWindowRect(box, &window);
                              ::SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
                              EXPECT_LE(window.Width(), work.Width());
                              EXPECT_LE(window.Height(), work.Height());
                              CRect visible;
                              EXPECT_TRUE(visible.IntersectRect(&window, &work));
                              EXPECT_EQ(window, visible);
                              user.click(box, IDC_MSGBOX_YES);
                          },
                          text));
}

TEST_F(QuestionBox, EmptyTitleAndQuestionAreShownAsSuch) {
    ModalScript script;
    script.step("answer", [](Driver& user) {
        const HWND box = user.waitWindow({.className = L"#32770", .title = L"", .thread = 0});
        EXPECT_EQ(L"", textOf(box));
        EXPECT_EQ(L"", textOf(findControl(box, IDC_MSGBOX_TEXT)));
        user.click(box, IDC_MSGBOX_YES);
    });
    const wchar_t* null = nullptr;
    EXPECT_EQ(2u, script.run([&] { return QV_MessageBox(null, null, 0, nullptr); }));
}

LRESULT CALLBACK RefuseWindows(int code, WPARAM wParam, LPARAM lParam) {
    return code == HCBT_CREATEWND ? 1 : ::CallNextHookEx(nullptr, code, wParam, lParam);
}

TEST_F(QuestionBox, ThatCannotBeCreatedIsNo) {
    const HHOOK hook = ::SetWindowsHookExW(WH_CBT, RefuseWindows, nullptr, ::GetCurrentThreadId());
    const UINT answer = QV_MessageBox(kTitle, L"Go on?", 0, nullptr);
    CQVXMessageBox box;
    const INT_PTR end = box.DoModal();
    ::UnhookWindowsHookEx(hook);
    EXPECT_EQ(4u, answer);
    EXPECT_EQ(-1, end);
    EXPECT_TRUE(Asks());
}

TEST_F(QuestionBox, FollowsTheSkin) {
    CQVXMessageBox box;
    box.m_strCaption = kTitle;
    box.m_strText = L"Which skin?";
    ModalScript script;
    script.step("switch", [](Driver& user) {
        const HWND window = user.waitWindow({.title = kTitle});
        user.settle();
        const auto ground = [&] { return Picture::ofClient(window).at(3, 3); };
        EXPECT_EQ(_qv_commonctrl::QV_GetSysColor(18), ground());
        CString light;
        user.onUi([&] {
            light = _qv_commonctrl::QV_GetSkinPath();
            light = light.Left(light.ReverseFind(L'\\')) + L"\\light";
            EXPECT_TRUE(_qv_commonctrl::QV_SetSkinPath(light));
        });
        user.settle();
        EXPECT_EQ(_qv_commonctrl::QV_GetSysColor(18), ground());
        Picture::ofWindow(window).save(qvtest::picturePath(L"messagebox-light"));
        user.onUi([] { _qv_commonctrl::QV_SetSkinPath(nullptr); });
        user.escape();
    });
    script.run([&] { return box.DoModal(); });
}

// ---- a thousand boxes

void CALLBACK AnswerYes(HWND, UINT, UINT_PTR, DWORD) {
    if (const HWND box = qvtest::findWindow({.title = kTitle}))
        ::PostMessageW(box, WM_COMMAND, MAKEWPARAM(IDC_MSGBOX_YES, BN_CLICKED), 0);
}

TEST_F(QuestionBox, ThousandBoxesLeaveNothing) {
    constexpr int kBoxes = 1000;
    constexpr UINT kPollMs = 10;
    const UINT_PTR timer = ::SetTimer(nullptr, 0, kPollMs, AnswerYes);
    const auto ask = [] { EXPECT_EQ(2u, QV_MessageBox(kTitle, L"Go on?", 0, nullptr)); };
    qvtest::expectNoLeak(kBoxes, ask, {.heapBlocks = 1}); // one static
    ::KillTimer(nullptr, timer);
}

} // namespace messagebox_test
