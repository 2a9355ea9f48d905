// Bad folders in the path settings, the browse buttons, and the check at the host's start.
#include "ResPathFixture.h"

namespace paths_test {
namespace {

TEST_F(ResPath, BadResourceFolderIsNamedAndRestored) {
    CQVSetResPath settings;
    settings.m_strResPath = m_res.c_str();
    settings.m_strMediaPath = m_media.c_str();
    EXPECT_EQ(IDCANCEL, Run(settings, [&](Driver& user, HWND wnd) {
                  Put(user, ResourceEdit(wnd), m_folder.path(L"nowhere"));
                  Put(user, MediaEdit(wnd), m_other);
                  user.click(wnd, IDOK);
                  EXPECT_EQ(L"资源路径无效!", Complaint(user, wnd));
                  user.waitText(ResourceEdit(wnd), m_res);
                  EXPECT_EQ(m_other, user.text(MediaEdit(wnd)));
                  EXPECT_TRUE(OkEnabled(wnd));
                  user.click(wnd, IDCANCEL);
              }));
    EXPECT_STREQ(L"(none)", Stored(L"MediaPath"));
}

TEST_F(ResPath, BadMediaFolderIsNamedAfterALineBreakAndRestored) {
    CQVSetResPath settings;
    settings.m_strResPath = m_res.c_str();
    settings.m_strMediaPath = m_media.c_str();
    EXPECT_EQ(IDOK, Run(settings, [&](Driver& user, HWND wnd) {
                  Put(user, ResourceEdit(wnd), m_other);
                  Put(user, MediaEdit(wnd), L"");
                  user.click(wnd, IDOK);
                  EXPECT_EQ(L"\n文件路径无效!", Complaint(user, wnd));
                  user.waitText(MediaEdit(wnd), m_media);
                  EXPECT_EQ(m_other, user.text(ResourceEdit(wnd)));
                  user.click(wnd, IDOK); // now both are there
              }));
    EXPECT_STREQ(m_other.c_str(), Stored(L"ResPath"));
    EXPECT_STREQ(m_media.c_str(), Stored(L"MediaPath"));
}

TEST_F(ResPath, WithBothBadOnlyTheMediaFieldIsRestored) {
    CQVSetResPath settings;
    settings.m_strResPath = m_res.c_str();
    settings.m_strMediaPath = m_media.c_str();
    EXPECT_EQ(IDCANCEL, Run(settings, [&](Driver& user, HWND wnd) {
                  Put(user, ResourceEdit(wnd), L"C:\\no resource");
                  Put(user, MediaEdit(wnd), L"C:\\no media");
                  user.click(wnd, IDOK);
                  EXPECT_EQ(L"资源路径无效!\n文件路径无效!", Complaint(user, wnd));
                  user.waitText(MediaEdit(wnd), m_media);
                  EXPECT_EQ(L"C:\\no resource", user.text(ResourceEdit(wnd)));
                  user.click(wnd, IDCANCEL);
              }));
    EXPECT_STREQ(m_res.c_str(), settings.m_strResPath);
}

TEST_F(ResPath, HiddenResourceFolderIsCheckedAllTheSame) {
    QV_SetState(kStateResourceDirLocked, 1);
    CQVSetResPath settings;
    EXPECT_EQ(IDCANCEL, Run(settings, [&](Driver& user, HWND wnd) {
                  Put(user, MediaEdit(wnd), m_media);
                  user.click(wnd, IDOK);
                  EXPECT_EQ(L"资源路径无效!", Complaint(user, wnd));
                  user.click(wnd, IDCANCEL);
              }));
}

TEST_F(ResPath, BothBrowseButtonsTakeTheChosenFolder) {
    CQVSetResPath settings;
    EXPECT_EQ(IDOK, Run(settings, [&](Driver& user, HWND wnd) {
                  Choose(user, wnd, IDC_RESPATH_BROWSE, m_res);
                  user.waitText(ResourceEdit(wnd), m_res);
                  EXPECT_EQ(L"", user.text(MediaEdit(wnd)));
                  EXPECT_TRUE(OkEnabled(wnd));
                  Choose(user, wnd, IDC_MEDIAPATH_BROWSE, m_media);
                  user.waitText(MediaEdit(wnd), m_media);
                  user.click(wnd, IDOK);
              }));
    EXPECT_STREQ(m_res.c_str(), Stored(L"ResPath"));
    EXPECT_STREQ(m_media.c_str(), Stored(L"MediaPath"));
}

TEST_F(ResPath, CancelledChooserChangesNothing) {
    CQVSetResPath settings;
    settings.m_strResPath = m_res.c_str();
    settings.m_strMediaPath = m_media.c_str();
    Run(settings, [&](Driver& user, HWND wnd) {
        for (const int button : {IDC_RESPATH_BROWSE, IDC_MEDIAPATH_BROWSE}) {
            user.click(wnd, button);
            const HWND chooser = Chooser(user);
            EXPECT_FALSE(::IsWindowEnabled(wnd));
            user.click(chooser, IDCANCEL);
            user.waitGone(chooser);
        }
        EXPECT_EQ(m_res, user.text(ResourceEdit(wnd)));
        EXPECT_EQ(m_media, user.text(MediaEdit(wnd)));
        EXPECT_FALSE(OkEnabled(wnd));
        user.click(wnd, IDCANCEL);
    });
}

TEST_F(ResPath, ChoosingTheSameFolderDoesNotEnableOk) {
    CQVSetResPath settings;
    std::wstring capitals = m_res;
    ::CharUpperW(capitals.data());
    settings.m_strResPath = capitals.c_str();
    settings.m_strMediaPath = m_media.c_str();
    Run(settings, [&](Driver& user, HWND wnd) {
        Choose(user, wnd, IDC_RESPATH_BROWSE, m_res);
        user.waitText(ResourceEdit(wnd), m_res);
        EXPECT_FALSE(OkEnabled(wnd));
        user.click(wnd, IDCANCEL);
    });
}

class FirstStart : public ResPath {
  protected:
    // The check shows the settings; they are cancelled.
    static void ExpectQuestion() {
        ModalScript script; // fails when the settings never come
        script.step("cancel", [](Driver& user) { user.click(Settings(user), IDCANCEL); });
        script.run([] { QV_InitResPath(); });
    }

    // The check comes back by itself.
    static void ExpectSilence() {
        ModalScript script; // closes settings that come all the same, and fails
        script.run([] { QV_InitResPath(); });
    }
};

TEST_F(FirstStart, AsksWithoutAnyProfileEachTime) {
    ExpectQuestion();
    ExpectQuestion();
}

TEST_F(FirstStart, AsksWhenTheResourceFolderIsGone) {
    Store(L"ResPath", m_folder.path(L"gone").c_str());
    Store(L"MediaPath", m_media.c_str());
    ExpectQuestion();
    EXPECT_STREQ(m_folder.path(L"gone").c_str(), Stored(L"ResPath"));
}

TEST_F(FirstStart, AMissingMediaFolderAloneIsNoReason) {
    Store(L"ResPath", m_res.c_str());
    ExpectSilence();
    Store(L"MediaPath", L"Q:\\gone");
    ExpectSilence();
}

TEST_F(FirstStart, AFileCountsAsAFolder) {
    Store(L"ResPath", m_folder.file(L"file.txt", "x").c_str());
    ExpectSilence();
}

TEST_F(FirstStart, StoredNonsenseIsHarmless) {
    for (const CString& value : {CString(L'x', 32000), CString(L"C:\\a\x1\r\n\tb")}) {
        Store(L"ResPath", value);
        ExpectQuestion();
    }
}

TEST_F(FirstStart, AnsweredOnceAsksNoMore) {
    ModalScript script;
    script.step("choose", [&](Driver& user) {
        const HWND wnd = Settings(user);
        EXPECT_EQ(nullptr, ::GetWindow(wnd, GW_OWNER));
        Put(user, ResourceEdit(wnd), m_res);
        Put(user, MediaEdit(wnd), m_media);
        user.click(wnd, IDOK);
    });
    script.run([&] { QV_InitResPath(); });
    EXPECT_STREQ(m_res.c_str(), Stored(L"ResPath"));
    ExpectSilence();
}

} // namespace
} // namespace paths_test
