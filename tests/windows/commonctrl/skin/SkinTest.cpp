#include "SkinFixture.h"

#include "LeakGuard.h"
#include "Picture.h"
#include "TempFolder.h"

#include <objbase.h>

using namespace _qv_commonctrl;
using qvtest::Picture;

namespace {

class Skin : public SkinFixture {};

TEST_F(Skin, DarkIsTheDefault) {
    EXPECT_STREQ(skinFolder(L"dark").c_str(), QV_GetSkinPath());
    EXPECT_EQ(RGB(0x26, 0x28, 0x2C), QV_GetSysColor(QVCLR_WINDOW));
}

TEST_F(Skin, ChoosesAnother) {
    const UINT generation = QV_GetSkinGeneration();
    EXPECT_TRUE(QV_SetSkinPath(skinFolder(L"light").c_str()));
    EXPECT_STREQ(skinFolder(L"light").c_str(), QV_GetSkinPath());
    EXPECT_EQ(RGB(0xF3, 0xF4, 0xF6), QV_GetSysColor(QVCLR_WINDOW));
    EXPECT_NE(generation, QV_GetSkinGeneration());
}

TEST_F(Skin, TrailingBackslashDoesNotCount) {
    EXPECT_TRUE(QV_SetSkinPath((skinFolder(L"light") + L"\\").c_str()));
    EXPECT_STREQ(skinFolder(L"light").c_str(), QV_GetSkinPath());
}

TEST_F(Skin, MissingOrBrokenSkinIsAnsweredFromTheBuiltInOne) {
    const qvtest::TempFolder folder;
    folder.file(L"binary\\skin.txt", std::string("\x00\xFF\x13garbage", 10));
    folder.file(L"empty\\skin.txt");
    folder.folder(L"none");
    for (const wchar_t* name : {L"binary", L"empty", L"none", L"nowhere", L"binary\\skin.txt"}) {
        ASSERT_TRUE(QV_SetSkinPath(skinFolder(L"light").c_str()));
        EXPECT_FALSE(QV_SetSkinPath(folder.path(name).c_str())) << testing::PrintToString(name);
        EXPECT_EQ(RGB(0x26, 0x28, 0x2C), QV_GetSysColor(QVCLR_WINDOW));
        EXPECT_FALSE(QV_GetSkinPath().IsEmpty());
        EXPECT_NE(nullptr, QV_GetSysFont(QVFONT_UI));
    }
}

TEST_F(Skin, MissingEntriesComeFromTheBuiltInSkin) {
    const qvtest::TempFolder folder;
    folder.file(L"skin.txt", "color 18 window #102030\nrubbish\n");
    ASSERT_TRUE(QV_SetSkinPath(folder.path().c_str()));
    EXPECT_EQ(RGB(0x10, 0x20, 0x30), QV_GetSysColor(QVCLR_WINDOW));
    EXPECT_EQ(RGB(0x30, 0x33, 0x38), QV_GetSysColor(QVCLR_CAPTION));
    LOGBRUSH brush = {};
    ASSERT_TRUE(GetObjectW(QV_GetSysBrush(QVBRUSH_WINDOW), sizeof(brush), &brush));
    EXPECT_EQ(RGB(0x10, 0x20, 0x30), brush.lbColor);
    LOGFONTW font = {};
    ASSERT_TRUE(QV_GetSysFont(QVFONT_UI)->GetLogFont(&font));
    EXPECT_EQ(-12, font.lfHeight);
}

TEST_F(Skin, UnknownIndexesAreSeen) {
    for (const int index : {-1, 0, 7, 99999, INT_MIN, INT_MAX})
        EXPECT_EQ(RGB(0xFF, 0x00, 0xFF), QV_GetSysColor(index));
    EXPECT_EQ(QV_GetSysFont(QVFONT_UI), QV_GetSysFont(4711));
    EXPECT_NE(nullptr, QV_GetSysBrush(4711));
    CPen* pen = QV_LoadPen(4711);
    ASSERT_NE(nullptr, pen);
    QV_ReleaseCommonRes(pen);
}

TEST_F(Skin, PensAreTheCallers) {
    CPen* pen = QV_LoadPen(QVPEN_SCALE_TICK);
    CPen* again = QV_LoadPen(QVPEN_SCALE_TICK);
    ASSERT_NE(nullptr, pen);
    EXPECT_NE(pen, again);
    LOGPEN record = {};
    EXPECT_TRUE(pen->GetLogPen(&record));
    EXPECT_EQ(RGB(0x8A, 0x90, 0x9C), record.lopnColor);
    EXPECT_EQ(1, record.lopnWidth.x);
    QV_ReleaseCommonRes(pen);
    QV_ReleaseCommonRes(again);
    EXPECT_EQ(nullptr, pen);
    QV_ReleaseCommonRes(pen); // null does nothing
}

TEST_F(Skin, LightenFollowsItsRule) {
    EXPECT_EQ(RGB(30, 30, 30), QV_LightenColor(RGB(0, 0, 0)));
    EXPECT_EQ(RGB(255, 255, 255), QV_LightenColor(RGB(255, 255, 255)));
    EXPECT_EQ(RGB(255, 30, 30), QV_LightenColor(RGB(255, 0, 0)));
    EXPECT_EQ(RGB(255, 30, 120), QV_LightenColor(RGB(250, 0, 90)));
    EXPECT_EQ(RGB(113, 123, 133), QV_LightenColor(RGB(95, 105, 115)));
}

TEST_F(Skin, ScalingRoundsHalfAway) {
    struct {
        int px;
        UINT dpi;
        int scaled;
    } const kTable[] = {{21, 96, 21},    {21, 0, 21}, {21, 192, 42}, {21, 144, 32},
                        {-21, 144, -32}, {1, 144, 2}, {-1, 144, -2}, {0, 144, 0},
                        {3, 120, 4},     {1, 48, 1},  {1, 47, 0},    {INT_MAX, 96, INT_MAX}};
    for (const auto& row : kTable)
        EXPECT_EQ(row.scaled, QV_ScaleForDpi(row.px, row.dpi)) << row.px << " at " << row.dpi;
    EXPECT_EQ(96u, QV_GetWindowDpi(nullptr));
    EXPECT_EQ(96u, QV_GetWindowDpi(reinterpret_cast<HWND>(0x7FFFFFFE)));
    EXPECT_EQ(21, QV_ScalePx(nullptr, 21));
}

TEST_F(Skin, FontsFollowLanguageAndDpi) {
    CFont* const chinese = QV_GetSysFont(QVFONT_UI);
    EXPECT_EQ(chinese, QV_GetSysFont(QVFONT_UI, 96));
    EXPECT_EQ(chinese, QV_GetSysFont(QVFONT_UI_CJK));
    LOGFONTW large = {};
    QV_GetSysFont(QVFONT_UI, 192)->GetLogFont(&large);
    EXPECT_EQ(-24, large.lfHeight);
    ASSERT_TRUE(QV_SetLanguage(L"en-US"));
    EXPECT_EQ(QV_GetSysFont(QVFONT_UI_LATIN), QV_GetSysFont(QVFONT_UI));
    EXPECT_NE(chinese, QV_GetSysFont(QVFONT_UI));
    LOGFONTW kept = {};
    EXPECT_TRUE(chinese->GetLogFont(&kept)); // windows still use it
}

TEST_F(Skin, FontIndexFollowsTheScript) {
    EXPECT_EQ(QVFONT_UI, QV_GetFontIndex(nullptr));
    EXPECT_EQ(QVFONT_UI, QV_GetFontIndex(L""));
    EXPECT_EQ(QVFONT_UI_LATIN, QV_GetFontIndex(L"Clip 1"));
    EXPECT_EQ(QVFONT_UI_LATIN, QV_GetFontIndex(L"\u0416\u03B1"));
    EXPECT_EQ(QVFONT_UI_CJK, QV_GetFontIndex(L"Clip \u7247"));
    EXPECT_EQ(QVFONT_UI_CJK, QV_GetFontIndex(L"\u3042"));
    EXPECT_EQ(QVFONT_UI_CJK, QV_GetFontIndex(L"\uD55C"));
    EXPECT_EQ(QVFONT_UI_CJK, QV_GetFontIndex(L"\xD840\xDC00"));
    EXPECT_EQ(QVFONT_UI_LATIN, QV_GetFontIndex(L"\xD83D\xDE00"));
    EXPECT_EQ(QVFONT_UI_LATIN, QV_GetFontIndex(L"\xD840"));
}

TEST_F(Skin, ImagesHaveFramesAndAreShared) {
    const CString path = QV_GetSkinPath() + L"\\CommonCtrl\\Frame\\new\\close.png";
    CQVSkinImage* image = QV_LoadImageEx(path, QVIMAGE_STATES, 0, 0);
    CQVSkinImage* again = QV_LoadImageEx(path, QVIMAGE_STATES, 0, 0);
    ASSERT_NE(nullptr, image);
    EXPECT_EQ(image, again);
    EXPECT_EQ(CSize(9, 10), QV_GetImageSize(image));
    CQVSkinImage* strip = QV_LoadImageEx(path, QVIMAGE_SINGLE, 0, 0);
    EXPECT_EQ(CSize(36, 10), QV_GetImageSize(strip));
    CQVSkinImage* large = QV_LoadImageEx(path, QVIMAGE_STATES, 18, 20);
    EXPECT_EQ(CSize(18, 20), QV_GetImageSize(large));
    for (CQVSkinImage** each : {&image, &again, &strip, &large}) {
        QV_ReleaseCommonRes(*each);
        EXPECT_EQ(nullptr, *each);
    }
    EXPECT_EQ(CSize(0, 0), QV_GetImageSize(nullptr));
}

Picture drawn(CQVSkinImage* image, int frame, COLORREF ground) {
    CDC screen;
    screen.Attach(GetDC(nullptr));
    CDC memory;
    CBitmap bitmap;
    memory.CreateCompatibleDC(&screen);
    bitmap.CreateCompatibleBitmap(&screen, 16, 16);
    CBitmap* const former = memory.SelectObject(&bitmap);
    memory.FillSolidRect(0, 0, 16, 16, ground);
    QV_DrawImage(&memory, image, frame, 3, 3);
    memory.SelectObject(former);
    ReleaseDC(nullptr, screen.Detach());
    return Picture::ofBitmap(bitmap);
}

TEST_F(Skin, ImagesAreBlendedByFrame) {
    CQVSkinImage* image =
        QV_LoadImageEx(QV_GetSkinPath() + L"\\CommonCtrl\\Button\\radio.png", QVIMAGE_STATES, 0, 0);
    ASSERT_NE(nullptr, image);
    const COLORREF ground = RGB(10, 200, 30);
    const Picture normal = drawn(image, 0, ground);
    EXPECT_EQ(ground, normal.at(0, 0));
    EXPECT_EQ(ground, normal.at(3, 3)); // the corner of the frame is clear
    EXPECT_EQ(QV_GetSysColor(QVCLR_ACCENT), normal.at(6, 6));
    EXPECT_EQ(QV_GetSysColor(QVCLR_TEXT_DISABLED), drawn(image, 3, ground).at(6, 6));
    EXPECT_EQ(drawn(image, 3, ground), drawn(image, 99, ground)); // bounded to the last frame
    EXPECT_EQ(normal, drawn(image, -5, ground));
    QV_ReleaseCommonRes(image);
    QV_DrawImage(nullptr, nullptr, 0, 0, 0);
    EXPECT_EQ(256, drawn(nullptr, 0, ground).count(ground));
}

TEST_F(Skin, MissingOrBrokenImagesComeFromTheBuiltInSkin) {
    const qvtest::TempFolder folder;
    folder.file(L"skin.txt", "color 18 window #102030\n");
    folder.file(L"CommonCtrl\\Button\\radio.png", "this is no picture");
    ASSERT_TRUE(QV_SetSkinPath(folder.path().c_str()));
    for (const wchar_t* name : {L"OPAL\\Reset.png", L"CommonCtrl\\Button\\radio.png", L"opal/reset.PNG"}) {
        CQVSkinImage* image = QV_LoadImageEx(QV_GetSkinPath() + L"\\" + name, QVIMAGE_STATES, 0, 0);
        EXPECT_NE(nullptr, image) << testing::PrintToString(name);
        QV_ReleaseCommonRes(image);
    }
    EXPECT_EQ(nullptr, QV_LoadImageEx(QV_GetSkinPath() + L"\\nothing.png", QVIMAGE_SINGLE, 0, 0));
    EXPECT_EQ(nullptr, QV_LoadImageEx(L"C:\\elsewhere\\OPAL\\Reset.png", QVIMAGE_STATES, 0, 0));
    EXPECT_EQ(nullptr, QV_LoadImageEx(nullptr, QVIMAGE_STATES, 0, 0));
    EXPECT_EQ(nullptr, QV_LoadImageEx(L"", QVIMAGE_STATES, 0, 0));
    EXPECT_EQ(nullptr, QV_LoadImageEx(QV_GetSkinPath() + L"\\OPAL\\Reset.png", QVIMAGE_STATES, -1, 0));
    EXPECT_EQ(nullptr,
              QV_LoadImageEx(QV_GetSkinPath() + L"\\OPAL\\Reset.png", QVIMAGE_STATES, INT_MAX, INT_MAX));
}

TEST_F(Skin, ImagesNeedNoComOfTheHost) {
    struct Thread {
        static DWORD WINAPI Run(void* flags) {
            const auto apartment = static_cast<DWORD>(reinterpret_cast<DWORD_PTR>(flags));
            if (apartment != ~0u)
                CoInitializeEx(nullptr, apartment);
            CQVSkinImage* image = QV_LoadImageEx((stageFolder() + L"\\skin\\light\\OPAL\\Reset.png").c_str(),
                                                 QVIMAGE_STATES, 0, 0);
            const DWORD loaded = image != nullptr;
            QV_ReleaseCommonRes(image);
            if (apartment != ~0u)
                CoUninitialize();
            return loaded;
        }
    };
    for (const DWORD apartment : {DWORD(COINIT_MULTITHREADED), DWORD(COINIT_APARTMENTTHREADED), ~DWORD(0)}) {
        const HANDLE thread =
            CreateThread(nullptr, 0, &Thread::Run, reinterpret_cast<void*>(DWORD_PTR(apartment)), 0, nullptr);
        ASSERT_EQ(WAIT_OBJECT_0, WaitForSingleObject(thread, 10000));
        DWORD loaded = 0;
        GetExitCodeThread(thread, &loaded);
        CloseHandle(thread);
        EXPECT_EQ(1u, loaded) << apartment;
    }
}

TEST_F(Skin, SwitchingLeavesNothingBehind) {
    const std::wstring light = skinFolder(L"light");
    qvtest::expectNoLeak(100, [&] {
        QV_SetSkinPath(light.c_str());
        CQVSkinImage* image = QV_LoadImageEx(QV_GetSkinPath() + L"\\OPAL\\Reset.png", QVIMAGE_STATES, 0, 0);
        QV_GetSysBrush(QVBRUSH_WINDOW);
        QV_GetSysFont(QVFONT_TITLE, 144);
        QV_SetSkinPath(nullptr);
        QV_GetSysBrush(QVBRUSH_WINDOW);
        QV_ReleaseCommonRes(image); // an image outlives the skin it came from
        CPen* pen = QV_LoadPen(QVPEN_SCALE_TICK);
        QV_ReleaseCommonRes(pen);
    });
}

// A control that counts what it is told.
class Listener : public CWnd, public CQVBaseCtrl {
  public:
    explicit Listener(CWnd* parent) {
        Create(L"STATIC", L"", WS_CHILD | WS_VISIBLE, CRect(10, 10, 60, 40), parent, 1);
        AttachSkin(this);
    }
    ~Listener() override { DestroyWindow(); }
    void OnSkinChange(UINT reason, HWND wnd) override {
        ++changes;
        seen = QV_GetSysColor(QVCLR_WINDOW);
        CQVBaseCtrl::OnSkinChange(reason, wnd);
    }
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == QV_GetSkinChangeMessage())
            ++messages;
        if (message == WM_PAINT) {
            CPaintDC dc(this);
            dc.FillSolidRect(0, 0, 50, 30, QV_GetSysColor(QVCLR_WINDOW));
            return 0;
        }
        return CWnd::WindowProc(message, wParam, lParam);
    }
    int changes = 0;
    int messages = 0;
    COLORREF seen = 0;
};

TEST_F(Skin, LiveSwitchReachesOpenWindowsAndRepaintsThem) {
    TestHost host;
    Listener listener(&host);
    TestHost::Settle();
    EXPECT_EQ(RGB(0x26, 0x28, 0x2C), Picture::ofClient(listener).at(5, 5));
    ASSERT_TRUE(QV_SetSkinPath(skinFolder(L"light").c_str()));
    EXPECT_EQ(1, listener.changes);
    EXPECT_EQ(1, listener.messages);
    EXPECT_EQ(RGB(0xF3, 0xF4, 0xF6), listener.seen);
    EXPECT_EQ(RGB(0xF3, 0xF4, 0xF6),
              Picture::ofClient(listener).at(5, 5)); // before any message is worked off
}

} // namespace
