// The path settings: what they show, when OK is enabled, what is stored.
#include "ResPathFixture.h"

#include "LeakGuard.h"
#include "Picture.h"

namespace paths_test {

using qvtest::Picture;

namespace {

TEST_F(ResPath, ShowsTheStoredFolders) {
    Store(L"ResPath", L"D:\\资源\\");
    Store(L"MediaPath", L"E:\\Media");
    CQVSetResPath settings;
    EXPECT_EQ(IDCANCEL, Run(settings, [&](Driver& user, HWND wnd) {
                  EXPECT_EQ(L"D:\\资源\\", user.text(ResourceEdit(wnd)));
                  EXPECT_EQ(L"E:\\Media", user.text(MediaEdit(wnd)));
                  EXPECT_FALSE(OkEnabled(wnd));
                  user.click(wnd, IDCANCEL);
              }));
    EXPECT_STREQ(L"D:\\资源\\", settings.m_strResPath);
    EXPECT_STREQ(L"E:\\Media", settings.m_strMediaPath);
}

TEST_F(ResPath, ShowsTheHostsFoldersBeforeTheStoredOnes) {
    Store(L"ResPath", L"D:\\stored");
    Store(L"MediaPath", L"E:\\stored");
    CQVSetResPath settings;
    settings.m_strMediaPath = L"F:\\given\\";
    Run(settings, [&](Driver& user, HWND wnd) {
        EXPECT_EQ(L"D:\\stored", user.text(ResourceEdit(wnd)));
        EXPECT_EQ(L"F:\\given\\", user.text(MediaEdit(wnd)));
        EXPECT_FALSE(OkEnabled(wnd));
        user.click(wnd, IDCANCEL);
    });
    EXPECT_STREQ(L"E:\\stored", Stored(L"MediaPath"));
}

TEST_F(ResPath, TextsComeFromTheDictionary) {
    for (const wchar_t* language : {L"en-US", L"zh-CN"}) {
        ASSERT_TRUE(QV_SetLanguage(language));
        CQVSetResPath settings;
        ModalScript script;
        const CString title = QV_LoadSysString(L"IDS_COMMON_SELECTPATH");
        script.step("look", [&](Driver& user) {
            const HWND wnd = user.waitWindow({.title = title.GetString()});
            EXPECT_STREQ(QV_LoadSysString(L"IDS_COMMON_OK"), user.text(wnd, IDOK).c_str());
            EXPECT_STREQ(QV_LoadSysString(L"IDS_COMMON_CANCEL"), user.text(wnd, IDCANCEL).c_str());
            EXPECT_EQ(L"...", user.text(wnd, IDC_RESPATH_BROWSE));
            EXPECT_EQ(L"...", user.text(wnd, IDC_MEDIAPATH_BROWSE));
            std::vector<std::wstring> labels;
            for (const HWND label : qvtest::findDescendants(wnd, L"Static"))
                labels.push_back(user.text(label));
            EXPECT_EQ((std::vector<std::wstring>{QV_LoadSysString(L"IDS_COMMON_RESPATH").GetString(),
                                                 QV_LoadSysString(L"IDS_COMMON_FILEPATH").GetString(),
                                                 QV_LoadSysString(L"IDS_COMMON_PATHSETINFO").GetString()}),
                      labels);
            user.click(wnd, IDCANCEL);
        });
        script.run([&] { settings.DoModal(); });
        EXPECT_EQ(nullptr, QV_SetDictCallBack(nullptr));
    }
}

TEST_F(ResPath, TypedFoldersAreStored) {
    CQVSetResPath settings;
    EXPECT_EQ(IDOK, Run(settings, [&](Driver& user, HWND wnd) {
                  EXPECT_FALSE(OkEnabled(wnd));
                  user.replaceText(ResourceEdit(wnd), m_res);
                  user.waitText(ResourceEdit(wnd), m_res);
                  EXPECT_TRUE(OkEnabled(wnd));
                  user.replaceText(MediaEdit(wnd), m_media);
                  user.waitText(MediaEdit(wnd), m_media);
                  user.enter();
              }));
    EXPECT_STREQ(m_res.c_str(), Stored(L"ResPath"));
    EXPECT_STREQ(m_media.c_str(), Stored(L"MediaPath"));
    EXPECT_STREQ(m_res.c_str(), settings.m_strResPath);
    EXPECT_STREQ(m_media.c_str(), settings.m_strMediaPath);
}

TEST_F(ResPath, BlanksAndTrailingBackslashesAreCutOff) {
    CQVSetResPath settings;
    EXPECT_EQ(IDOK, Run(settings, [&](Driver& user, HWND wnd) {
                  Put(user, ResourceEdit(wnd), L" \t" + m_res + L"\\\\ ");
                  Put(user, MediaEdit(wnd), L"C:\\");
                  user.click(wnd, IDOK);
              }));
    EXPECT_STREQ(m_res.c_str(), Stored(L"ResPath"));
    EXPECT_STREQ(L"C:", Stored(L"MediaPath"));
    EXPECT_STREQ(L"C:", settings.m_strMediaPath);
}

TEST_F(ResPath, LetterCaseAloneDoesNotEnableOk) {
    CQVSetResPath settings;
    settings.m_strResPath = m_res.c_str();
    settings.m_strMediaPath = m_media.c_str();
    std::wstring capitals = m_res;
    ::CharUpperW(capitals.data());
    Run(settings, [&](Driver& user, HWND wnd) {
        Put(user, ResourceEdit(wnd), capitals);
        EXPECT_FALSE(OkEnabled(wnd));
        Put(user, MediaEdit(wnd), m_media + L"x");
        EXPECT_TRUE(OkEnabled(wnd));
        Put(user, MediaEdit(wnd), m_media);
        EXPECT_TRUE(OkEnabled(wnd)); // never disabled again
        user.click(wnd, IDCANCEL);
    });
}

TEST_F(ResPath, ChangedLetterCaseIsStoredOnceOkIsPressed) {
    CQVSetResPath settings;
    settings.m_strResPath = m_res.c_str();
    settings.m_strMediaPath = m_media.c_str();
    std::wstring capitals = m_res;
    ::CharUpperW(capitals.data());
    Run(settings, [&](Driver& user, HWND wnd) {
        Put(user, ResourceEdit(wnd), L"x");
        Put(user, ResourceEdit(wnd), capitals);
        user.click(wnd, IDOK);
    });
    EXPECT_STREQ(capitals.c_str(), Stored(L"ResPath"));
}

TEST_F(ResPath, NothingChangedWritesNothing) {
    CQVSetResPath settings;
    settings.m_strResPath = m_res.c_str();
    settings.m_strMediaPath = m_media.c_str();
    EXPECT_EQ(IDOK, Run(settings, [&](Driver& user, HWND wnd) {
                  Put(user, ResourceEdit(wnd), L"x");
                  Put(user, ResourceEdit(wnd), m_res);
                  Put(user, MediaEdit(wnd), L"  " + m_media + L"\\");
                  user.click(wnd, IDOK);
              }));
    EXPECT_STREQ(L"(none)", Stored(L"ResPath"));
    EXPECT_STREQ(L"(none)", Stored(L"MediaPath"));
}

TEST_F(ResPath, OneChangeWritesBoth) {
    CQVSetResPath settings;
    settings.m_strResPath = m_res.c_str();
    settings.m_strMediaPath = m_media.c_str();
    EXPECT_EQ(IDOK, Run(settings, [&](Driver& user, HWND wnd) {
                  Put(user, MediaEdit(wnd), m_other);
                  user.click(wnd, IDOK);
              }));
    EXPECT_STREQ(m_res.c_str(), Stored(L"ResPath"));
    EXPECT_STREQ(m_other.c_str(), Stored(L"MediaPath"));
}

TEST_F(ResPath, CancelStoresNothing) {
    for (const int way : {0, 1, 2}) {
        CQVSetResPath settings;
        EXPECT_EQ(IDCANCEL, Run(settings, [&](Driver& user, HWND wnd) {
                      Put(user, ResourceEdit(wnd), m_res);
                      Put(user, MediaEdit(wnd), m_media);
                      if (way == 0)
                          user.click(wnd, IDCANCEL);
                      else if (way == 1)
                          user.escape();
                      else
                          user.onUi([=] { ::PostMessageW(wnd, WM_SYSCOMMAND, SC_CLOSE, 0); });
                  }));
        EXPECT_STREQ(L"(none)", Stored(L"ResPath"));
        EXPECT_STREQ(L"(none)", Stored(L"MediaPath"));
        EXPECT_TRUE(settings.m_strResPath.IsEmpty());
    }
}

TEST_F(ResPath, EnterDoesNothingWhileOkIsDisabled) {
    CQVSetResPath settings;
    settings.m_strResPath = m_res.c_str();
    settings.m_strMediaPath = m_media.c_str();
    EXPECT_EQ(IDCANCEL, Run(settings, [&](Driver& user, HWND wnd) {
                  user.enter();
                  user.settle();
                  EXPECT_TRUE(::IsWindow(wnd));
                  user.click(wnd, IDCANCEL);
              }));
}

TEST_F(ResPath, LockedResourceFolderIsHidden) {
    QV_SetState(kStateResourceDirLocked, 1);
    CQVSetResPath settings;
    settings.m_strResPath = m_res.c_str();
    EXPECT_EQ(IDOK, Run(settings, [&](Driver& user, HWND wnd) {
                  EXPECT_FALSE(::IsWindowVisible(ResourceEdit(wnd)));
                  EXPECT_FALSE(::IsWindowVisible(::GetDlgItem(wnd, IDC_RESPATH_BROWSE)));
                  EXPECT_TRUE(::IsWindowVisible(MediaEdit(wnd)));
                  EXPECT_TRUE(::IsWindowVisible(::GetDlgItem(wnd, IDC_MEDIAPATH_BROWSE)));
                  int labels = 0;
                  for (const HWND label : qvtest::findDescendants(wnd, L"Static"))
                      labels += ::IsWindowVisible(label) ? 1 : 0;
                  EXPECT_EQ(3, labels);
                  user.waitFocus(MediaEdit(wnd));
                  Picture::ofWindow(wnd).save(qvtest::picturePath(L"respath-locked"));
                  Put(user, MediaEdit(wnd), m_media);
                  user.click(wnd, IDOK);
              }));
    EXPECT_STREQ(m_res.c_str(), Stored(L"ResPath"));
}

TEST_F(ResPath, StoredNonsenseIsHarmless) {
    for (const CString& value : BrokenValues()) {
        Store(L"ResPath", value);
        Store(L"MediaPath", value);
        CQVSetResPath settings;
        EXPECT_EQ(IDCANCEL, Run(settings, [&](Driver& user, HWND wnd) {
                      EXPECT_EQ(value, settings.m_strResPath);
                      Put(user, MediaEdit(wnd), m_media); // OK will be pressed
                      user.click(wnd, IDOK);
                      EXPECT_EQ(L"资源路径无效!", Complaint(user, wnd));
                      user.click(wnd, IDCANCEL);
                  }));
        EXPECT_EQ(value, Stored(L"ResPath"));
    }
}

TEST_F(ResPath, IsSkinnedInBothLanguages) {
    for (const wchar_t* skin : {L"dark", L"light"}) {
        for (const wchar_t* language : {L"en-US", L"zh-CN"}) {
            ASSERT_TRUE(QV_SetSkinPath(SkinFolder(skin)));
            ASSERT_TRUE(QV_SetLanguage(language));
            const CString title = QV_LoadSysString(L"IDS_COMMON_SELECTPATH");
            CQVSetResPath settings;
            settings.m_strResPath = L"D:\\Projects\\Harbour documentary\\Resources";
            settings.m_strMediaPath = L"E:\\Media";
            ModalScript script;
            script.step("look", [&](Driver& user) {
                const HWND wnd = user.waitWindow({.title = title.GetString()});
                user.click(MediaEdit(wnd));
                const Picture picture = Picture::ofWindow(wnd);
                picture.save(qvtest::picturePath(std::wstring(L"respath-") + skin + L"-" + language));
                EXPECT_EQ(0, picture.count(::GetSysColor(COLOR_BTNFACE)));
                if (std::wstring(skin) == L"dark") {
                    EXPECT_EQ(0, picture.count(RGB(255, 255, 255)));
                }
                user.click(wnd, IDCANCEL);
            });
            script.run([&] { settings.DoModal(); });
        }
    }
}

// Closes itself as soon as it is shown.
class PassingSettings : public CQVSetResPath {
  public:
    BOOL OnInitDialog() override {
        CQVSetResPath::OnInitDialog();
        PostMessage(WM_COMMAND, IDCANCEL);
        return TRUE;
    }
};

TEST_F(ResPath, LeavesNothingBehind) {
    qvtest::expectNoLeak(200,
                         [&] {
                             PassingSettings settings;
                             EXPECT_EQ(IDCANCEL, settings.DoModal());
                         },
                         {.heapBlocks = 3}); // three statics
}

} // namespace
} // namespace paths_test
