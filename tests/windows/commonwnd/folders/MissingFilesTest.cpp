// The list of missing files and its answer.
#include "PathsFixture.h"

#include "LeakGuard.h"
#include "Picture.h"

namespace paths_test {

using qvtest::findControl;
using qvtest::Picture;
using qvtest::textOf;

namespace {

class Files : public CStringArray {
  public:
    explicit Files(const std::vector<CString>& paths) {
        for (const CString& path : paths)
            Add(path);
    }
};

class MissingFiles : public Paths {
  protected:
    static HWND Prompt(Driver& user) { return user.waitWindow({.title = L"Notice"}); }
    static HWND List(HWND prompt) { return findControl(prompt, IDC_MISSINGFILES_LIST); }

    static INT_PTR Run(CQVFilePathShowTip& prompt, const std::function<void(Driver&, HWND)>& act) {
        return qvtest::runBeside([&] { return prompt.DoModal(); }, {.title = L"Notice"}, act);
    }

    static INT_PTR Ask(const std::vector<CString>& files, const std::function<void(Driver&, HWND)>& act) {
        CQVFilePathShowTip prompt;
        Files array(files);
        prompt.SetFile(array);
        return Run(prompt, act);
    }

    static int Rows(Driver& user, HWND prompt) {
        return static_cast<int>(user.send(List(prompt), LVM_GETITEMCOUNT));
    }
    static CString Row(Driver& user, HWND prompt, int row) {
        std::vector<wchar_t> text(40000);
        LVITEMW item = {};
        item.pszText = text.data();
        item.cchTextMax = static_cast<int>(text.size());
        user.send(List(prompt), LVM_GETITEMTEXTW, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
        return item.pszText;
    }
    static void Close(Driver& user, HWND prompt) { user.click(prompt, IDCANCEL); }
};

TEST_F(MissingFiles, ShowsThePathsInTheirOrder) {
    const std::vector<CString> files = {L"Z:\\clips\\b.mov", L"Z:\\clips\\a.mov", L"Y:\\媒体\\片头.avi",
                                        L"Z:\\clips\\a.mov"};
    Ask(files, [&](Driver& user, HWND prompt) {
        ASSERT_EQ(4, Rows(user, prompt));
        for (int i = 0; i < 4; ++i)
            EXPECT_EQ(files[static_cast<size_t>(i)], Row(user, prompt, i));
        Close(user, prompt);
    });
}

// Anybody may send the message; nothing of it can be read.
TEST_F(MissingFiles, NoticesWithoutARecordAreHarmless) {
    struct OpenPrompt : CQVFilePathShowTip {
        using CQVFilePathShowTip::WindowProc;
    };
    OpenPrompt prompt;
    bool answered = false;
    EXPECT_EQ(IDCANCEL, Run(prompt, [&](Driver& user, HWND window) {
                  user.onUi(
                      [&] { // by a direct call: a platform may swallow what goes wrong below a sent message
                          EXPECT_EQ(0, prompt.WindowProc(WM_NOTIFY, IDC_MISSINGFILES_LIST, 0));
                          EXPECT_EQ(0, prompt.WindowProc(WM_NOTIFY, 0, 0));
                          answered = true;
                      });
                  Close(user, window);
              }));
    EXPECT_TRUE(answered);
}

TEST_F(MissingFiles, HasOneWideColumn) {
    for (const wchar_t* language : {L"en-US", L"zh-CN"}) {
        ASSERT_TRUE(QV_SetLanguage(language));
        CQVFilePathShowTip prompt;
        const CString title = QV_LoadSysString(L"IDS_CAPTURERENDER_TIP");
        const CString heading = QV_LoadSysString(L"IDS_COMMON_FILENAME");
        ModalScript script;
        script.step("look", [&](Driver& user) {
            const HWND wnd = user.waitWindow({.title = title.GetString()});
            wchar_t text[100] = L"";
            LVCOLUMNW column = {};
            column.mask = LVCF_TEXT | LVCF_WIDTH | LVCF_FMT;
            column.pszText = text;
            column.cchTextMax = 100;
            const HWND list = List(wnd);
            EXPECT_TRUE(user.send(list, LVM_GETCOLUMNW, 0, reinterpret_cast<LPARAM>(&column)));
            EXPECT_STREQ(heading, text);
            EXPECT_EQ(1000, column.cx);
            EXPECT_EQ(LVCFMT_LEFT, column.fmt & LVCFMT_JUSTIFYMASK);
            EXPECT_FALSE(user.send(list, LVM_GETCOLUMNW, 1, reinterpret_cast<LPARAM>(&column)));
            EXPECT_EQ(static_cast<LONG_PTR>(LVS_REPORT),
                      ::GetWindowLongPtrW(list, GWL_STYLE) & static_cast<LONG_PTR>(LVS_TYPEMASK));
            user.click(wnd, IDCANCEL);
        });
        script.run([&] { prompt.DoModal(); });
    }
}

TEST_F(MissingFiles, KeepsTheTextsOfItsTemplate) {
    Ask({}, [&](Driver& user, HWND prompt) {
        EXPECT_EQ(L"是", user.text(prompt, IDOK));
        EXPECT_EQ(L"否", user.text(prompt, IDCANCEL));
        bool asked = false;
        for (const HWND label : qvtest::findDescendants(prompt, L"Static"))
            asked = asked || textOf(label) == L"以上物理文件不存在，是否继续？";
        EXPECT_TRUE(asked);
        Close(user, prompt);
    });
}

TEST_F(MissingFiles, HostMayTranslateTheTemplate) {
    QV_SetDictCallBack([](const wchar_t* text) { return wcscmp(text, L"是") == 0 ? L"Go on" : text; });
    Ask({}, [&](Driver& user, HWND prompt) {
        EXPECT_EQ(L"Go on", user.text(prompt, IDOK));
        EXPECT_EQ(L"否", user.text(prompt, IDCANCEL));
        Close(user, prompt);
    });
    EXPECT_NE(nullptr, QV_SetDictCallBack(nullptr)); // still the host's
}

TEST_F(MissingFiles, Answers) {
    EXPECT_EQ(IDOK, Ask({L"Z:\\a"}, [](Driver& user, HWND prompt) { user.click(prompt, IDOK); }));
    EXPECT_EQ(IDCANCEL, Ask({L"Z:\\a"}, [](Driver& user, HWND prompt) { user.click(prompt, IDCANCEL); }));
    EXPECT_EQ(IDOK, Ask({L"Z:\\a"}, [](Driver& user, HWND) { user.enter(); }));
    EXPECT_EQ(IDCANCEL, Ask({L"Z:\\a"}, [](Driver& user, HWND) { user.escape(); }));
    EXPECT_EQ(IDCANCEL, Ask({L"Z:\\a"}, [](Driver& user, HWND prompt) {
                  user.onUi([=] { ::PostMessageW(prompt, WM_SYSCOMMAND, SC_CLOSE, 0); });
              }));
}

TEST_F(MissingFiles, EmptyListStillAsks) {
    EXPECT_EQ(IDOK, Ask({}, [&](Driver& user, HWND prompt) {
                  EXPECT_EQ(0, Rows(user, prompt));
                  user.click(prompt, IDOK);
              }));
}

TEST_F(MissingFiles, SecondRunWithoutFilesIsEmpty) {
    CQVFilePathShowTip prompt;
    Files files({L"Z:\\one", L"Z:\\two"});
    prompt.SetFile(files);
    EXPECT_EQ(IDOK, Run(prompt, [&](Driver& user, HWND wnd) {
                  EXPECT_EQ(2, Rows(user, wnd));
                  user.click(wnd, IDOK);
              }));
    EXPECT_EQ(0, prompt.m_aFiles.GetSize());
    EXPECT_EQ(2, files.GetSize());
    EXPECT_EQ(IDCANCEL, Run(prompt, [&](Driver& user, HWND wnd) {
                  EXPECT_EQ(0, Rows(user, wnd));
                  Close(user, wnd);
              }));
    prompt.SetFile(files);
    Run(prompt, [&](Driver& user, HWND wnd) {
        EXPECT_EQ(2, Rows(user, wnd));
        Close(user, wnd);
    });
}

TEST_F(MissingFiles, SetFileReplaces) {
    CQVFilePathShowTip prompt;
    Files first({L"Z:\\one", L"Z:\\two"});
    Files second({L"Z:\\three"});
    prompt.SetFile(first);
    prompt.SetFile(second);
    ASSERT_EQ(1, prompt.m_aFiles.GetSize());
    EXPECT_STREQ(L"Z:\\three", prompt.m_aFiles[0]);
    second[0] = L"changed"; // a copy was taken
    EXPECT_STREQ(L"Z:\\three", prompt.m_aFiles[0]);
    prompt.SetFile(prompt.m_aFiles);
    EXPECT_EQ(1, prompt.m_aFiles.GetSize());
    CStringArray none;
    prompt.SetFile(none);
    EXPECT_EQ(0, prompt.m_aFiles.GetSize());
}

TEST_F(MissingFiles, OddPathsAreHarmless) {
    std::vector<CString> files = BrokenValues();
    files.push_back(L"");
    files.push_back(CString(L'w', 100000));
    Ask(files, [&](Driver& user, HWND prompt) {
        ASSERT_EQ(static_cast<int>(files.size()), Rows(user, prompt));
        EXPECT_EQ(files[0], Row(user, prompt, 0));
        EXPECT_STREQ(L"", Row(user, prompt, static_cast<int>(files.size()) - 2));
        user.click(List(prompt));
        user.press(VK_END);
        Close(user, prompt);
    });
}

class WithoutList : public CQVFilePathShowTip {
  public:
    BOOL OnInitDialog() override {
        ::DestroyWindow(::GetDlgItem(m_hWnd, IDC_MISSINGFILES_LIST));
        return CQVFilePathShowTip::OnInitDialog();
    }
};

TEST_F(MissingFiles, AsksWithoutItsList) {
    WithoutList prompt;
    Files files({L"Z:\\one"});
    prompt.SetFile(files);
    EXPECT_EQ(IDOK, Run(prompt, [&](Driver& user, HWND wnd) {
                  EXPECT_EQ(nullptr, List(wnd));
                  user.click(wnd, IDOK);
              }));
}

TEST_F(MissingFiles, LocksItsParentMeanwhile) {
    TestHost host;
    CQVFilePathShowTip prompt(&host);
    Run(prompt, [&](Driver& user, HWND wnd) {
        EXPECT_FALSE(::IsWindowEnabled(host));
        EXPECT_EQ(host.m_hWnd, ::GetWindow(wnd, GW_OWNER));
        Close(user, wnd);
    });
    EXPECT_TRUE(::IsWindowEnabled(host));
}

TEST_F(MissingFiles, LongListScrollsByWheelAndKeys) {
    std::vector<CString> files;
    files.reserve(500);
    for (int i = 0; i < 500; ++i) {
        CString path;
        path.Format(L"Z:\\projects\\documentary\\clip %03d.mxf", i);
        files.push_back(path);
    }
    Ask(files, [&](Driver& user, HWND prompt) {
        const HWND list = List(prompt);
        user.wheel(list, {50, 50}, -3);
        user.waitFor("the list to scroll", [&] { return user.send(list, LVM_GETTOPINDEX) > 0; });
        user.clickAt(list, {50, 50});
        user.press(VK_END);
        user.waitFor("the last row", [&] {
            return user.send(list, LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_FOCUSED) == 499;
        });
        Close(user, prompt);
    });
}

TEST_F(MissingFiles, IsSkinned) {
    const std::vector<CString> files(40, L"\\\\server\\media\\documentary\\harbour\\interview_day2_camB.mxf");
    for (const wchar_t* skin : {L"dark", L"light"}) {
        ASSERT_TRUE(QV_SetSkinPath(SkinFolder(skin)));
        Ask(files, [&](Driver& user, HWND prompt) {
            user.settle();
            const Picture picture = Picture::ofWindow(prompt);
            picture.save(qvtest::picturePath(std::wstring(L"missingfiles-") + skin));
            EXPECT_EQ(0, picture.count(::GetSysColor(COLOR_BTNFACE)));
            RECT list = {};
            ::GetWindowRect(List(prompt), &list);
            ::MapWindowPoints(nullptr, prompt, reinterpret_cast<POINT*>(&list), 2);
            EXPECT_EQ(QV_GetSysColor(QVCLR_LIST_FRAME),
                      Picture::ofClient(prompt).at(list.left - 1, list.top + 5));
            if (std::wstring(skin) == L"dark") {
                EXPECT_EQ(0, picture.count(RGB(255, 255, 255)));
            }
            Close(user, prompt);
        });
    }
}

// Closes itself as soon as it is shown.
class PassingPrompt : public CQVFilePathShowTip {
  public:
    BOOL OnInitDialog() override {
        CQVFilePathShowTip::OnInitDialog();
        PostMessage(WM_COMMAND, IDOK);
        return TRUE;
    }
};

TEST_F(MissingFiles, LeavesNothingBehind) {
    Files files({L"Z:\\one", L"Z:\\two"});
    qvtest::expectNoLeak(200,
                         [&] {
                             PassingPrompt prompt;
                             prompt.SetFile(files);
                             EXPECT_EQ(IDOK, prompt.DoModal());
                         },
                         {.heapBlocks = 1}); // one static
}

TEST_F(MissingFiles, MemoryOfALongListIsFreed) {
    constexpr int kFiles = 1000; // the heap's own checks make more of them slow
    CStringArray files;
    for (int i = 0; i < kFiles; ++i)
        files.Add(L"Z:\\projects\\documentary\\a clip that is not there.mxf");
    const auto show = [&] {
        PassingPrompt prompt;
        prompt.SetFile(files);
        prompt.DoModal();
        EXPECT_EQ(0, prompt.m_aFiles.GetSize());
    };
    for (int i = 0; i < 3; ++i)
        show();
    const qvtest::LeakGuard guard;
    for (int i = 0; i < 3; ++i)
        show();
    guard.expectNothingLeft(kFiles / 20);
}

} // namespace
} // namespace paths_test
